#include "runtime/formatdate.h"

#include "runtime/conversion.h"
#include "runtime/dates.h"
#include "runtime/patternliteral.h"
#include "runtime/variant.h"

#include <QLocale>
#include <vector>

namespace qor {

namespace {

// --- dates -------------------------------------------------------------------------------

struct DateToken
{
    enum Kind {
        Literal,
        DateSeparator,
        TimeSeparator,
        Day,
        Month,
        Year,
        Hour,
        Minute,
        Second,
        Weekday,
        Quarter,
        LongTime,
        General,
        AmPm
    } kind;
    int width = 0; // letters used; for AmPm: 0 AM/PM, 1 A/P, 2 the locale's texts
    QString text; // literal text; for AmPm "u" or "l" for the case
};

int runLength(const QString &s, qsizetype i, QChar lower)
{
    int n = 0;
    while (i + n < s.size() && s.at(i + n).toLower() == lower)
        ++n;
    return n;
}

// How many letters of a run one field takes, largest field first.
int fieldWidth(QChar letter, int run)
{
    switch (letter.unicode()) {
    case 'd': return std::min(run, 6);
    case 'm': return std::min(run, 4);
    case 'y': return run >= 4 ? 4 : run >= 2 ? 2 : 1;
    case 'h':
    case 'n':
    case 's':
    case 'w': return std::min(run, 2);
    default: return 1;
    }
}

DateToken::Kind letterKind(QChar letter)
{
    switch (letter.unicode()) {
    case 'd': return DateToken::Day;
    case 'm': return DateToken::Month;
    case 'y': return DateToken::Year;
    case 'h': return DateToken::Hour;
    case 'n': return DateToken::Minute;
    case 's': return DateToken::Second;
    case 'w': return DateToken::Weekday;
    case 'q': return DateToken::Quarter;
    default: return DateToken::General;
    }
}

bool readAmPm(const QString &s, qsizetype &i, std::vector<DateToken> &tokens)
{
    const QString caseMark = s.at(i).isUpper() ? QStringLiteral("u") : QStringLiteral("l");
    if (startsWithNoCase(s, i, QLatin1String("am/pm"))) {
        tokens.push_back({ DateToken::AmPm, 0, caseMark });
        i += 5;
    } else if (startsWithNoCase(s, i, QLatin1String("a/p"))) {
        tokens.push_back({ DateToken::AmPm, 1, caseMark });
        i += 3;
    } else if (startsWithNoCase(s, i, QLatin1String("ampm"))) {
        tokens.push_back({ DateToken::AmPm, 2, caseMark });
        i += 4;
    } else {
        return false;
    }
    return true;
}

std::vector<DateToken> dateTokens(const QString &section)
{
    static const QString letters = QStringLiteral("dmyhnswqc");
    std::vector<DateToken> tokens;
    for (qsizetype i = 0; i < section.size();) {
        const QChar c = section.at(i);
        const QChar lower = c.toLower();
        if (isLiteralStart(c)) {
            QString literal;
            i = readLiteral(section, i, literal);
            tokens.push_back({ DateToken::Literal, 0, literal });
        } else if (c == QLatin1Char('/')) {
            tokens.push_back({ DateToken::DateSeparator, 0, QString() });
            ++i;
        } else if (c == QLatin1Char(':')) {
            tokens.push_back({ DateToken::TimeSeparator, 0, QString() });
            ++i;
        } else if (lower == QLatin1Char('a') && readAmPm(section, i, tokens)) {
            continue;
        } else if (lower == QLatin1Char('t') && runLength(section, i, lower) >= 5) {
            tokens.push_back({ DateToken::LongTime, 5, QString() });
            i += 5;
        } else if (letters.contains(lower)) {
            const int width = fieldWidth(lower, runLength(section, i, lower));
            tokens.push_back({ letterKind(lower), width, QString() });
            i += width;
        } else {
            tokens.push_back({ DateToken::Literal, 0, QString(c) });
            ++i;
        }
    }
    return tokens;
}

bool isField(const DateToken &t)
{
    return t.kind != DateToken::Literal && t.kind != DateToken::DateSeparator
        && t.kind != DateToken::TimeSeparator;
}

// "m" and "mm" are minutes right after an hour or right before a second.
void resolveMinutes(std::vector<DateToken> &tokens)
{
    const DateToken::Kind none = DateToken::Literal;
    DateToken::Kind previous = none;
    for (size_t i = 0; i < tokens.size(); ++i) {
        if (!isField(tokens[i]))
            continue;
        DateToken &t = tokens[i];
        if (t.kind == DateToken::Month && t.width <= 2) {
            DateToken::Kind following = none;
            for (size_t j = i + 1; j < tokens.size() && following == none; ++j) {
                if (isField(tokens[j]))
                    following = tokens[j].kind;
            }
            if (previous == DateToken::Hour || following == DateToken::Second)
                t.kind = DateToken::Minute;
        }
        previous = t.kind;
    }
}

QString twoDigits(int v)
{
    return QStringLiteral("%1").arg(v, 2, 10, QLatin1Char('0'));
}

QString sized(int v, int width)
{
    return width >= 2 ? twoDigits(v) : QString::number(v);
}

// Week of the year with the week of 1 January as week 1 and Sunday first.
int weekOfYear(const QDate &date)
{
    const int firstWeekday = QDate(date.year(), 1, 1).dayOfWeek() % 7; // Sunday 0
    return (date.dayOfYear() - 1 + firstWeekday) / 7 + 1;
}

QString amPmText(const DateToken &t, bool pm, const QLocale &locale)
{
    QString text;
    if (t.width == 2)
        return pm ? locale.pmText() : locale.amText();
    text = t.width == 0 ? (pm ? QStringLiteral("PM") : QStringLiteral("AM"))
                        : (pm ? QStringLiteral("P") : QStringLiteral("A"));
    return t.text == QLatin1String("u") ? text : text.toLower();
}

struct DateContext
{
    QDate date;
    QTime time;
    bool twelveHour;
    const RegionalSettings &rs;
    QLocale locale;
};

QString dayText(const DateToken &t, const DateContext &c)
{
    switch (t.width) {
    case 1:
    case 2: return sized(c.date.day(), t.width);
    case 3: return c.locale.dayName(c.date.dayOfWeek(), QLocale::ShortFormat);
    case 4: return c.locale.dayName(c.date.dayOfWeek(), QLocale::LongFormat);
    case 5: return c.date.toString(c.rs.shortDatePattern);
    default: return c.locale.toString(c.date, QLocale::LongFormat);
    }
}

QString monthText(const DateToken &t, const DateContext &c)
{
    if (t.width <= 2)
        return sized(c.date.month(), t.width);
    return c.locale.monthName(
        c.date.month(), t.width == 3 ? QLocale::ShortFormat : QLocale::LongFormat);
}

QString yearText(const DateToken &t, const DateContext &c)
{
    if (t.width == 1)
        return QString::number(c.date.dayOfYear());
    if (t.width == 2)
        return twoDigits(c.date.year() % 100);
    return QString::number(c.date.year());
}

QString hourText(const DateToken &t, const DateContext &c)
{
    int hour = c.time.hour();
    if (c.twelveHour)
        hour = hour % 12 == 0 ? 12 : hour % 12;
    return sized(hour, t.width);
}

QString tokenText(const DateToken &t, const DateContext &c)
{
    switch (t.kind) {
    case DateToken::Literal: return t.text;
    case DateToken::DateSeparator: return QString(c.rs.dateSeparator);
    case DateToken::TimeSeparator: return QString(c.rs.timeSeparator);
    case DateToken::Day: return dayText(t, c);
    case DateToken::Month: return monthText(t, c);
    case DateToken::Year: return yearText(t, c);
    case DateToken::Hour: return hourText(t, c);
    case DateToken::Minute: return sized(c.time.minute(), t.width);
    case DateToken::Second: return sized(c.time.second(), t.width);
    case DateToken::Weekday:
        return QString::number(t.width == 1 ? c.date.dayOfWeek() % 7 + 1 : weekOfYear(c.date));
    case DateToken::Quarter: return QString::number((c.date.month() - 1) / 3 + 1);
    case DateToken::LongTime: return c.time.toString(c.rs.timePattern);
    case DateToken::General: return toText(QDateTime(c.date, c.time, Qt::UTC), c.rs);
    case DateToken::AmPm: return amPmText(t, c.time.hour() >= 12, c.locale);
    }
    return QString();
}

QString formatDate(const QDateTime &value, const QString &section, const RegionalSettings &rs)
{
    std::vector<DateToken> tokens = dateTokens(section);
    resolveMinutes(tokens);
    const bool twelveHour = std::any_of(
        tokens.begin(), tokens.end(), [](const DateToken &t) { return t.kind == DateToken::AmPm; });
    const DateContext context { value.date(), value.time(), twelveHour, rs,
        QLocale(rs.localeName) };
    QString out;
    for (const DateToken &t : tokens)
        out += tokenText(t, context);
    return out;
}

bool isTextValue(const QVariant &v)
{
    return varType(v) == VarType::String;
}

} // namespace

QString formatAsDate(const QVariant &value, const QString &section, const RegionalSettings &rs)
{
    if (isTextValue(value) && !isDate(value, rs) && !isNumeric(value, rs))
        return toText(value, rs);
    return formatDate(toDate(value, rs), section, rs);
}

} // namespace qor
