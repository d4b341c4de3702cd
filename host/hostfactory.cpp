#include "host/hostfactory.h"

#include "host/application.h"
#include "host/calendar.h"
#include "host/checkbox.h"
#include "host/column.h"
#include "host/columns.h"
#include "host/combobox.h"
#include "host/control.h"
#include "host/datecontrol.h"
#include "host/form.h"
#include "host/frame.h"
#include "host/grid.h"
#include "host/grideditor.h"
#include "host/gridstyle.h"
#include "host/headingstyle.h"
#include "host/label.h"
#include "host/listbox.h"
#include "host/menuform.h"
#include "host/monthview.h"
#include "host/shape.h"
#include "host/textbox.h"
#include "host/valueitem.h"
#include "host/valueitems.h"

#include <QMetaClassInfo>

#include <functional>

namespace qor {

namespace {

struct HostClass
{
    const char *name;
    std::function<HostObject *(QObject *)> make;
};

template <typename T> HostClass hostClass()
{
    const int index = T::staticMetaObject.indexOfClassInfo("HostClass");
    return { T::staticMetaObject.classInfo(index).value(),
        [](QObject *parent) { return new T(parent); } };
}

const QList<HostClass> &hostClasses()
{
    static const QList<HostClass> classes {
        hostClass<TextBox>(),
        hostClass<GridEditor>(),
        hostClass<ListBox>(),
        hostClass<ComboBox>(),
        hostClass<DateControl>(),
        hostClass<Calendar>(),
        hostClass<Grid>(),
        hostClass<Column>(),
        hostClass<Columns>(),
        hostClass<ValueItems>(),
        hostClass<GridStyle>(),
        hostClass<HeadingStyle>(),
        hostClass<ValueItem>(),
        hostClass<Frame>(),
        hostClass<Form>(),
        hostClass<CheckBox>(),
        hostClass<MenuForm>(),
        hostClass<Shape>(),
        hostClass<Label>(),
        hostClass<MonthView>(),
        hostClass<Control>(),
        hostClass<Application>(),
        hostClass<HostObject>(),
    };
    return classes;
}

} // namespace

HostObject *HostFactory::create(const QString &className, QObject *parent)
{
    for (const HostClass &cls : hostClasses()) {
        if (className.compare(QLatin1String(cls.name), Qt::CaseInsensitive) == 0)
            return cls.make(parent);
    }
    return nullptr;
}

QStringList HostFactory::classNames()
{
    QStringList names;
    for (const HostClass &cls : hostClasses())
        names.append(QLatin1String(cls.name));
    return names;
}

} // namespace qor
