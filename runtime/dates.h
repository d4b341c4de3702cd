#pragma once

#include <QDateTime>

namespace qor {

// DateSerial: builds a date from year, month and day with roll-over (month 0
// is December of the year before, day 0 the last day of the month before,
// month 13 January of the next year, and so on). Years 0..29 count as 2000..2029
// and 30..99 as 1930..1999. A result outside 100..9999 -> RuntimeError 5.
QDate dateSerial(int year, int month, int day);

// TimeSerial with the same roll-over of seconds into minutes and minutes into
// hours; the result is the time of day (hours taken modulo 24).
QTime timeSerial(int hour, int minute, int second);

// IsDate-style check of a text against the short date notation of rs.
// (declared in runtime/conversion.h when needed)

} // namespace qor
