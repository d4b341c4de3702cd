#pragma once

#include "qorgenlib_export.h"

#include <QCalendarWidget>
#include <QPointer>
#include <QStringList>
#include <QStyledItemDelegate>

namespace qor {

/// Paints the title row of a QCalendarWidget with titles of our own: seven
/// names beginning with Sunday, placed under the calendar's first day of the
/// week and its week-number column.
class QORGENLIB_WIDGETS_EXPORT WeekTitleDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    WeekTitleDelegate(QCalendarWidget *calendar, QObject *parent = nullptr);

    void setTitles(const QStringList &sundayFirst) { m_titles = sundayFirst; }
    /// The title of a weekday (1 Monday .. 7 Sunday), empty without titles.
    QString titleOf(int dayOfWeek) const;
    /// The weekday of a column of the title row, 0 for the week-number column.
    int dayOfColumn(int column) const;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;

private:
    QPointer<QCalendarWidget> m_calendar;
    QStringList m_titles;
};

} // namespace qor
