#include "host/qt/spinboxadapter.h"

#include "platform/clock.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"

#include <QDoubleSpinBox>
#include <QSpinBox>

namespace qor {

SpinBoxAdapter::SpinBoxAdapter(QAbstractSpinBox *box, QObject *parent)
    : WidgetAdapter(box, parent)
    , m_box(box)
{ }

QAbstractSpinBox *SpinBoxAdapter::box() const
{
    if (!m_box)
        throw RuntimeError::objectNotSet();
    return m_box.data();
}

QString SpinBoxAdapter::text() const
{
    // Built from the value: the box's own text stays empty until it is first shown.
    if (auto *whole = qobject_cast<QSpinBox *>(box())) {
        QString digits = whole->locale().toString(whole->value());
        if (!whole->isGroupSeparatorShown())
            digits.remove(whole->locale().groupSeparator());
        return whole->prefix() + digits + whole->suffix();
    }
    if (auto *fraction = qobject_cast<QDoubleSpinBox *>(box()))
        return fraction->prefix() + fraction->textFromValue(fraction->value()) + fraction->suffix();
    return box()->text();
}

QVariant SpinBoxAdapter::value() const
{
    if (auto *whole = qobject_cast<QSpinBox *>(box()))
        return qint32(whole->value());
    if (auto *fraction = qobject_cast<QDoubleSpinBox *>(box()))
        return fraction->value();
    throw RuntimeError::notSupportedByObject();
}

void SpinBoxAdapter::setValue(const QVariant &value)
{
    const RegionalSettings rs = Clock::current().regionalSettings();
    if (auto *whole = qobject_cast<QSpinBox *>(box()))
        whole->setValue(toLong(value, rs));
    else if (auto *fraction = qobject_cast<QDoubleSpinBox *>(box()))
        fraction->setValue(toDouble(value, rs));
    else
        throw RuntimeError::notSupportedByObject();
}

} // namespace qor
