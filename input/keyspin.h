#pragma once

#include <QObject>
#include <QVariant>

namespace qor {

// Steps the date or number in a field one day or one unit up (direction 38,
// the arrow up) or down (40) within bounds; any other direction does nothing.
// Bounds left out are filled in the caller's variables: up to today's date or
// 10^12, down from 1 January 1800 or 1. A number field with a maximum but no
// minimum compares with the missing minimum: RuntimeError 13, as it always did.
// Returns true when the field changed (then focused with all selected); beeps
// when a bound stops it or the field is blank.
bool keySpin(int direction, QObject *txtBox, QVariant &maxValue, QVariant &minValue);

} // namespace qor
