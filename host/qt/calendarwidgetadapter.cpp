#include "host/qt/calendarwidgetadapter.h"

#include "datetime/publicholidays.h"
#include "host/qt/weektitledelegate.h"

#include <QTableView>
#include <QTextCharFormat>

namespace qor {

namespace {

constexpr int daysPerWeek = 7;

QTextCharFormat holidayFormat()
{
    QTextCharFormat format;
    format.setForeground(QColor(Qt::red));
    format.setFontWeight(QFont::Bold);
    format.setBackground(QColor(255, 224, 224));
    return format;
}

// "dd/mm" pairs; anything that is no day of some month is passed over.
QList<std::pair<int, int>> dayMonthsOf(const QString &text)
{
    QList<std::pair<int, int>> pairs;
    for (const QString &item : text.split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const QStringList parts = item.trimmed().split(QLatin1Char('/'));
        if (parts.size() != 2)
            continue;
        bool dayOk = false;
        bool monthOk = false;
        const int day = parts.at(0).toInt(&dayOk);
        const int month = parts.at(1).toInt(&monthOk);
        // 2000 is a leap year, so 29/02 counts.
        if (dayOk && monthOk && QDate(2000, month, 1).isValid() && day >= 1
            && day <= QDate(2000, month, 1).daysInMonth())
            pairs.append({ day, month });
    }
    return pairs;
}

} // namespace

CalendarWidgetAdapter::CalendarWidgetAdapter(QCalendarWidget *calendar, QObject *parent)
    : QObject(parent)
    , m_calendar(calendar)
{
    if (!calendar)
        return;
    m_delegate = new WeekTitleDelegate(calendar, this);
    connect(calendar, &QCalendarWidget::currentPageChanged, this,
        &CalendarWidgetAdapter::markShownYears);
}

void CalendarWidgetAdapter::setHolidays(const QString &holidays)
{
    m_holidays = holidays;
    m_dayMonths = dayMonthsOf(holidays);
    markShownYears();
}

void CalendarWidgetAdapter::setWeekTitles(const QString &titles)
{
    m_weekTitles = titles;
    const QStringList names = titles.split(QLatin1Char(','));
    if (!m_calendar || !m_delegate)
        return;
    auto *view = m_calendar->findChild<QTableView *>(QStringLiteral("qt_calendar_calendarview"));
    if (!view)
        return;
    m_delegate->setTitles(names.size() == daysPerWeek ? names : QStringList());
    view->setItemDelegateForRow(0, m_delegate);
    view->viewport()->update();
}

void CalendarWidgetAdapter::setCountry(const QString &country)
{
    m_country = country;
    markShownYears();
}

QList<QDate> CalendarWidgetAdapter::holidaysIn(int year) const
{
    QList<QDate> dates;
    for (const auto &[day, month] : m_dayMonths) {
        const QDate date(year, month, day);
        if (date.isValid())
            dates.append(date);
    }
    for (const PublicHoliday &holiday : publicHolidays(year, m_country))
        dates.append(holiday.date);
    return dates;
}

QString CalendarWidgetAdapter::titleOf(int dayOfWeek) const
{
    return m_delegate ? m_delegate->titleOf(dayOfWeek) : QString();
}

void CalendarWidgetAdapter::markShownYears()
{
    if (!m_calendar)
        return;
    for (const QDate &date : std::as_const(m_marked))
        m_calendar->setDateTextFormat(date, QTextCharFormat());
    m_marked.clear();
    // The page shows a few days of the months around it.
    const int year = m_calendar->yearShown();
    for (int y : { year - 1, year, year + 1 })
        m_marked.append(holidaysIn(y));
    for (const QDate &date : std::as_const(m_marked))
        m_calendar->setDateTextFormat(date, holidayFormat());
}

} // namespace qor
