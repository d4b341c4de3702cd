#include "runtime/dates.h"

#include "runtime/runtimeerror.h"

#include <QLocale>
#include <QStringList>
#include <cmath>
#include <vector>

namespace qor {

namespace {

constexpr double secondsPerDay = 86400.0;
// Serials of 1 January 100 and of the last second of 31 December 9999.
constexpr double firstSerial = -657434.0;
constexpr double lastSerial = 2958465.0 + 86399.0 / secondsPerDay;

qint64 floorDiv(qint64 a, qint64 b)
{
    qint64 q = a / b;
    if ((a % b != 0) && ((a < 0) != (b < 0)))
        --q;
    return q;
}

qint64 floorMod(qint64 a, qint64 b)
{
    return a - floorDiv(a, b) * b;
}

bool inDateRange(const QDate &date)
{
    return date.isValid() && date.year() >= 100 && date.year() <= 9999;
}

QDate dateSerialOfFullYear(qint64 y, int month, int day);

// --- reading date texts ---------------------------------------------------

struct Token
{
    enum Kind { Number, Word, Separator } kind;
    QString text;
    int value = 0;
};

constexpr qsizetype longestDateText = 100;
constexpr qsizetype longestNumber = 9;

// Splits a text into numbers, words and single separators (a run of blanks is
// one blank). Fails on a number too long to be a date field.
std::optional<std::vector<Token>> tokenize(const QString &text)
{
    std::vector<Token> tokens;
    qsizetype i = 0;
    while (i < text.size()) {
        const QChar c = text.at(i);
        qsizetype j = i + 1;
        if (c.isDigit()) {
            while (j < text.size() && text.at(j).isDigit())
                ++j;
            if (j - i > longestNumber)
                return std::nullopt;
            const QString digits = text.mid(i, j - i);
            tokens.push_back({ Token::Number, digits, digits.toInt() });
        } else if (c.isLetter()) {
            while (j < text.size() && text.at(j).isLetter())
                ++j;
            tokens.push_back({ Token::Word, text.mid(i, j - i).toLower() });
        } else if (c.isSpace()) {
            while (j < text.size() && text.at(j).isSpace())
                ++j;
            tokens.push_back({ Token::Separator, QStringLiteral(" ") });
        } else {
            tokens.push_back({ Token::Separator, QString(c) });
        }
        i = j;
    }
    return tokens;
}

bool isSeparator(const Token &t, QChar c)
{
    return t.kind == Token::Separator && t.text.at(0) == c;
}

struct TimeOfDay
{
    int hour = 0;
    int minute = 0;
    int second = 0;
    int meridiem = 0; // 0 none, 1 AM, 2 PM
};

int meridiemOf(const QString &word, const QLocale &locale)
{
    const QString am = locale.amText().toLower();
    const QString pm = locale.pmText().toLower();
    if (word == QLatin1String("am") || word == QLatin1String("a") || word == am)
        return 1;
    if (word == QLatin1String("pm") || word == QLatin1String("p") || word == pm)
        return 2;
    return 0;
}

bool isTimeSeparator(const Token &t, const RegionalSettings &rs)
{
    if (isSeparator(t, QLatin1Char(':')))
        return true;
    return rs.timeSeparator != rs.dateSeparator && isSeparator(t, rs.timeSeparator);
}

// Finds "h:mm[:ss] [AM|PM]" and returns its token range [begin, end).
std::optional<std::pair<size_t, size_t>> findTime(const std::vector<Token> &tokens,
    const RegionalSettings &rs, const QLocale &locale, TimeOfDay &time)
{
    for (size_t i = 0; i + 2 < tokens.size(); ++i) {
        if (tokens[i].kind != Token::Number || !isTimeSeparator(tokens[i + 1], rs)
            || tokens[i + 2].kind != Token::Number)
            continue;
        time.hour = tokens[i].value;
        time.minute = tokens[i + 2].value;
        size_t end = i + 3;
        if (end + 1 < tokens.size() && isTimeSeparator(tokens[end], rs)
            && tokens[end + 1].kind == Token::Number) {
            time.second = tokens[end + 1].value;
            end += 2;
        }
        size_t next = end;
        if (next < tokens.size() && isSeparator(tokens[next], QLatin1Char(' ')))
            ++next;
        if (next < tokens.size() && tokens[next].kind == Token::Word) {
            time.meridiem = meridiemOf(tokens[next].text, locale);
            if (time.meridiem != 0)
                end = next + 1;
        }
        return std::make_pair(i, end);
    }
    return std::nullopt;
}

std::optional<QTime> timeOf(TimeOfDay t)
{
    if (t.meridiem != 0) {
        if (t.hour > 12)
            return std::nullopt;
        t.hour = t.hour % 12 + (t.meridiem == 2 ? 12 : 0);
    }
    if (t.hour > 23 || t.minute > 59 || t.second > 59)
        return std::nullopt;
    return QTime(t.hour, t.minute, t.second);
}

int monthOf(const QString &word, const QLocale &locale)
{
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    for (const QLocale &l : { locale, english }) {
        for (int m = 1; m <= 12; ++m) {
            for (auto form : { QLocale::LongFormat, QLocale::ShortFormat }) {
                QString name = l.monthName(m, form).toLower();
                if (name.endsWith(QLatin1Char('.')))
                    name.chop(1);
                if (name == word)
                    return m;
            }
        }
    }
    return 0;
}

struct DateField
{
    int value;
    qsizetype digits; // 0 for a month name
};

int yearOf(const DateField &f, const RegionalSettings &rs)
{
    return f.digits <= 2 ? rs.expandYear(f.value) : f.value;
}

std::optional<QDate> validDate(int year, int month, int day)
{
    const QDate date(year, month, day);
    if (!inDateRange(date))
        return std::nullopt;
    return date;
}

// The order of day, month and year in the short date notation: "dmy", "mdy" or "ymd".
QString fieldOrder(const QString &pattern)
{
    QString order;
    for (QChar c : pattern) {
        const QChar f = c == QLatin1Char('M') ? QLatin1Char('m') : c.toLower();
        if ((f == QLatin1Char('d') || f == QLatin1Char('m') || f == QLatin1Char('y'))
            && !order.contains(f))
            order.append(f);
    }
    return order.size() == 3 ? order : QStringLiteral("mdy");
}

std::optional<QDate> numericDate(const std::vector<DateField> &f, const RegionalSettings &rs)
{
    if (f[0].digits >= 3)
        return validDate(f[0].value, f[1].value, f[2].value);
    const QString order = fieldOrder(rs.shortDatePattern);
    int day = 0, month = 0, year = 0;
    for (int i = 0; i < 3; ++i) {
        if (order.at(i) == QLatin1Char('d'))
            day = f[i].value;
        else if (order.at(i) == QLatin1Char('m'))
            month = f[i].value;
        else
            year = yearOf(f[i], rs);
    }
    if (auto date = validDate(year, month, day))
        return date;
    // An order that gives no date is read the other way round, as people type both.
    return validDate(year, day, month);
}

std::optional<QDate> namedMonthDate(const std::vector<DateField> &f, const RegionalSettings &rs)
{
    if (f[0].digits == 0) // "jan 15 2000"
        return validDate(yearOf(f[2], rs), f[0].value, f[1].value);
    if (f[1].digits == 0 && f[0].digits >= 3) // "2000 jan 15"
        return validDate(f[0].value, f[1].value, f[2].value);
    if (f[1].digits == 0) // "15 jan 2000"
        return validDate(yearOf(f[2], rs), f[1].value, f[0].value);
    return std::nullopt;
}

bool isDateSeparator(const Token &t, const RegionalSettings &rs)
{
    static const QString allowed = QStringLiteral("/-., ");
    return t.kind == Token::Separator
        && (allowed.contains(t.text.at(0)) || t.text.at(0) == rs.dateSeparator);
}

// The date fields outside the time range; nullopt on anything unexpected.
std::optional<std::vector<DateField>> dateFields(const std::vector<Token> &tokens, size_t skipBegin,
    size_t skipEnd, const RegionalSettings &rs, const QLocale &locale)
{
    std::vector<DateField> fields;
    int names = 0;
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (i >= skipBegin && i < skipEnd)
            continue;
        const Token &t = tokens[i];
        if (t.kind == Token::Number) {
            fields.push_back({ t.value, t.text.size() });
        } else if (t.kind == Token::Word) {
            const int month = monthOf(t.text, locale);
            if (month == 0 || ++names > 1)
                return std::nullopt;
            fields.push_back({ month, 0 });
        } else if (!isDateSeparator(t, rs)) {
            return std::nullopt;
        }
        if (fields.size() > 3)
            return std::nullopt;
    }
    return fields;
}

} // namespace

