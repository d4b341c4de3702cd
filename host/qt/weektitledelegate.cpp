#include "host/qt/weektitledelegate.h"

namespace qor {

namespace {

constexpr int daysPerWeek = 7;

} // namespace

WeekTitleDelegate::WeekTitleDelegate(QCalendarWidget *calendar, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_calendar(calendar)
{ }

QString WeekTitleDelegate::titleOf(int dayOfWeek) const
{
    if (m_titles.size() != daysPerWeek || dayOfWeek < 1 || dayOfWeek > daysPerWeek)
        return QString();
    return m_titles.at(dayOfWeek % daysPerWeek); // Sunday (7) is the first title
}

int WeekTitleDelegate::dayOfColumn(int column) const
{
    if (!m_calendar)
        return 0;
    const bool weekNumbers = m_calendar->verticalHeaderFormat() == QCalendarWidget::ISOWeekNumbers;
    const int dayColumn = column - (weekNumbers ? 1 : 0);
    if (dayColumn < 0 || dayColumn >= daysPerWeek)
        return 0;
    return (int(m_calendar->firstDayOfWeek()) - 1 + dayColumn) % daysPerWeek + 1;
}

void WeekTitleDelegate::initStyleOption(
    QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    const QString title = titleOf(dayOfColumn(index.column()));
    if (!title.isEmpty())
        option->text = title;
}

} // namespace qor
