#pragma once

#include <QString>

namespace qor {

// Trim as the classic runtime does it: blanks only, not tabs or line ends.
inline QString trimBlanks(const QString &text)
{
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && text.at(begin) == QLatin1Char(' '))
        ++begin;
    while (end > begin && text.at(end - 1) == QLatin1Char(' '))
        --end;
    return text.mid(begin, end - begin);
}

} // namespace qor
