#include "host/column.h"

#include "host/headingstyle.h"

namespace qor {

Column::Column(QObject *parent)
    : HostObject(parent)
    , m_headingStyle(new qor::HeadingStyle(this))
    , m_valueItems(new ValueItems(this))
{ }

QVariant Column::valueItems() const
{
    return QVariant::fromValue<QObject *>(m_valueItems);
}

void Column::setValueItems(const QVariant &items)
{
    m_valueItems->setElements(items);
}

bool Column::translate() const
{
    return m_valueItems->property("Translate").toBool();
}

void Column::setTranslate(bool on)
{
    m_valueItems->setProperty("Translate", on);
}

QString Column::elementClass(const QString &property) const
{
    if (property.compare(QLatin1String("HeadingStyle"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("HeadingStyle");
    if (property.compare(QLatin1String("ValueItems"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("ValueItem");
    return QString();
}

} // namespace qor
