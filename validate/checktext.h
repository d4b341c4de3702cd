#pragma once

#include <QString>
#include <QStringView>

namespace qor {

// Small text helpers shared by the identifier checks.

// Trim(text) is empty: only blanks (character 32) are trimmed.
bool isBlank(const QString &text);

// Left(text, n) and Right(text, n), without copying.
QStringView leftPart(QStringView text, qsizetype n);
QStringView rightPart(QStringView text, qsizetype n);

// True when the text holds the digits 0 to 9 only (an empty text included).
bool isAsciiDigits(QStringView text);
// What the library's number reading gives for a text of plain digits: its
// value, 0 for an empty text. Exact for up to fifteen digits.
double digitsValue(QStringView digits);

// value - Int(value / 97) * 97, in double precision as the checks compute it.
double remainder97(double value);

} // namespace qor
