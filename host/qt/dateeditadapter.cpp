#include "host/qt/dateeditadapter.h"

#include "platform/platform.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"

namespace qor {

DateEditAdapter::DateEditAdapter(QDateTimeEdit *edit, QObject *parent)
    : QObject(parent)
    , m_edit(edit)
{ }

QDateTimeEdit *DateEditAdapter::edit() const
{
    if (!m_edit)
        throw RuntimeError::objectNotSet();
    return m_edit.data();
}

QString DateEditAdapter::text() const
{
    return edit()->text();
}

QVariant DateEditAdapter::value() const
{
    const QDateTime shown = edit()->dateTime();
    return QDateTime(shown.date(), shown.time(), Qt::UTC);
}

void DateEditAdapter::setValue(const QVariant &value)
{
    const QDateTime date = toDate(value, platform().regionalSettings());
    edit()->setDateTime(QDateTime(date.date(), date.time()));
}

} // namespace qor
