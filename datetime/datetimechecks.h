#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>

namespace qor {

// The date and time methods of the library object. Each takes the object's
// language offset, shows its reports through the extended message box and
// reads the clock and regional settings through the platform.

// A typed date in the short date notation, or "" (reported when mbox is set).
QString controleerDatum(QString &dt, bool allowFuture, bool mbox, qint32 offset);

// A typed time as hours, separator and minutes, or "" (reported when mbox is set).
QString controleerUur(
    QString &uur, bool mbox, bool allowMoreThan24Hours, bool returnHHMM, qint32 offset);
// A time as a query literal "#HH:mm#"; "" and a message when it is no time.
QString getTime(QString &uur, qint32 offset);

// The name of the weekday in the language of the offset.
QString getWeekDag(const QDateTime &xs, qint32 offset);
// The first and last day of the quarter; the zero date and a message when
// datum is no date.
QDateTime getQuarterStart(const QString &datum, qint32 offset);
QDateTime getQuarterEnd(const QString &datum, qint32 offset);

// Sets up a host date control: range, format, holidays and week titles of its
// Calendar. A blank country code becomes "BE" in the caller's variable.
void setDText(
    QObject *dText, QString &countryCode, bool valueToDay, bool maxDateToDay, qint32 offset);

} // namespace qor
