#pragma once

#include "qorgenlib_export.h"

#include <QCalendarWidget>
#include <QDate>
#include <QObject>
#include <QPointer>
#include <QStringList>

namespace qor {

class WeekTitleDelegate;

/// Gives a QCalendarWidget the names of a host control's calendar: Holidays, a
/// comma-separated list of day/month pairs marked in every year shown, and
/// WeekTitles, seven short day names beginning with Sunday. Country ("BE" or
/// "LU") marks that country's public holidays of the year shown as well,
/// computed for any year. The adapter does not own the calendar.
class QORGENLIB_WIDGETS_EXPORT CalendarWidgetAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString Holidays READ holidays WRITE setHolidays)
    Q_PROPERTY(QString WeekTitles READ weekTitles WRITE setWeekTitles)
    Q_PROPERTY(QString Country READ country WRITE setCountry)

public:
    explicit CalendarWidgetAdapter(QCalendarWidget *calendar, QObject *parent = nullptr);

    QString holidays() const { return m_holidays; }
    void setHolidays(const QString &holidays);
    QString weekTitles() const { return m_weekTitles; }
    void setWeekTitles(const QString &titles);
    QString country() const { return m_country; }
    void setCountry(const QString &country);

    /// The days marked as holidays in a year.
    QList<QDate> holidaysIn(int year) const;
    /// The title shown above a weekday (1 Monday .. 7 Sunday); empty when the
    /// calendar keeps its own.
    QString titleOf(int dayOfWeek) const;

private:
    void markShownYears();

    QPointer<QCalendarWidget> m_calendar;
    WeekTitleDelegate *m_delegate = nullptr;
    QString m_holidays;
    QList<std::pair<int, int>> m_dayMonths;
    QString m_weekTitles;
    QString m_country;
    QList<QDate> m_marked;
};

} // namespace qor
