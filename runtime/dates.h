#pragma once

#include "runtime/regionalsettings.h"

#include <QDateTime>
#include <optional>

namespace qor {

// DateSerial: builds a date from year, month and day with roll-over (month 0
// is December of the year before, day 0 the last day of the month before,
// month 13 January of the next year, and so on). Years 0..29 count as 2000..2029
// and 30..99 as 1930..1999. A result outside 100..9999 -> RuntimeError 5.
QDate dateSerial(int year, int month, int day);
// DateSerial as the platform builds it: years 0..99 are placed in their
// century by the two-digit-year window of rs (rs.expandYear); otherwise the
// same roll-over and range as above.
QDate dateSerial(int year, int month, int day, const RegionalSettings &rs);

// TimeSerial with the same roll-over of seconds into minutes and minutes into
// hours; the result is the time of day (hours taken modulo 24).
QTime timeSerial(int hour, int minute, int second);

// A Date value is a Double: whole days since 30 December 1899 and the time of
// day as a fraction, which stays positive for dates before that day
// (-1.25 is 29 December 1899 06:00). Dates run from 1 January 100 to
// 31 December 9999; a date or serial outside that range (NaN and infinities
// too) -> 6.
double dateToSerial(const QDate &date, const QTime &time = QTime(0, 0));
double dateToSerial(const QDateTime &dateTime);
QDateTime serialToDate(double serial);
// The day that a pure time of day belongs to (serial 0).
QDate zeroDate();

// Reads a date and/or time text the way IsDate/CDate do: three numbers (or a
// month name) in the order of rs.shortDatePattern, day and month swapped when
// that order gives no valid date, a year first when it has three or four
// digits; two-digit years through rs.expandYear; a time "h:mm[:ss]" with an
// optional AM/PM. A time alone lies on zeroDate(). Anything else: nullopt.
// A day and month without a year are not read (they would need today's date).
std::optional<QDateTime> readDate(const QString &text, const RegionalSettings &rs);
// readDate that also takes a day and a month without a year, as people type
// them ("1/2", "15 jan"), in the year of `today`.
std::optional<QDateTime> readDate(
    const QString &text, const RegionalSettings &rs, const QDate &today);

} // namespace qor
