#include "runtime/regionalsettings.h"

#include <QLocale>

namespace qor {

namespace {

// The first character of a date or time pattern that is not a field letter.
QChar firstSeparator(const QString &pattern, const QString &fieldLetters, QChar fallback)
{
    for (QChar c : pattern) {
        if (!fieldLetters.contains(c) && c != QLatin1Char(' ') && c != QLatin1Char('\''))
            return c;
    }
    return fallback;
}

// Qt's short formats may use two-digit years; the library always shows four.
QString withFourDigitYear(QString pattern)
{
    if (!pattern.contains(QLatin1String("yyyy")))
        pattern.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return pattern;
}

// The long time notation without its time zone; notations with quoted words
// ("H 'h' mm 'min'") fall back to the short one with seconds added.
QString timePatternOf(const QLocale &locale, QChar separator)
{
    QString pattern = locale.timeFormat(QLocale::LongFormat);
    if (pattern.contains(QLatin1Char('\'')))
        return locale.timeFormat(QLocale::ShortFormat) + separator + QLatin1String("ss");
    pattern.remove(QLatin1Char('t'));
    pattern.replace(QLatin1String("  "), QLatin1String(" "));
    return pattern.trimmed();
}

} // namespace

RegionalSettings RegionalSettings::fromLocale(const QString &name)
{
    const QLocale locale(name);
    RegionalSettings rs;
    rs.localeName = locale.name();
    rs.decimalSeparator = locale.decimalPoint().at(0);
    rs.groupSeparator = locale.groupSeparator().isEmpty() ? QChar(QLatin1Char(' '))
                                                          : locale.groupSeparator().at(0);
    // A no-break space as grouping would never match what people type.
    if (rs.groupSeparator == QChar(0x00A0) || rs.groupSeparator == QChar(0x202F))
        rs.groupSeparator = QLatin1Char(' ');
    rs.shortDatePattern = withFourDigitYear(locale.dateFormat(QLocale::ShortFormat));
    rs.dateSeparator = firstSeparator(rs.shortDatePattern, QStringLiteral("dMy"), QLatin1Char('/'));
    rs.timeSeparator = firstSeparator(
        locale.timeFormat(QLocale::ShortFormat), QStringLiteral("hHmsaApP"), QLatin1Char(':'));
    rs.timePattern = timePatternOf(locale, rs.timeSeparator);
    return rs;
}

int RegionalSettings::expandYear(int twoDigitYear) const
{
    if (twoDigitYear >= 100 || twoDigitYear < 0)
        return twoDigitYear;
    const int century = (twoDigitYearMax / 100) * 100;
    const int year = century + twoDigitYear;
    return year > twoDigitYearMax ? year - 100 : year;
}

} // namespace qor
