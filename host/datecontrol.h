#pragma once

#include "qorgenlib_export.h"

#include "host/hostobject.h"

namespace qor {

/// The host's date entry control. The range and value take a date or a date
/// text, the formats a format text; Calendar is its drop-down calendar.
class QORGENLIB_EXPORT DateControl : public HostObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "DateControl")
    Q_PROPERTY(QVariant MinDate MEMBER m_minDate)
    Q_PROPERTY(QVariant MaxDate MEMBER m_maxDate)
    Q_PROPERTY(QVariant Value MEMBER m_value)
    Q_PROPERTY(QString Format MEMBER m_format)
    Q_PROPERTY(QString DisplayFormat MEMBER m_displayFormat)
    Q_PROPERTY(QObject *Calendar MEMBER m_calendar)

public:
    explicit DateControl(QObject *parent = nullptr);

    QString elementClass(const QString &property) const override;

private:
    QVariant m_minDate;
    QVariant m_maxDate;
    QVariant m_value;
    QString m_format;
    QString m_displayFormat;
    QObject *m_calendar = nullptr;
};

} // namespace qor
