#pragma once

#include "qorgenlib_export.h"

#include "host/qt/widgetadapter.h"

#include <QDateEdit>
#include <QObject>
#include <QPointer>
#include <QVariant>

namespace qor {

class CalendarWidgetAdapter;

/// Gives a QDateEdit the names of a host date control: MinDate, MaxDate and
/// Value take a date or a date text in the regional settings, Format and
/// DisplayFormat a classic format text ("dd/mm/yyyy", where mm is the month),
/// and Calendar is the drop-down calendar with its holidays and week titles.
/// Text is the date as the field shows it; position and size are in twips as
/// for every placed control. The adapter does not own the field; it turns the calendar pop-up on.
class QORGENLIB_WIDGETS_EXPORT DateEditAdapter : public WidgetAdapter
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ text)
    Q_PROPERTY(QVariant MinDate READ minDate WRITE setMinDate)
    Q_PROPERTY(QVariant MaxDate READ maxDate WRITE setMaxDate)
    Q_PROPERTY(QVariant Value READ value WRITE setValue)
    Q_PROPERTY(QString Format READ format WRITE setFormat)
    Q_PROPERTY(QString DisplayFormat READ displayFormat WRITE setDisplayFormat)
    Q_PROPERTY(QObject *Calendar READ calendar)

public:
    explicit DateEditAdapter(QDateEdit *field, QObject *parent = nullptr);

    QDateEdit *field() const { return m_field; }

    QString text() const;
    QVariant minDate() const;
    void setMinDate(const QVariant &date);
    QVariant maxDate() const;
    void setMaxDate(const QVariant &date);
    QVariant value() const;
    void setValue(const QVariant &date);
    QString format() const { return m_format; }
    void setFormat(const QString &format);
    QString displayFormat() const { return m_displayFormat; }
    void setDisplayFormat(const QString &format);
    QObject *calendar() const;
    CalendarWidgetAdapter *calendarAdapter() const { return m_calendar; }

    /// A classic date format as a Qt display format: d and m/M are day and
    /// month, y the year; any other letter is shown as it is.
    static QString qtDisplayFormat(const QString &classic);

private:
    QPointer<QDateEdit> m_field;
    CalendarWidgetAdapter *m_calendar = nullptr;
    QString m_format;
    QString m_displayFormat;
};

} // namespace qor
