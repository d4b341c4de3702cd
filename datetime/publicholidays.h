#pragma once

#include "qorgenlib_export.h"

#include <QDate>
#include <QList>
#include <QString>

namespace qor {

// The Belgian community whose feast day a holiday list includes.
enum class BelgianCommunity { None, Flemish, French, GermanSpeaking, All };

struct PublicHoliday
{
    QDate date;
    QString name; // in Dutch
};

// Easter Sunday of a year of the Gregorian calendar (1583..9999); invalid otherwise.
QORGENLIB_EXPORT QDate easterSunday(int year);

// The public holidays of Belgium ("BE") or Luxembourg ("LU") in a year, in
// date order: the fixed days, Easter Monday, Ascension and Whit Monday,
// Belgium's community feast days as asked, Luxembourg's Europe Day from 2019.
// Other countries, and years outside 1583..9999, have none.
QORGENLIB_EXPORT QList<PublicHoliday> publicHolidays(
    int year, const QString &countryCode, BelgianCommunity community = BelgianCommunity::None);

} // namespace qor
