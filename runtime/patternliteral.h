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

} // namespace qor
