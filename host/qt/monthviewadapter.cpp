#include "host/qt/monthviewadapter.h"

#include "platform/clock.h"
#include "runtime/conversion.h"

#include <QTextCharFormat>

namespace qor {

MonthViewAdapter::MonthViewAdapter(QCalendarWidget *calendar, QObject *parent)
    : WidgetAdapter(calendar, parent)
    , m_colours { qint32(0x8000000F), qint32(0x80000012), qint32(0x80000005), qint32(0x80000009),
        qint32(0x80000002), qint32(0x80000011) }
{ }

QCalendarWidget *MonthViewAdapter::calendar() const
{
    return static_cast<QCalendarWidget *>(widget());
}

void MonthViewAdapter::setColour(Colour which, qint32 colour)
{
    m_colours[which] = colour;
    applyColours();
}

// The title bar, the days and the background through a style sheet; the
// days of the neighbouring months keep the widget's own grey.
void MonthViewAdapter::applyColours()
{
    const auto name = [this](Colour which) { return colourOf(m_colours[which]).name(); };
    calendar()->setStyleSheet(
        QStringLiteral("QCalendarWidget { background-color: %1; border: %7; }"
                       "QCalendarWidget QWidget#qt_calendar_navigationbar { background-color: %2; }"
                       "QCalendarWidget QToolButton { color: %3; background-color: %2; }"
                       "QCalendarWidget QAbstractItemView { background-color: %4; color: %5; "
                       "selection-background-color: %2; selection-color: %3; }"
                       "QCalendarWidget QAbstractItemView:disabled { color: %6; }")
            .arg(name(Back), name(TitleBack), name(TitleFore), name(MonthBack), name(Fore),
                name(TrailingFore),
                m_borderStyle == 0 ? QStringLiteral("none") : QStringLiteral("1px solid black")));
}

void MonthViewAdapter::setBorderStyle(qint32 style)
{
    m_borderStyle = style;
    applyColours();
}

qint32 MonthViewAdapter::day() const
{
    return calendar()->selectedDate().day();
}

void MonthViewAdapter::setDay(qint32 day)
{
    const QDate chosen = calendar()->selectedDate();
    const QDate wanted(chosen.year(), chosen.month(), day);
    if (wanted.isValid())
        calendar()->setSelectedDate(wanted);
}

bool MonthViewAdapter::showWeekNumbers() const
{
    return calendar()->verticalHeaderFormat() == QCalendarWidget::ISOWeekNumbers;
}

void MonthViewAdapter::setShowWeekNumbers(bool show)
{
    calendar()->setVerticalHeaderFormat(
        show ? QCalendarWidget::ISOWeekNumbers : QCalendarWidget::NoVerticalHeader);
}

QVariant MonthViewAdapter::value() const
{
    return calendar()->selectedDate();
}

void MonthViewAdapter::setValue(const QVariant &value)
{
    const QDate date = toDate(value, Clock::current().regionalSettings()).date();
    calendar()->setSelectedDate(date);
    calendar()->setCurrentPage(date.year(), date.month());
}

} // namespace qor
