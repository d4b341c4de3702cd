#include "runtime/patternliteral.h"

namespace qor {

qsizetype readLiteral(const QString &pattern, qsizetype i, QString &literal)
{
    if (pattern.at(i) == QLatin1Char('\\')) {
        if (i + 1 < pattern.size())
            literal = pattern.at(i + 1);
        return i + 2;
    }
    const qsizetype close = pattern.indexOf(QLatin1Char('"'), i + 1);
    const qsizetype end = close < 0 ? pattern.size() : close;
    literal = pattern.mid(i + 1, end - i - 1);
    return end + 1;
}

} // namespace qor
