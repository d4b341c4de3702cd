#pragma once

#include "qorgenlib_export.h"

#include "runtime/regionalsettings.h"

#include <QDateTime>
#include <QString>
#include <QVariant>

namespace qor {

// Conversions with the classic Variant semantics. Those that can fail throw
// RuntimeError: 13 Type mismatch, 6 Overflow, 94 Invalid use of Null.

// CStr: Empty -> "", Null -> 94, Boolean -> "True"/"False", numbers in their
// shortest text form with the regional decimal separator and no grouping
// (Double up to 15 significant digits, Single up to 7; exponent form "1E+20"
// beyond that), dates in the short date notation followed by the time when
// it is not midnight.
QORGENLIB_EXPORT QString toText(const QVariant &v, const RegionalSettings &rs);
// The text form of a Double as toText gives it.
QORGENLIB_EXPORT QString numberText(double v, const RegionalSettings &rs);

// CDbl: Empty -> 0, Null -> 94, Boolean -> -1/0, text read locale-aware
// (decimal and grouping separators of rs, leading/trailing blanks, sign,
// exponent); text that is not numeric -> 13.
QORGENLIB_EXPORT double toDouble(const QVariant &v, const RegionalSettings &rs);
// CLng / CInt: toDouble then banker's rounding; out of range -> 6.
QORGENLIB_EXPORT qint32 toLong(const QVariant &v, const RegionalSettings &rs);
QORGENLIB_EXPORT qint16 toInteger(const QVariant &v, const RegionalSettings &rs);
// CBool: numbers are True when not 0; "True"/"False" (any case) and numeric text.
QORGENLIB_EXPORT bool toBoolean(const QVariant &v, const RegionalSettings &rs);

// CDate: Empty -> the zero date, Null -> 94, numbers and Booleans as date
// serials (out of range -> 6), text read with readDate (runtime/dates.h) or,
// failing that, as a numeric serial; anything else -> 13. The result carries
// the date and time fields in Qt::UTC so that no clock shift can move them.
QORGENLIB_EXPORT QDateTime toDate(const QVariant &v, const RegionalSettings &rs);
// IsDate: dates, and text that readDate accepts.
QORGENLIB_EXPORT bool isDate(const QVariant &v, const RegionalSettings &rs);

// IsNumeric: Empty, numbers and Booleans are numeric; text is numeric when
// toDouble would read it; Null, dates, arrays and objects are not.
QORGENLIB_EXPORT bool isNumeric(const QVariant &v, const RegionalSettings &rs);

// Val: reads the leading number of a text with the point as the only decimal
// separator, skipping blanks, tabs and line feeds anywhere; stops at the first
// character it cannot use; "&H"/"&O" prefixes read hexadecimal/octal. Never fails.
QORGENLIB_EXPORT double val(const QString &text);

// Banker's rounding (half to even) to 32 and 16 bits; out of range -> 6.
QORGENLIB_EXPORT qint32 roundToLong(double v);
QORGENLIB_EXPORT qint16 roundToInteger(double v);

// Int (towards minus infinity) and Fix (towards zero).
QORGENLIB_EXPORT double vbInt(double v);
QORGENLIB_EXPORT double vbFix(double v);

// Whole-number Mod and integer division: both operands rounded to Long first
// (overflow 6), a zero divisor -> 11. The sign of Mod follows the dividend.
QORGENLIB_EXPORT qint32 vbMod(double dividend, double divisor);
QORGENLIB_EXPORT qint32 vbIntDiv(double dividend, double divisor);

} // namespace qor
