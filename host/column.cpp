#include "host/column.h"

#include "host/headingstyle.h"

namespace qor {

Column::Column(QObject *parent)
    : HostObject(parent)
    , m_headingStyle(new qor::HeadingStyle(this))
{ }

QString Column::elementClass(const QString &property) const
{
    if (property.compare(QLatin1String("HeadingStyle"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("HeadingStyle");
    if (property.compare(QLatin1String("ValueItems"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("ValueItem");
    return QString();
}

} // namespace qor
