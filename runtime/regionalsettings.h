#pragma once

#include "qorgenlib_export.h"

#include <QChar>
#include <QString>

namespace qor {

/// The user's regional settings as the library reads them: separators, the short
/// date notation and the window that places two-digit years in a century.
struct QORGENLIB_EXPORT RegionalSettings
{
    QString localeName; // e.g. "nl_BE"
    QChar decimalSeparator = QLatin1Char('.');
    QChar groupSeparator = QLatin1Char(',');
    QChar dateSeparator = QLatin1Char('/');
    QChar timeSeparator = QLatin1Char(':');
    /// Short date notation as a pattern of d, M and y with the date separator,
    /// e.g. "dd/MM/yyyy" for nl_BE or "M/d/yyyy" for en_US.
    QString shortDatePattern = QStringLiteral("M/d/yyyy");
    /// Long time notation, e.g. "HH:mm:ss" or "h:mm:ss AP".
    QString timePattern = QStringLiteral("HH:mm:ss");
    /// Two-digit years 00..(twoDigitYearMax % 100) fall in the century of
    /// twoDigitYearMax, the others in the century before it.
    int twoDigitYearMax = 2029;

    /// Settings of a named locale, built through QLocale.
    static RegionalSettings fromLocale(const QString &name);

    /// Places a year typed with one or two digits in its century.
    int expandYear(int twoDigitYear) const;
};

} // namespace qor
