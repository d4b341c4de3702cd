#include "host/grid.h"

#include "host/gridstyle.h"

namespace qor {

Grid::Grid(QObject *parent)
    : HostObject(parent)
    , m_style(new GridStyle(this))
    , m_highlightRowStyle(new GridStyle(this))
    , m_selectedStyle(new GridStyle(this))
    , m_columns(new Columns(this))
{ }

QVariant Grid::columns() const
{
    return QVariant::fromValue<QObject *>(m_columns);
}

void Grid::setColumns(const QVariant &columns)
{
    m_columns->setElements(columns);
}

QString Grid::elementClass(const QString &property) const
{
    if (property.compare(QLatin1String("Columns"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("Column");
    for (const char *style : { "Style", "HighlightRowStyle", "SelectedStyle" }) {
        if (property.compare(QLatin1String(style), Qt::CaseInsensitive) == 0)
            return QStringLiteral("Style");
    }
    return QString();
}

} // namespace qor
