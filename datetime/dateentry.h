#pragma once

#include "runtime/regionalsettings.h"

#include <QDate>
#include <QString>

namespace qor {

// What a typed date came to.
struct DateEntry
{
    enum Outcome { Blank, Accepted, Invalid, Future };
    Outcome outcome = Blank;
    QString text; // the date in the short date notation when accepted, else ""
};

// Reads a typed date: whatever the platform date reader accepts, or six
// digits in the settings' day/month order with the two-digit-year window.
// `entry` is trimmed and, when a date could be built, rewritten to its short
// date text (also when that date is then refused as lying after `today`).
DateEntry readDateEntry(
    QString &entry, bool allowFuture, const QDate &today, const RegionalSettings &rs);

// True when the short date text of 31 December 2000 begins with the day.
bool isDayFirst(const RegionalSettings &rs);
// The smallest two-digit year the platform places before 2000 (67 when none is).
int centuryPivot(const RegionalSettings &rs);
// The short date text of a date in the settings.
QString shortDateText(const QDate &date, const RegionalSettings &rs);

// The notations a refused date offers, in the user's order and language
// letters: the six-digit form, the pattern of the sample date and the same
// with a four-digit year, e.g. "DDMMJJ", "DD/MM/JJ", "DD/MM/JJJJ".
struct DateNotations
{
    QString sixDigits;
    QString pattern;
    QString fourDigitYear;
};
DateNotations dateNotations(const RegionalSettings &rs, qint32 languageOffset);

} // namespace qor
