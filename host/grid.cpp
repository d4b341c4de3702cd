#include "host/grid.h"

#include "host/gridstyle.h"

namespace qor {

Grid::Grid(QObject *parent)
    : HostObject(parent)
    , m_style(new GridStyle(this))
    , m_highlightRowStyle(new GridStyle(this))
    , m_selectedStyle(new GridStyle(this))
{ }

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
