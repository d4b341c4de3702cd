#include "datetime/publicholidays.h"

#include <algorithm>

namespace qor {

namespace {

constexpr int firstGregorianYear = 1583;
constexpr int lastYear = 9999;
constexpr int firstEuropeDayYear = 2019;
constexpr int ascensionAfterEaster = 39;
constexpr int whitMondayAfterEaster = 50;

void addFixed(QList<PublicHoliday> &days, int year, int month, int day, const char *name)
{
    days.append({ QDate(year, month, day), QString::fromUtf8(name) });
}

void addMovable(QList<PublicHoliday> &days, const QDate &easter)
{
    days.append({ easter.addDays(1), QStringLiteral("Paasmaandag") });
    days.append({ easter.addDays(ascensionAfterEaster), QStringLiteral("O.H. Hemelvaart") });
    days.append({ easter.addDays(whitMondayAfterEaster), QStringLiteral("Pinkstermaandag") });
}

bool includes(BelgianCommunity asked, BelgianCommunity community)
{
    return asked == community || asked == BelgianCommunity::All;
}

void addBelgian(QList<PublicHoliday> &days, int year, BelgianCommunity community)
{
    addFixed(days, year, 1, 1, "Nieuwjaar");
    addFixed(days, year, 5, 1, "Dag van de Arbeid");
    addFixed(days, year, 7, 21, "Nationale feestdag");
    addFixed(days, year, 8, 15, "O.L.V. Hemelvaart");
    addFixed(days, year, 11, 1, "Allerheiligen");
    addFixed(days, year, 11, 11, "Wapenstilstand");
    addFixed(days, year, 12, 25, "Kerstmis");
    if (includes(community, BelgianCommunity::Flemish))
        addFixed(days, year, 7, 11, "Feest van de Vlaamse Gemeenschap");
    if (includes(community, BelgianCommunity::French))
        addFixed(days, year, 9, 27, "Feest van de Franse Gemeenschap");
    if (includes(community, BelgianCommunity::GermanSpeaking))
        addFixed(days, year, 11, 15, "Feest van de Duitstalige Gemeenschap");
}

void addLuxembourgish(QList<PublicHoliday> &days, int year)
{
    addFixed(days, year, 1, 1, "Nieuwjaar");
    addFixed(days, year, 5, 1, "Dag van de Arbeid");
    if (year >= firstEuropeDayYear)
        addFixed(days, year, 5, 9, "Europadag");
    addFixed(days, year, 6, 23, "Nationale feestdag");
    addFixed(days, year, 8, 15, "O.L.V. Hemelvaart");
    addFixed(days, year, 11, 1, "Allerheiligen");
    addFixed(days, year, 12, 25, "Kerstmis");
    addFixed(days, year, 12, 26, "Tweede Kerstdag");
}

} // namespace

QDate easterSunday(int year)
{
    if (year < firstGregorianYear || year > lastYear)
        return QDate();
    // The anonymous Gregorian computus.
    const int a = year % 19;
    const int b = year / 100;
    const int c = year % 100;
    const int d = b / 4;
    const int e = b % 4;
    const int f = (b + 8) / 25;
    const int g = (b - f + 1) / 3;
    const int h = (19 * a + b - d - g + 15) % 30;
    const int i = c / 4;
    const int k = c % 4;
    const int l = (32 + 2 * e + 2 * i - h - k) % 7;
    const int m = (a + 11 * h + 22 * l) / 451;
    const int month = (h + l - 7 * m + 114) / 31;
    const int day = (h + l - 7 * m + 114) % 31 + 1;
    return QDate(year, month, day);
}

QList<PublicHoliday> publicHolidays(
    int year, const QString &countryCode, BelgianCommunity community)
{
    QList<PublicHoliday> days;
    const QDate easter = easterSunday(year);
    if (!easter.isValid())
        return days;
    if (countryCode == QLatin1String("BE"))
        addBelgian(days, year, community);
    else if (countryCode == QLatin1String("LU"))
        addLuxembourgish(days, year);
    else
        return days;
    addMovable(days, easter);
    std::stable_sort(days.begin(), days.end(),
        [](const PublicHoliday &x, const PublicHoliday &y) { return x.date < y.date; });
    return days;
}

} // namespace qor
