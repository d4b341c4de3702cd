#include "host/datecontrol.h"

#include "host/calendar.h"

namespace qor {

DateControl::DateControl(QObject *parent)
    : HostObject(parent)
    , m_calendar(new qor::Calendar(this))
{ }

QString DateControl::elementClass(const QString &property) const
{
    return property.compare(QLatin1String("Calendar"), Qt::CaseInsensitive) == 0
        ? QStringLiteral("Calendar")
        : QString();
}

} // namespace qor
