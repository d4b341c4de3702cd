#pragma once

#include <QtGlobal>

namespace qor::catalogue {

// Catalogue ids of what the date and time helpers show.
enum DateTimeText : qint32 {
    CalendarWeekTitles = 1000,
    TimeWrong = 1014,
    TimeExamples = 1015,
    DateWrong = 1019,
    NotationOr = 1021,
    DateInFuture = 1022,
    DateTimeErrorTitle = 1031,
    WeekDayBase = 9800, // 9801 Monday .. 9807 Sunday
};

} // namespace qor::catalogue
