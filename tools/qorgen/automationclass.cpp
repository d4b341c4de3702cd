#include "tools/qorgen/automationclass.h"

#include "lib/clsqoreinvoice.h"
#include "lib/clsqorgenlib.h"
#include "lib/typelibrary.h"

namespace qor {

namespace {

template <typename Class> AutomationClass classOf(const QString &name)
{
    AutomationClass cls { name, &Class::typeLibrary,
        [] { return std::unique_ptr<QObject>(std::make_unique<Class>()); }, {} };
    const QMetaObject &meta = Class::staticMetaObject;
    for (const PropertyInfo &property : Class::typeLibrary().properties())
        cls.properties.append({ &property,
            meta.property(meta.indexOfProperty(property.name.toLatin1().constData())) });
    return cls;
}

} // namespace

const QList<AutomationClass> &AutomationClass::all()
{
    static const QList<AutomationClass> classes {
        classOf<clsqorGenLib>(QStringLiteral("clsqorGenLib")),
        classOf<clsqorEInvoice>(QStringLiteral("clsqorEInvoice")),
    };
    return classes;
}

const AutomationClass *AutomationClass::find(const QString &name)
{
    for (const AutomationClass &cls : all()) {
        if (cls.name.compare(name, Qt::CaseInsensitive) == 0)
            return &cls;
    }
    return nullptr;
}

qsizetype AutomationClass::index() const
{
    return this - all().constData();
}

} // namespace qor
