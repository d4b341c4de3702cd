#pragma once

#include <QString>

namespace qor {

// The holidays a date control marks, as day/month pairs separated by commas:
// the five common days; for "BE" 21/07 and 11/11 and the community day of the
// language (11/07 in Dutch, 27/09 otherwise); for "LU" 23/06; and for those
// two the movable days of the years 2002 to 2005 from the classic table. Only
// the first two characters of the country code count, in their case.
QString holidayText(const QString &countryCode, qint32 languageOffset, int year);

// The classic table stops in 2006: that year wants its movable days filled in.
bool holidayTableWantsFilling(const QString &countryCode, int year);

} // namespace qor
