#include "lib/frame/paths.h"

namespace qor {

namespace {

// Trim: blanks only, as the classic function trims.
bool isBlankText(const QString &text)
{
    for (QChar c : text) {
        if (c != QLatin1Char(' '))
            return false;
    }
    return true;
}

} // namespace

QString pathRS(const QString &path)
{
    if (isBlankText(path))
        return QString();
    if (path.endsWith(QLatin1Char('\\')))
        return path.chopped(1);
    return path;
}

} // namespace qor
