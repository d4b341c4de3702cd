#include "host/qt/formadapter.h"

#include "host/qt/checkboxadapter.h"
#include "host/qt/comboboxadapter.h"
#include "host/qt/dateeditadapter.h"
#include "host/qt/lineeditadapter.h"
#include "host/qt/spinboxadapter.h"
#include "runtime/runtimeerror.h"

namespace qor {

namespace {

constexpr char TagProperty[] = "qorTag";

// The line edit inside a combo box or spin box is part of that control.
bool partOfAnother(const QWidget *widget)
{
    for (const QObject *up = widget->parent(); up; up = up->parent()) {
        if (qobject_cast<const QComboBox *>(up) || qobject_cast<const QAbstractSpinBox *>(up))
            return true;
    }
    return false;
}

QObject *makeAdapter(QWidget *widget, QObject *parent)
{
    if (auto *field = qobject_cast<QLineEdit *>(widget))
        return new LineEditAdapter(field, parent);
    if (auto *combo = qobject_cast<QComboBox *>(widget))
        return new ComboBoxAdapter(combo, parent);
    if (auto *box = qobject_cast<QCheckBox *>(widget))
        return new CheckBoxAdapter(box, parent);
    if (auto *date = qobject_cast<QDateEdit *>(widget))
        return new DateEditAdapter(date, parent);
    if (auto *spin = qobject_cast<QAbstractSpinBox *>(widget))
        return new SpinBoxAdapter(spin, parent);
    return nullptr;
}

} // namespace

FormAdapter::FormAdapter(QWidget *form, QObject *parent)
    : QObject(parent)
    , m_form(form)
{ }

QWidget *FormAdapter::form() const
{
    if (!m_form)
        throw RuntimeError::objectNotSet();
    return m_form.data();
}

QString FormAdapter::tag() const
{
    return form()->property(TagProperty).toString();
}

void FormAdapter::setTag(const QString &tag)
{
    form()->setProperty(TagProperty, tag);
}

QString FormAdapter::caption() const
{
    return form()->windowTitle();
}

void FormAdapter::setCaption(const QString &caption)
{
    form()->setWindowTitle(caption);
}

QObject *FormAdapter::adapterFor(QWidget *widget)
{
    QPointer<QObject> &adapter = m_adapters[widget];
    if (!adapter)
        adapter = makeAdapter(widget, this);
    return adapter;
}

QVariantList FormAdapter::controls()
{
    QVariantList all;
    for (QWidget *widget : form()->findChildren<QWidget *>()) {
        if (partOfAnother(widget))
            continue;
        if (QObject *adapter = adapterFor(widget))
            all.append(QVariant::fromValue(adapter));
    }
    return all;
}

} // namespace qor
