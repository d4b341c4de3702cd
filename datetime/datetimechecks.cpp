#include "datetime/datetimechecks.h"

#include "datetime/dateentry.h"
#include "datetime/datetimemessages.h"
#include "datetime/holidaytext.h"
#include "datetime/quarters.h"
#include "datetime/timeentry.h"
#include "lib/frame/catalogue.h"
#include "lib/frame/messageboxlogic.h"
#include "lib/frame/modgenlib.h"
#include "platform/clock.h"
#include "platform/dialogpresenter.h"
#include "runtime/blanks.h"
#include "runtime/callbyname.h"
#include "runtime/conversion.h"
#include "runtime/dates.h"
#include "runtime/format.h"
#include "runtime/runtimeerror.h"
#include "system/stationflags.h"

namespace qor {

using namespace catalogue;

namespace {

constexpr int exclamationOK = MessageBoxStyle::Exclamation | MessageBoxStyle::OK;
constexpr int criticalOK = MessageBoxStyle::Critical | MessageBoxStyle::OK;
const QString paragraphBreak = QString(2, QChar(13));

void reportWrongDate(const RegionalSettings &rs, qint32 offset)
{
    const DateNotations notations = dateNotations(rs, offset);
    const QString prompt = loadCatalogueText(DateWrong) + paragraphBreak + notations.sixDigits
        + loadCatalogueText(NotationOr) + notations.pattern + loadCatalogueText(NotationOr)
        + notations.fourDigitYear;
    showMessageBoxE(prompt, exclamationOK, loadCatalogueText(DateTimeErrorTitle));
}

void reportWrongTime(const QString &separator)
{
    const QString prompt = loadCatalogueText(TimeWrong) + paragraphBreak
        + loadCatalogueText(TimeExamples) + separator + QStringLiteral("30   08") + separator
        + QStringLiteral("30");
    showMessageBoxE(prompt, exclamationOK, loadCatalogueText(DateTimeErrorTitle));
}

QString systemTimeSeparator(const RegionalSettings &rs)
{
    return timeSeparatorOf(toText(Clock::current().now().time(), rs));
}

QDateTime asDate(const QDate &date)
{
    return QDateTime(date, QTime(0, 0), Qt::UTC);
}

// The quarter helpers read the text as a date or say it is none.
std::optional<QDate> quarterDate(const QString &datum)
{
    const RegionalSettings rs = Clock::current().regionalSettings();
    if (!isDate(datum, rs))
        return std::nullopt;
    try {
        return toDate(datum, rs).date();
    } catch (const RuntimeError &) {
        return std::nullopt;
    }
}

void reportNoQuarterDate()
{
    showMessageBoxE(QStringLiteral("Ongeldige datum !"), exclamationOK, QStringLiteral(" Fout"));
}

// A statement on a host control that fails is skipped.
template <typename Statement> void onControl(Statement &&statement)
{
    try {
        statement();
    } catch (const RuntimeError &) { }
}

QString systemDateSeparator(const RegionalSettings &rs)
{
    return shortDateText(QDate(1972, 11, 27), rs).mid(2, 1);
}

QString controlFormat(const RegionalSettings &rs)
{
    constexpr qsizetype fourDigitYearLength = 10;
    const QString separator = systemDateSeparator(rs);
    QString result = QStringLiteral("dd") + separator + QStringLiteral("mm") + separator
        + QStringLiteral("yy");
    if (shortDateText(QDate(1972, 11, 27), rs).size() == fourDigitYearLength)
        result += QStringLiteral("yy");
    return result;
}

void setCalendar(QObject *dText, const QString &holidays, const RegionalSettings &rs)
{
    QObject *calendar = nullptr;
    onControl([&] { calendar = getProperty(dText, "Calendar").value<QObject *>(); });
    onControl([&] { setProperty(calendar, "Holidays", holidays, rs); });
    onControl(
        [&] { setProperty(calendar, "WeekTitles", loadCatalogueText(CalendarWeekTitles), rs); });
}

} // namespace

QString controleerDatum(QString &dt, bool allowFuture, bool mbox, qint32 offset)
{
    useLanguage(offset);
    const RegionalSettings rs = Clock::current().regionalSettings();
    const DateEntry entry = readDateEntry(dt, allowFuture, Clock::current().now().date(), rs);
    if (mbox && entry.outcome == DateEntry::Invalid)
        reportWrongDate(rs, offset);
    if (mbox && entry.outcome == DateEntry::Future)
        showMessageBoxE(
            loadCatalogueText(DateInFuture), exclamationOK, loadCatalogueText(DateTimeErrorTitle));
    return entry.text;
}

QString controleerUur(
    QString &uur, bool mbox, bool allowMoreThan24Hours, bool returnHHMM, qint32 offset)
{
    useLanguage(offset);
    const QString separator = systemTimeSeparator(Clock::current().regionalSettings());
    bool refused = false;
    const QString result
        = readTimeEntry(uur, separator, { allowMoreThan24Hours, returnHHMM }, refused);
    if (mbox && refused)
        reportWrongTime(separator);
    return result;
}

QString getTime(QString &uur, qint32 offset)
{
    useLanguage(offset);
    const RegionalSettings rs = Clock::current().regionalSettings();
    const QString hoursMinutes = QStringLiteral("HH:mm");
    QString result;
    try {
        if (uur.startsWith(QLatin1Char('#')) && uur.endsWith(QLatin1Char('#')))
            result = format(uur, hoursMinutes, rs);
        else
            result
                = QLatin1Char('#') + format(toDate(uur, rs), hoursMinutes, rs) + QLatin1Char('#');
    } catch (const RuntimeError &) {
        result.clear();
    }
    if (result.isEmpty())
        showMessageBoxE(QStringLiteral("Invalid time ") + uur + QStringLiteral(" for GetTime ..."),
            criticalOK, QStringLiteral("qorSoft General Library"));
    return result;
}

QString getWeekDag(const QDateTime &xs, qint32 offset)
{
    useLanguage(offset);
    return loadCatalogueText(WeekDayBase + weekDayNumber(xs.date()));
}

QDateTime getQuarterStart(const QString &datum, qint32 offset)
{
    useLanguage(offset);
    if (const auto date = quarterDate(datum))
        return asDate(quarterStart(*date));
    reportNoQuarterDate();
    return asDate(zeroDate());
}

QDateTime getQuarterEnd(const QString &datum, qint32 offset)
{
    useLanguage(offset);
    if (const auto date = quarterDate(datum))
        return asDate(quarterEnd(*date));
    reportNoQuarterDate();
    return asDate(zeroDate());
}

void setDText(
    QObject *dText, QString &countryCode, bool valueToDay, bool maxDateToDay, qint32 offset)
{
    useLanguage(offset);
    const RegionalSettings rs = Clock::current().regionalSettings();
    onControl([&] { setProperty(dText, "MinDate", QStringLiteral("1/1/1900"), rs); });
    const QString format = controlFormat(rs);
    onControl([&] { setProperty(dText, "Format", format, rs); });
    onControl([&] { setProperty(dText, "DisplayFormat", format, rs); });
    if (trimBlanks(countryCode).isEmpty())
        countryCode = QStringLiteral("BE");
    const QDate today = Clock::current().now().date();
    const QString holidays = holidayText(countryCode, offset, today.year());
    if (holidayTableWantsFilling(countryCode, today.year()) && !getKlantPC())
        DialogPresenter::current().systemMessageBox(
            { QStringLiteral("3 variabele Feestdagen invullen in OstGenLib SetDtext"), 0,
                QString() });
    setCalendar(dText, holidays, rs);
    if (maxDateToDay)
        onControl([&] { setProperty(dText, "MaxDate", asDate(today), rs); });
    if (valueToDay)
        onControl([&] { setProperty(dText, "Value", asDate(today), rs); });
}

} // namespace qor