QDate dateSerial(int year, int month, int day)
{
    qint64 y = year;
    if (y >= 0 && y <= 29)
        y += 2000;
    else if (y >= 30 && y <= 99)
        y += 1900;
    return dateSerialOfFullYear(y, month, day);
}

QDate dateSerial(int year, int month, int day, const RegionalSettings &rs)
{
    const qint64 y = (year >= 0 && year <= 99) ? rs.expandYear(year) : year;
    return dateSerialOfFullYear(y, month, day);
}

namespace {

QDate dateSerialOfFullYear(qint64 y, int month, int day)
{
    const qint64 months = y * 12 + (qint64(month) - 1);
    const qint64 firstYear = floorDiv(months, 12);
    if (firstYear < 0 || firstYear > 10000)
        throw RuntimeError::invalidProcedureCall();
    const QDate first(int(firstYear), int(floorMod(months, 12)) + 1, 1); // invalid for year 0
    const QDate date = first.addDays(qint64(day) - 1);
    if (!inDateRange(date))
        throw RuntimeError::invalidProcedureCall();
    return date;
}

} // namespace

QTime timeSerial(int hour, int minute, int second)
{
    const qint64 seconds = qint64(hour) * 3600 + qint64(minute) * 60 + second;
    return QTime(0, 0).addSecs(int(floorMod(seconds, 86400)));
}

