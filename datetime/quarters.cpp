#include "datetime/quarters.h"

#include "runtime/dates.h"

namespace qor {

namespace {

constexpr int monthsPerQuarter = 3;

int quarterOf(const QDate &date)
{
    return (date.month() - 1) / monthsPerQuarter + 1;
}

} // namespace

QDate quarterStart(const QDate &date)
{
    return QDate(date.year(), 1, 1).addMonths((quarterOf(date) - 1) * monthsPerQuarter);
}

QDate quarterEnd(const QDate &date)
{
    // The last month of the quarter and its last day, so 31 December 9999 has an end too.
    const QDate lastMonth(date.year(), quarterOf(date) * monthsPerQuarter, 1);
    return QDate(date.year(), lastMonth.month(), lastMonth.daysInMonth());
}

int weekDayNumber(const QDate &date)
{
    return date.isValid() ? date.dayOfWeek() : zeroDate().dayOfWeek();
}

} // namespace qor
