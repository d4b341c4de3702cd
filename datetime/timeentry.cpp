#include "datetime/timeentry.h"

#include "runtime/blanks.h"
#include "runtime/conversion.h"
#include "runtime/format.h"
#include "runtime/regionalsettings.h"

namespace qor {

namespace {

constexpr int hoursPerDay = 24;
constexpr int minutesPerHour = 60;

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

// Every character that is not a digit becomes the separator, position by
// position over the length the entry had at the start. With no separator a
// character is dropped, and the one moving into its place is passed over.
QString withSeparators(const QString &entry, const QString &separator)
{
    if (separator.size() == 1) {
        QString result = entry;
        for (QChar &c : result) {
            if (!isDigit(c))
                c = separator.at(0);
        }
        return result;
    }
    QString result;
    result.reserve(entry.size());
    qsizetype read = 0;
    for (qsizetype i = 0; i < entry.size() && read < entry.size(); ++i) {
        const QChar c = entry.at(read++);
        if (isDigit(c)) {
            result.append(c);
        } else {
            result.append(separator);
            if (read < entry.size())
                result.append(entry.at(read++));
        }
    }
    result.append(entry.mid(read));
    return result;
}

// Where the separator first occurs, counted from 1; an empty separator is
// found at once, in any text that is not empty.
qsizetype firstSeparatorAt(const QString &text, const QString &separator)
{
    if (text.isEmpty())
        return 0;
    return separator.isEmpty() ? 1 : text.indexOf(separator) + 1;
}

QString hoursText(double hours, bool twoDigitHours)
{
    // Format's number patterns need no regional settings beyond the defaults here.
    return format(
        hours, twoDigitHours ? QStringLiteral("#00") : QStringLiteral("#0"), RegionalSettings());
}

// Puts the entry in the form hours, separator, two-digit minutes.
QString normalised(const QString &entry, const QString &separator, bool twoDigitHours)
{
    const qsizetype length = entry.size();
    if (length >= 3) {
        const qsizetype at = firstSeparatorAt(entry, separator);
        if (at == length - 2) {
            const double hours = val(entry.left(at - 1));
            return hoursText(hours, twoDigitHours) + entry.right(3);
        }
        const double hours = val(entry.left(length - 2));
        return hoursText(hours, twoDigitHours) + separator + entry.right(2);
    }
    if (length >= 1) {
        // One or two digits are minutes: 8 is 00:08.
        const QString minutes = format(entry, QStringLiteral("00"), RegionalSettings());
        return (twoDigitHours ? QStringLiteral("00") : QStringLiteral("0")) + separator + minutes;
    }
    return entry;
}

qsizetype separatorCount(const QString &text, const QString &separator)
{
    return separator.isEmpty() ? 0 : text.count(separator);
}

bool isValidTime(const QString &entry, const QString &separator, bool allowMoreThan24Hours)
{
    if (separatorCount(entry, separator) > 1 || entry.size() < 3)
        return false;
    const qint32 hours = roundToLong(val(entry.left(entry.size() - 3)));
    const qint32 minutes = roundToLong(val(entry.right(2)));
    if (hours < 0 || (hours >= hoursPerDay && !allowMoreThan24Hours))
        return false;
    return minutes >= 0 && minutes < minutesPerHour;
}

} // namespace

QString timeSeparatorOf(const QString &timeText)
{
    for (qsizetype at : { 2, 1 }) {
        if (at >= timeText.size())
            return QString();
        if (!isDigit(timeText.at(at)))
            return timeText.mid(at, 1);
    }
    return QString();
}

QString readTimeEntry(
    QString &entry, const QString &separator, const TimeEntryOptions &options, bool &refused)
{
    refused = false;
    entry = trimBlanks(entry);
    if (entry.isEmpty())
        return QString();
    entry = withSeparators(entry, separator);
    const qsizetype at = firstSeparatorAt(entry, separator);
    if (at > 0 && at != entry.size() - 2) {
        refused = true;
        return QString();
    }
    entry = normalised(entry, separator, options.twoDigitHours);
    if (!isValidTime(entry, separator, options.allowMoreThan24Hours)) {
        refused = true;
        return QString();
    }
    return entry;
}

} // namespace qor
