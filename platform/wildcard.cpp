#include "platform/wildcard.h"

namespace qor {

namespace {

bool same(QChar a, QChar b)
{
    return a == b || a.toCaseFolded() == b.toCaseFolded();
}

} // namespace

bool matchesWildcard(const QString &name, const QString &pattern)
{
    QString wanted = pattern;
    if (wanted.endsWith(QLatin1String("*.*")))
        wanted.chop(2);
    if (wanted.isEmpty())
        return true;
    // Greedy matching with one back-track point for the last "*".
    qsizetype n = 0, p = 0, starP = -1, starN = 0;
    while (n < name.size()) {
        if (p < wanted.size() && wanted.at(p) == QLatin1Char('*')) {
            starP = p++;
            starN = n;
        } else if (p < wanted.size()
            && (wanted.at(p) == QLatin1Char('?') || same(wanted.at(p), name.at(n)))) {
            ++p;
            ++n;
        } else if (starP >= 0) {
            p = starP + 1;
            n = ++starN;
        } else {
            return false;
        }
    }
    while (p < wanted.size() && wanted.at(p) == QLatin1Char('*'))
        ++p;
    return p == wanted.size();
}

} // namespace qor
