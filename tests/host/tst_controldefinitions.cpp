#include "host/controls/calendar.h"
#include "host/controls/checkbox.h"
#include "host/controls/column.h"
#include "host/controls/columns.h"
#include "host/controls/combobox.h"
#include "host/controls/datecontrol.h"
#include "host/controls/form.h"
#include "host/controls/frame.h"
#include "host/controls/grid.h"
#include "host/controls/gridstyle.h"
#include "host/controls/headingstyle.h"
#include "host/controls/label.h"
#include "host/controls/listbox.h"
#include "host/controls/menuform.h"
#include "host/controls/monthview.h"
#include "host/controls/shape.h"
#include "host/controls/textbox.h"
#include "host/controls/valueitems.h"
#include "host/hostfactory.h"
#include "host/hostobject.h"
#include "host/qt/calendarwidgetadapter.h"
#include "host/qt/checkboxadapter.h"
#include "host/qt/comboboxadapter.h"
#include "host/qt/dateeditadapter.h"
#include "host/qt/formadapter.h"
#include "host/qt/frameadapter.h"
#include "host/qt/labeladapter.h"
#include "host/qt/lineeditadapter.h"
#include "host/qt/listwidgetadapter.h"
#include "host/qt/mainwindowadapter.h"
#include "host/qt/monthviewadapter.h"
#include "host/qt/shapeadapter.h"
#include "host/qt/tablecolumnadapter.h"
#include "host/qt/tablecolumnsadapter.h"
#include "host/qt/tableviewadapter.h"
#include "host/qt/widgetadapter.h"
#include "platform/recordingplatform.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QTableView>
#include <QTest>

#include <functional>
#include <memory>

using namespace qor;
using controls::Side;

