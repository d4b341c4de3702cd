#pragma once

#include "runtime/regionalsettings.h"

#include <QString>
#include <QVariant>

namespace qor {

// Reads what a field holds as a number whatever the regional settings: a
// Double, or the Integer 0 for Null, Empty, an empty text and anything that is
// not numeric. With point decimals the text is read by Val, otherwise by the
// locale-aware conversion, so 12.5 and 12,5 are each right on their own system.
QVariant cGetal(const QVariant &number, const RegionalSettings &rs);
// cGetal as a plain double.
double cGetalValue(const QVariant &number, const RegionalSettings &rs);

// An amount with grouping and two decimals ("- 1.234,50" for a negative one
// under comma decimals), followed by " EUR" (symbol 1) or a blank and the euro
// sign (symbol 2).
QString setEuro(float value, int symbol, const RegionalSettings &rs);

} // namespace qor
