#include "demosettings.h"

#include <qorgenlib/lib/clsqorgenlib.h>

namespace {
const QString section = QStringLiteral("qorGenLib Demo");
}

DemoSettings::DemoSettings(clsqorGenLib &lib)
    : m_lib(lib)
{ }

QString DemoSettings::value(const QString &key, const QString &fallback) const
{
    QString file;
    const QString stored = m_lib.GetIni(section, key, file, false);
    return stored.isEmpty() ? fallback : stored;
}

void DemoSettings::setValue(const QString &key, const QString &value)
{
    m_lib.WriteIni(section, key, value);
}
