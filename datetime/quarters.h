#pragma once

#include <QDate>

namespace qor {

// The first and the last day of the quarter a date lies in.
QDate quarterStart(const QDate &date);
QDate quarterEnd(const QDate &date);

// The weekday with Monday as 1 and Sunday as 7; the zero date (a Saturday)
// stands in for a date that is not valid.
int weekDayNumber(const QDate &date);

} // namespace qor