namespace {

// The adapter of a real widget for each control, made on a fresh widget of the
// host window; the window owns both.
using AdapterMaker = std::function<QObject *(QWidget *)>;

struct Pair
{
    const controls::ControlDefinition *control;
    AdapterMaker adapter;
};

QTableView *tableOn(QWidget *host)
{
    auto *view = new QTableView(host);
    new TableViewAdapter(view, host);
    return view;
}

QObject *gridChild(QWidget *host, const char *name)
{
    auto *grid = new TableViewAdapter(new QTableView(host), host);
    return grid->property(name).value<QObject *>();
}

QObject *columnChild(QWidget *host, const char *name)
{
    auto *column = new TableColumnAdapter(tableOn(host), 0, host);
    return column->property(name).value<QObject *>();
}

const QList<Pair> &pairs()
{
    static const QList<Pair> all {
        { &controls::control, [](QWidget *h) { return new WidgetAdapter(new QWidget(h), h); } },
        { &controls::textBox, [](QWidget *h) { return new LineEditAdapter(new QLineEdit(h), h); } },
        { &controls::label, [](QWidget *h) { return new LabelAdapter(new QLabel(h), h); } },
        { &controls::checkBox,
            [](QWidget *h) { return new CheckBoxAdapter(new QCheckBox(h), h); } },
        { &controls::frame, [](QWidget *h) { return new FrameAdapter(new QWidget(h), h); } },
        { &controls::shape,
            [](QWidget *h) { return new ShapeAdapter(h, QStringLiteral("Shape1"), h); } },
        { &controls::monthView,
            [](QWidget *h) { return new MonthViewAdapter(new QCalendarWidget(h), h); } },
        { &controls::comboBox,
            [](QWidget *h) { return new ComboBoxAdapter(new QComboBox(h), h); } },
        { &controls::listBox,
            [](QWidget *h) { return new ListWidgetAdapter(new QListWidget(h), h); } },
        { &controls::grid, [](QWidget *h) { return new TableViewAdapter(new QTableView(h), h); } },
        { &controls::column, [](QWidget *h) { return new TableColumnAdapter(tableOn(h), 0, h); } },
        { &controls::columns, [](QWidget *h) { return gridChild(h, "Columns"); } },
        { &controls::gridStyle, [](QWidget *h) { return gridChild(h, "Style"); } },
        { &controls::headingStyle, [](QWidget *h) { return columnChild(h, "HeadingStyle"); } },
        { &controls::valueItems, [](QWidget *h) { return columnChild(h, "ValueItems"); } },
        { &controls::dateControl,
            [](QWidget *h) { return new DateEditAdapter(new QDateEdit(h), h); } },
        { &controls::calendar,
            [](QWidget *h) { return new CalendarWidgetAdapter(new QCalendarWidget(h), h); } },
        { &controls::form, [](QWidget *h) { return new FormAdapter(new QWidget(h), h); } },
        { &controls::menuForm,
            [](QWidget *h) { return new MainWindowAdapter(new QMainWindow(h), h); } },
    };
    return all;
}

bool onSide(Side side, bool model)
{
    return side == Side::Both || side == (model ? Side::Model : Side::Widget);
}

// "Name type" for each property; an object may be held in a variant.
QStringList defined(const controls::ControlDefinition &control, bool model)
{
    QStringList names;
    for (const controls::PropertyDefinition &p : control.properties) {
        if (onSide(p.side, model))
            names.append(QString::fromLatin1(p.name.data(), p.name.size()) + u' '
                + (p.unit == controls::Unit::Object ? QStringLiteral("object")
                                                    : QMetaType(p.type).name()));
    }
    names.sort();
    return names;
}

QStringList declared(const QObject &object, const controls::ControlDefinition &control)
{
    QStringList names;
    const QMetaObject *meta = object.metaObject();
    for (int i = QObject::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        const QString name = QString::fromLatin1(property.name());
        bool isObject = false;
        for (const controls::PropertyDefinition &p : control.properties)
            isObject |= p.name == property.name() && p.unit == controls::Unit::Object;
        names.append(
            name + u' ' + (isObject ? QStringLiteral("object") : property.metaType().name()));
    }
    names.sort();
    return names;
}

QStringList definedOperations(const controls::ControlDefinition &control, bool model)
{
    QStringList names;
    for (const controls::OperationDefinition &operation : control.operations) {
        if (onSide(operation.side, model))
            names.append(QString::fromLatin1(operation.name.data(), operation.name.size()));
    }
    names.sort();
    return names;
}

QStringList declaredOperations(const QObject &object)
{
    QStringList names;
    const QMetaObject *meta = object.metaObject();
    for (int i = QObject::staticMetaObject.methodCount(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        if (method.methodType() == QMetaMethod::Method && !names.contains(method.name()))
            names.append(QString::fromLatin1(method.name()));
    }
    names.sort();
    return names;
}

// "Name=value" for every number, boolean and text the side starts with.
QStringList startingValues(
    const QObject *object, const controls::ControlDefinition &control, bool model)
{
    QStringList values;
    for (const controls::PropertyDefinition &p : control.properties) {
        if (!onSide(p.side, model) || (!model && p.widgetStarts))
            continue;
        const QString name = QString::fromLatin1(p.name.data(), p.name.size());
        const QVariant value = object ? object->property(name.toLatin1().constData()) : QVariant();
        if (p.type == QMetaType::QString)
            values.append(name + u'=' + (object ? value.toString() : QString()));
        else if (p.unit != controls::Unit::Object && p.type != QMetaType::QVariant
            && p.type != QMetaType::QVariantList)
            values.append(name + u'=' + QString::number(object ? value.toLongLong() : p.initial));
    }
    return values;
}

} // namespace

class TestControlDefinitions : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Platform::install(std::make_shared<RecordingPlatform>()); }

    void modelAndAdapterFollowTheDefinition_data()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < pairs().size(); ++i) {
            const std::string_view name = pairs().at(i).control->hostClass;
            QTest::newRow(std::string(name).c_str()) << i;
        }
    }
    void modelAndAdapterFollowTheDefinition()
    {
        QFETCH(int, row);
        const controls::ControlDefinition &control = *pairs().at(row).control;
        std::unique_ptr<HostObject> model(HostFactory::create(
            QString::fromLatin1(control.hostClass.data(), control.hostClass.size())));
        QVERIFY(model);
        QWidget host;
        QObject *adapter = pairs().at(row).adapter(&host);
        QVERIFY(adapter);

        QCOMPARE(declared(*model, control), defined(control, true));
        QCOMPARE(declared(*adapter, control), defined(control, false));
        QCOMPARE(declaredOperations(*model), definedOperations(control, true));
        QCOMPARE(declaredOperations(*adapter), definedOperations(control, false));
        QCOMPARE(
            startingValues(model.get(), control, true), startingValues(nullptr, control, true));
        QCOMPARE(startingValues(adapter, control, false), startingValues(nullptr, control, false));
    }

    // A real widget's position and size go through the one twips conversion.
    void placedWidgetsMeasureInTwips_data()
    {
        QTest::addColumn<int>("row");
        for (int i = 0; i < pairs().size(); ++i) {
            const controls::ControlDefinition &control = *pairs().at(i).control;
            if (definedOperations(control, false).contains(QStringLiteral("ZOrder")))
                QTest::newRow(std::string(control.hostClass).c_str()) << i;
        }
    }
    void placedWidgetsMeasureInTwips()
    {
        QFETCH(int, row);
        QWidget host;
        QObject *adapter = pairs().at(row).adapter(&host);
        auto *placed = qobject_cast<WidgetAdapter *>(adapter);
        QVERIFY(placed);
        const int width = adapter->metaObject()->indexOfProperty("Width");
        QCOMPARE(adapter->metaObject()->property(width).enclosingMetaObject(),
            &WidgetAdapter::staticMetaObject);
        adapter->setProperty("Width", 1500.0f);
        QCOMPARE(placed->widget()->width(), WidgetAdapter::pixels(1500, true));
    }
};

QTEST_MAIN(TestControlDefinitions)
#include "tst_controldefinitions.moc"