QDate zeroDate()
{
    return QDate(1899, 12, 30);
}

double dateToSerial(const QDate &date, const QTime &time)
{
    if (!inDateRange(date))
        throw RuntimeError::overflow();
    const double days = double(zeroDate().daysTo(date));
    const double fraction
        = time.isValid() ? time.msecsSinceStartOfDay() / (secondsPerDay * 1000.0) : 0.0;
    // Before the zero date the time still counts forward from midnight.
    return days < 0 ? days - fraction : days + fraction;
}

double dateToSerial(const QDateTime &dateTime)
{
    return dateToSerial(dateTime.date(), dateTime.time());
}

QDateTime serialToDate(double serial)
{
    if (!(serial >= firstSerial - 1 && serial <= lastSerial + 1)) // also rejects NaN
        throw RuntimeError::overflow();
    const double days = std::trunc(serial);
    qint64 seconds = qint64(std::llround(std::fabs(serial - days) * secondsPerDay));
    QDate date = zeroDate().addDays(qint64(days));
    // A time that rounds up to midnight belongs to the next calendar day.
    if (seconds >= 86400) {
        seconds -= 86400;
        date = date.addDays(1);
    }
    if (!inDateRange(date))
        throw RuntimeError::overflow();
    return QDateTime(date, QTime(0, 0).addSecs(int(seconds)), Qt::UTC);
}

namespace {

// A day and a month without a year, in the order of the short date notation
// (a month name goes either way), or the other way round when that gives no date.
std::optional<QDate> dayMonthDate(
    const std::vector<DateField> &f, const RegionalSettings &rs, int year)
{
    int day = f[0].value;
    int month = f[1].value;
    if (f[0].digits == 0 && f[1].digits == 0)
        return std::nullopt;
    if (f[0].digits == 0)
        std::swap(day, month);
    else if (f[1].digits != 0
        && fieldOrder(rs.shortDatePattern).indexOf(QLatin1Char('m'))
            < fieldOrder(rs.shortDatePattern).indexOf(QLatin1Char('d')))
        std::swap(day, month);
    if (auto date = validDate(year, month, day))
        return date;
    if (f[0].digits == 0 || f[1].digits == 0)
        return std::nullopt;
    return validDate(year, day, month);
}

std::optional<QDateTime> readDateIn(
    const QString &input, const RegionalSettings &rs, std::optional<int> currentYear)
{
    const QString text = input.trimmed();
    if (text.isEmpty() || text.size() > longestDateText)
        return std::nullopt;
    const auto tokens = tokenize(text);
    if (!tokens)
        return std::nullopt;
    const QLocale locale(rs.localeName);
    TimeOfDay parts;
    const auto timeRange = findTime(*tokens, rs, locale, parts);
    std::optional<QTime> time = QTime(0, 0);
    if (timeRange)
        time = timeOf(parts);
    if (!time)
        return std::nullopt;
    const auto fields = timeRange
        ? dateFields(*tokens, timeRange->first, timeRange->second, rs, locale)
        : dateFields(*tokens, 0, 0, rs, locale);
    if (!fields)
        return std::nullopt;
    if (fields->empty() && timeRange)
        return QDateTime(zeroDate(), *time, Qt::UTC);
    std::optional<QDate> date;
    if (fields->size() == 2 && currentYear) {
        date = dayMonthDate(*fields, rs, *currentYear);
    } else if (fields->size() == 3) {
        const bool named
            = (*fields)[0].digits == 0 || (*fields)[1].digits == 0 || (*fields)[2].digits == 0;
        date = named ? namedMonthDate(*fields, rs) : numericDate(*fields, rs);
    }
    if (!date)
        return std::nullopt;
    return QDateTime(*date, *time, Qt::UTC);
}

} // namespace

std::optional<QDateTime> readDate(const QString &input, const RegionalSettings &rs)
{
    return readDateIn(input, rs, std::nullopt);
}

std::optional<QDateTime> readDate(
    const QString &input, const RegionalSettings &rs, const QDate &today)
{
    return readDateIn(input, rs, today.year());
}

} // namespace qor
