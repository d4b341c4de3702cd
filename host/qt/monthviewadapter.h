#pragma once

#include "qorgenlib_export.h"

#include "host/controls/monthview.h"

#include "host/qt/widgetadapter.h"

#include <QCalendarWidget>
#include <QVariant>

namespace qor {

/// A month view on a real form, a QCalendarWidget: its colours, week numbers
/// and chosen date. The widget always shows one month: MonthColumns and
/// MonthRows are kept but change nothing; Day is the day of the chosen date.
class QORGENLIB_WIDGETS_EXPORT MonthViewAdapter : public WidgetAdapter
{
    Q_OBJECT
    Q_PROPERTY(qint32 BackColor READ backColor WRITE setBackColor)
    Q_PROPERTY(qint32 BorderStyle READ borderStyle WRITE setBorderStyle)
    Q_PROPERTY(qint32 Day READ day WRITE setDay)
    Q_PROPERTY(qint32 ForeColor READ foreColor WRITE setForeColor)
    Q_PROPERTY(qint32 MonthBackColor READ monthBackColor WRITE setMonthBackColor)
    Q_PROPERTY(qint32 MonthColumns MEMBER m_monthColumns)
    Q_PROPERTY(qint32 MonthRows MEMBER m_monthRows)
    Q_PROPERTY(qint32 TitleForeColor READ titleForeColor WRITE setTitleForeColor)
    Q_PROPERTY(qint32 TitleBackColor READ titleBackColor WRITE setTitleBackColor)
    Q_PROPERTY(qint32 TrailingForeColor READ trailingForeColor WRITE setTrailingForeColor)
    Q_PROPERTY(bool ShowWeekNumbers READ showWeekNumbers WRITE setShowWeekNumbers)
    Q_PROPERTY(QVariant Value READ value WRITE setValue)

public:
    explicit MonthViewAdapter(QCalendarWidget *calendar, QObject *parent = nullptr);

    qint32 backColor() const { return m_colours[Back]; }
    void setBackColor(qint32 colour) { setColour(Back, colour); }
    qint32 borderStyle() const { return m_borderStyle; }
    void setBorderStyle(qint32 style);
    qint32 day() const;
    void setDay(qint32 day);
    qint32 foreColor() const { return m_colours[Fore]; }
    void setForeColor(qint32 colour) { setColour(Fore, colour); }
    qint32 monthBackColor() const { return m_colours[MonthBack]; }
    void setMonthBackColor(qint32 colour) { setColour(MonthBack, colour); }
    qint32 titleForeColor() const { return m_colours[TitleFore]; }
    void setTitleForeColor(qint32 colour) { setColour(TitleFore, colour); }
    qint32 titleBackColor() const { return m_colours[TitleBack]; }
    void setTitleBackColor(qint32 colour) { setColour(TitleBack, colour); }
    qint32 trailingForeColor() const { return m_colours[TrailingFore]; }
    void setTrailingForeColor(qint32 colour) { setColour(TrailingFore, colour); }
    bool showWeekNumbers() const;
    void setShowWeekNumbers(bool show);
    QVariant value() const;
    void setValue(const QVariant &value);

private:
    enum Colour { Back, Fore, MonthBack, TitleFore, TitleBack, TrailingFore, ColourCount };
    QCalendarWidget *calendar() const;
    void setColour(Colour which, qint32 colour);
    void applyColours();

    qint32 m_colours[ColourCount];
    qint32 m_borderStyle = controls::initial<qint32>(controls::monthView, "BorderStyle");
    qint32 m_monthColumns = controls::initial<qint32>(controls::monthView, "MonthColumns");
    qint32 m_monthRows = controls::initial<qint32>(controls::monthView, "MonthRows");
};

} // namespace qor
