#include "system/paths.h"

namespace qor {

QString pathRS(const QString &path)
{
    if (path.trimmed().isEmpty())
        return QString();
    if (path.endsWith(QLatin1Char('\\')))
        return path.chopped(1);
    return path;
}

} // namespace qor
