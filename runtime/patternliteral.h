#pragma once

#include <QString>

namespace qor {

// Literals inside Format patterns: a backslash makes the next character literal,
// double quotes enclose a literal run.
inline bool isLiteralStart(QChar c)
{
    return c == QLatin1Char('\\') || c == QLatin1Char('"');
}

// Reads the literal that starts at i into literal; returns the index after it.
qsizetype readLiteral(const QString &pattern, qsizetype i, QString &literal);

// Whether the pattern holds word at i, in any case ("AM/PM", "am/pm").
inline bool startsWithNoCase(const QString &s, qsizetype i, QLatin1String word)
{
    return QStringView(s).mid(i, word.size()).compare(word, Qt::CaseInsensitive) == 0;
}

} // namespace qor
