#include "host/qt/dateeditadapter.h"

#include "host/qt/calendarwidgetadapter.h"
#include "platform/clock.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"

namespace qor {

namespace {

QDateEdit *require(const QPointer<QDateEdit> &field)
{
    // A field that is gone behaves as an object that is no longer there.
    if (!field)
        throw RuntimeError::objectNotSet();
    return field.data();
}

QDate dateOf(const QVariant &value)
{
    return toDate(value, Clock::current().regionalSettings()).date();
}

QVariant dateValue(const QDate &date)
{
    return QDateTime(date, QTime(0, 0), Qt::UTC);
}

} // namespace

DateEditAdapter::DateEditAdapter(QDateEdit *field, QObject *parent)
    : WidgetAdapter(field, parent)
    , m_field(field)
{
    if (!field)
        return;
    field->setCalendarPopup(true);
    // Month names in the user's language; the week titles come from the library.
    field->setLocale(QLocale(Clock::current().regionalSettings().localeName));
    m_calendar = new CalendarWidgetAdapter(field->calendarWidget(), this);
}

QString DateEditAdapter::text() const
{
    return require(m_field)->text();
}

QVariant DateEditAdapter::minDate() const
{
    return dateValue(require(m_field)->minimumDate());
}
void DateEditAdapter::setMinDate(const QVariant &date)
{
    require(m_field)->setMinimumDate(dateOf(date));
}

QVariant DateEditAdapter::maxDate() const
{
    return dateValue(require(m_field)->maximumDate());
}
void DateEditAdapter::setMaxDate(const QVariant &date)
{
    require(m_field)->setMaximumDate(dateOf(date));
}

QVariant DateEditAdapter::value() const
{
    return dateValue(require(m_field)->date());
}
void DateEditAdapter::setValue(const QVariant &date)
{
    require(m_field)->setDate(dateOf(date));
}

void DateEditAdapter::setFormat(const QString &format)
{
    require(m_field)->setDisplayFormat(qtDisplayFormat(format));
    m_format = format;
}

void DateEditAdapter::setDisplayFormat(const QString &format)
{
    require(m_field)->setDisplayFormat(qtDisplayFormat(format));
    m_displayFormat = format;
}

QObject *DateEditAdapter::calendar() const
{
    require(m_field);
    return m_calendar;
}

QString DateEditAdapter::qtDisplayFormat(const QString &classic)
{
    QString result;
    for (const QChar c : classic) {
        const QChar lower = c.toLower();
        if (lower == QLatin1Char('d') || lower == QLatin1Char('y'))
            result.append(lower);
        else if (lower == QLatin1Char('m'))
            result.append(QLatin1Char('M'));
        else if (c == QLatin1Char('\''))
            result.append(QLatin1String("''"));
        else if (c.isLetter())
            result.append(QLatin1Char('\'') + QString(c) + QLatin1Char('\''));
        else
            result.append(c);
    }
    return result;
}

} // namespace qor
