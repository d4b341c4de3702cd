#pragma once

#include "runtime/regionalsettings.h"

#include <QString>
#include <QVariant>

namespace qor {

// Format(value, pattern) for the patterns the library uses:
// - text masks: "&" takes one character (placeholders filled from the right,
//   a longer text puts its surplus in front), "\x" is a literal x;
// - number patterns: "0" digit with zero padding, "#" digit without, "." the
//   regional decimal separator, "," grouping with the regional separator,
//   sections separated by ";" (positive;negative;zero), "\x" and quoted literals,
//   "%" multiplies by 100; rounding half away from zero;
// - date and time patterns: d dd ddd dddd, m mm mmm mmmm (minutes after h or
//   before s), M MM, yy yyyy, h hh H HH, n nn, s ss, "/" and ":" the regional
//   date and time separators.
// Empty formats as "" and Null as "" (no error); a number pattern applied to
// a text that is not numeric returns the text unchanged.
QString format(const QVariant &value, const QString &pattern, const RegionalSettings &rs);

} // namespace qor
