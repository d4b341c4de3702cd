#include "datetime/holidaytext.h"

namespace qor {

namespace {

constexpr int yearToFillIn = 2006;

// Easter, Ascension and Whitsun as the table has always held them.
QString movableDays(int year)
{
    switch (year) {
    case 2002: return QStringLiteral(",31/03,09/05,19/05");
    case 2003: return QStringLiteral(",20/04");
    case 2004: return QStringLiteral(",11/04,20/05,30/05");
    case 2005: return QStringLiteral(",27/03,05/05,15/05");
    default: return QString();
    }
}

bool isBelgium(const QString &country)
{
    return country.left(2) == QLatin1String("BE");
}

bool isLuxembourg(const QString &country)
{
    return country.left(2) == QLatin1String("LU");
}

} // namespace

QString holidayText(const QString &countryCode, qint32 languageOffset, int year)
{
    QString days = QStringLiteral("01/01,01/05,15/08,01/11,25/12");
    if (isBelgium(countryCode))
        days += QStringLiteral(",21/07,11/11");
    else if (isLuxembourg(countryCode))
        days += QStringLiteral(",23/06");
    if (isBelgium(countryCode))
        days += languageOffset != 0 ? QStringLiteral(",27/09") : QStringLiteral(",11/07");
    if (isBelgium(countryCode) || isLuxembourg(countryCode))
        days += movableDays(year);
    return days;
}

bool holidayTableWantsFilling(const QString &countryCode, int year)
{
    return year == yearToFillIn && (isBelgium(countryCode) || isLuxembourg(countryCode));
}

} // namespace qor
