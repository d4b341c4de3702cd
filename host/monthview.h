#pragma once

#include "qorgenlib_export.h"

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
    qint32 m_backColor = qint32(0x8000000F);
    qint32 m_borderStyle = 1;
    qint32 m_day = 1;
    qint32 m_foreColor = qint32(0x80000012);
    qint32 m_monthBackColor = qint32(0x80000005);
    qint32 m_monthColumns = 1;
    qint32 m_monthRows = 1;
    qint32 m_titleForeColor = qint32(0x80000009);
    qint32 m_titleBackColor = qint32(0x80000002);
    qint32 m_trailingForeColor = qint32(0x80000011);
    bool m_showWeekNumbers = false;
    QVariant m_value;
    bool m_visible = true;
};

} // namespace qor
