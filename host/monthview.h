#pragma once

#include "qorgenlib_export.h"

#include "host/controls/monthview.h"

#include "host/control.h"

#include <QVariant>

namespace qor {

/// A month-view calendar control: its colours, the months it shows, week
/// numbers and the chosen date.
class QORGENLIB_EXPORT MonthView : public Control
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "MonthView")
    Q_PROPERTY(qint32 BackColor MEMBER m_backColor)
    Q_PROPERTY(qint32 BorderStyle MEMBER m_borderStyle)
    Q_PROPERTY(qint32 Day MEMBER m_day)
    Q_PROPERTY(qint32 ForeColor MEMBER m_foreColor)
    Q_PROPERTY(qint32 MonthBackColor MEMBER m_monthBackColor)
    Q_PROPERTY(qint32 MonthColumns MEMBER m_monthColumns)
    Q_PROPERTY(qint32 MonthRows MEMBER m_monthRows)
    Q_PROPERTY(qint32 TitleForeColor MEMBER m_titleForeColor)
    Q_PROPERTY(qint32 TitleBackColor MEMBER m_titleBackColor)
    Q_PROPERTY(qint32 TrailingForeColor MEMBER m_trailingForeColor)
    Q_PROPERTY(bool ShowWeekNumbers MEMBER m_showWeekNumbers)
    Q_PROPERTY(QVariant Value MEMBER m_value)
    Q_PROPERTY(bool Visible MEMBER m_visible)

public:
    explicit MonthView(QObject *parent = nullptr);

private:
    qint32 m_backColor = controls::initial<qint32>(controls::monthView, "BackColor");
    qint32 m_borderStyle = controls::initial<qint32>(controls::monthView, "BorderStyle");
    qint32 m_day = controls::initial<qint32>(controls::monthView, "Day");
    qint32 m_foreColor = controls::initial<qint32>(controls::monthView, "ForeColor");
    qint32 m_monthBackColor = controls::initial<qint32>(controls::monthView, "MonthBackColor");
    qint32 m_monthColumns = controls::initial<qint32>(controls::monthView, "MonthColumns");
    qint32 m_monthRows = controls::initial<qint32>(controls::monthView, "MonthRows");
    qint32 m_titleForeColor = controls::initial<qint32>(controls::monthView, "TitleForeColor");
    qint32 m_titleBackColor = controls::initial<qint32>(controls::monthView, "TitleBackColor");
    qint32 m_trailingForeColor
        = controls::initial<qint32>(controls::monthView, "TrailingForeColor");
    bool m_showWeekNumbers = controls::initial<bool>(controls::monthView, "ShowWeekNumbers");
    QVariant m_value;
    bool m_visible = controls::initial<bool>(controls::monthView, "Visible");
};

} // namespace qor
