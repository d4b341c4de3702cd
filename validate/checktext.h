#pragma once

#include "validate/checkresult.h"

#include <QString>
#include <QStringView>

#include <algorithm>
#include <cmath>

namespace qor {

// Small text helpers shared by the identifier checks.

// Trim(text) is empty: only blanks (character 32) are trimmed.
inline bool isBlank(QStringView text)
{
    for (QChar c : text) {
        if (c != QLatin1Char(' '))
            return false;
    }
    return true;
}

// Left(text, n) and Right(text, n), without copying.
inline QStringView leftPart(QStringView text, qsizetype n)
{
    return text.first(std::min(n, text.size()));
}
inline QStringView rightPart(QStringView text, qsizetype n)
{
    return text.last(std::min(n, text.size()));
}

// True when the text holds the digits 0 to 9 only (an empty text included).
bool isAsciiDigits(QStringView text);
// What the library's number reading gives for a text of plain digits: its
// value, 0 for an empty text. Exact for up to fifteen digits.
double digitsValue(QStringView digits);

// The value of a text of at most fifteen plain digits as a whole number: the
// same number digitsValue gives, as an integer.
qint64 digitsNumber(QStringView digits);

// value - Int(value / 97) * 97, in double precision as the checks compute it.
inline double remainder97(double value)
{
    return value - std::floor(value / 97) * 97;
}

// FilterNumeric in place: only the digits 0 to 9 stay. A text that already is
// all digits is left untouched (and not copied when shared).
void keepDigits(QString &text);

// storage = text, reusing the storage's buffer when it is large enough.
void assignText(QString &storage, QStringView text);

// text is exactly the Latin-1 text expected (a land code, a marker digit).
inline bool isText(QStringView text, QLatin1StringView expected)
{
    if (text.size() != expected.size())
        return false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i].unicode() != uchar(expected[i].toLatin1()))
            return false;
    }
    return true;
}

// The display of a number that is not shown: emptied, keeping its buffer. The
// checks empty it only on the way out, as an accepted number overwrites it anyway.
inline Verdict nothingShown(QString &display, Verdict verdict)
{
    display.resize(0);
    return verdict;
}

} // namespace qor
