#pragma once

#include "qorgenlib_export.h"

#include "host/hostobject.h"

namespace qor {

/// The drop-down calendar of a date control: the holidays it marks (day/month
/// pairs separated by commas) and the titles of its seven week days.
class QORGENLIB_EXPORT Calendar : public HostObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "Calendar")
    Q_PROPERTY(QString Holidays MEMBER m_holidays)
    Q_PROPERTY(QString WeekTitles MEMBER m_weekTitles)

public:
    explicit Calendar(QObject *parent = nullptr);

private:
    QString m_holidays;
    QString m_weekTitles;
};

} // namespace qor
