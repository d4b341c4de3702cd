#include "datetime/dateentry.h"

#include "input/amounts.h"
#include "runtime/blanks.h"
#include "runtime/conversion.h"
#include "runtime/dates.h"
#include "runtime/runtimeerror.h"

#include <QDateTime>

#include <optional>

namespace qor {

namespace {

constexpr int fallbackPivot = 67;
constexpr qint32 frenchOffset = 10000;
constexpr qint32 dutchOffset = 0;

// Day, month and year as the check reads them: numbers from texts.
struct DateParts
{
    double day = 0;
    double month = 0;
    double year = 0;
    QString yearText;
};

std::optional<DateParts> partsOf(
    const QString &entry, const QDate &today, const RegionalSettings &rs)
{
    if (const auto read = readDate(entry, rs, today)) {
        const QDate date = read->date();
        return DateParts { double(date.day()), double(date.month()), double(date.year()),
            QString::number(date.year()) };
    }
    if (entry.size() != 6 || !isNumeric(entry, rs))
        return std::nullopt;
    const bool dayFirst = isDayFirst(rs);
    const QString d = dayFirst ? entry.mid(0, 2) : entry.mid(2, 2);
    const QString m = dayFirst ? entry.mid(2, 2) : entry.mid(0, 2);
    const QString yy = entry.mid(4, 2);
    const QString century
        = cGetalValue(yy, rs) >= centuryPivot(rs) ? QStringLiteral("19") : QStringLiteral("20");
    const QString y = century + yy;
    return DateParts { cGetalValue(d, rs), cGetalValue(m, rs), cGetalValue(y, rs), y };
}

bool isLeapDayYear(const DateParts &p)
{
    // A year ending in "00" is a leap year only when divisible by 400.
    if (vbMod(p.year, 4) != 0)
        return false;
    return !(p.yearText.right(2) == QLatin1String("00") && vbMod(p.year, 400) != 0);
}

bool passesDayInMonth(const DateParts &p)
{
    const double m = p.month;
    if (m == 1 || m == 3 || m == 5 || m == 7 || m == 8 || m == 10 || m == 12)
        return p.day <= 31;
    if (m == 4 || m == 6 || m == 9 || m == 11)
        return p.day <= 30;
    if (m == 2)
        return p.day < 29 || (p.day == 29 && isLeapDayYear(p));
    // Any other month value is left to the date builder.
    return true;
}

// The date builder rolls day 0 and month 0 back; its errors are a refusal.
std::optional<QDate> buildDate(const DateParts &p, const RegionalSettings &rs)
{
    try {
        return dateSerial(
            roundToInteger(p.year), roundToInteger(p.month), roundToInteger(p.day), rs);
    } catch (const RuntimeError &) {
        return std::nullopt;
    }
}

struct Letters
{
    QString day;
    QString month;
    QString year;
};

Letters lettersFor(qint32 offset)
{
    if (offset == dutchOffset)
        return { QStringLiteral("DD"), QStringLiteral("MM"), QStringLiteral("JJ") };
    if (offset == frenchOffset)
        return { QStringLiteral("JJ"), QStringLiteral("MM"), QStringLiteral("AA") };
    return { QStringLiteral("DD"), QStringLiteral("MM"), QStringLiteral("YY") };
}

void replaceFirst(QString &text, const QString &what, const QString &by)
{
    const qsizetype at = text.indexOf(what);
    if (at >= 0)
        text.replace(at, what.size(), by);
}

} // namespace

QString shortDateText(const QDate &date, const RegionalSettings &rs)
{
    return toText(QDateTime(date, QTime(0, 0), Qt::UTC), rs);
}

bool isDayFirst(const RegionalSettings &rs)
{
    return shortDateText(QDate(2000, 12, 31), rs).left(2) == QLatin1String("31");
}

int centuryPivot(const RegionalSettings &rs)
{
    for (int i = 0; i <= 99; ++i) {
        if (dateSerial(i, 1, 1, rs).year() < 2000)
            return i;
    }
    return fallbackPivot;
}

DateEntry readDateEntry(
    QString &entry, bool allowFuture, const QDate &today, const RegionalSettings &rs)
{
    entry = trimBlanks(entry);
    if (entry.isEmpty())
        return {};
    const auto parts = partsOf(entry, today, rs);
    if (!parts || !passesDayInMonth(*parts) || parts->month > 12)
        return { DateEntry::Invalid, QString() };
    const auto date = buildDate(*parts, rs);
    if (!date)
        return { DateEntry::Invalid, QString() };
    entry = shortDateText(*date, rs);
    if (today.daysTo(*date) > 0 && !allowFuture)
        return { DateEntry::Future, QString() };
    return { DateEntry::Accepted, entry };
}

DateNotations dateNotations(const RegionalSettings &rs, qint32 languageOffset)
{
    const Letters letters = lettersFor(languageOffset);
    QString pattern = shortDateText(QDate(2014, 6, 7), rs);
    replaceFirst(pattern, QStringLiteral("07"), letters.day);
    replaceFirst(pattern, QStringLiteral("7"), letters.day);
    replaceFirst(pattern, QStringLiteral("06"), letters.month);
    replaceFirst(pattern, QStringLiteral("6"), letters.month);
    replaceFirst(pattern, QStringLiteral("14"), letters.year);
    replaceFirst(pattern, QStringLiteral("20"), QString());
    QString fourDigits = pattern;
    replaceFirst(fourDigits, letters.year, letters.year + letters.year);
    const QString dayMonth
        = isDayFirst(rs) ? letters.day + letters.month : letters.month + letters.day;
    return { dayMonth + letters.year, pattern, fourDigits };
}

} // namespace qor
