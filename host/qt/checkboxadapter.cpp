#include "host/qt/checkboxadapter.h"

#include "runtime/runtimeerror.h"

namespace qor {

CheckBoxAdapter::CheckBoxAdapter(QCheckBox *box, QObject *parent)
    : WidgetAdapter(box, parent)
    , m_box(box)
{ }

QCheckBox *CheckBoxAdapter::box() const
{
    if (!m_box)
        throw RuntimeError::objectNotSet();
    return m_box.data();
}

qint16 CheckBoxAdapter::value() const
{
    switch (box()->checkState()) {
    case Qt::Checked: return 1;
    case Qt::PartiallyChecked: return 2;
    default: return 0;
    }
}

void CheckBoxAdapter::setValue(qint16 value)
{
    if (value < 0 || value > 2)
        throw RuntimeError::invalidPropertyValue();
    if (value == 2)
        box()->setTristate(true);
    box()->setCheckState(value == 1 ? Qt::Checked
            : value == 2            ? Qt::PartiallyChecked
                                    : Qt::Unchecked);
}

QString CheckBoxAdapter::caption() const
{
    return box()->text();
}

void CheckBoxAdapter::setCaption(const QString &caption)
{
    box()->setText(caption);
}

} // namespace qor
