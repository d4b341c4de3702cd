#include "host/qt/comboboxadapter.h"

#include "runtime/runtimeerror.h"

namespace qor {

ComboBoxAdapter::ComboBoxAdapter(QComboBox *combo, QObject *parent)
    : ListAdapter(combo, parent)
    , m_combo(combo)
{ }

QComboBox *ComboBoxAdapter::widget() const
{
    if (!m_combo)
        throw RuntimeError::objectNotSet();
    return m_combo.data();
}

QString ComboBoxAdapter::text() const
{
    return widget()->currentText();
}

void ComboBoxAdapter::setText(const QString &text)
{
    if (widget()->isEditable())
        widget()->setEditText(text);
    else
        widget()->setCurrentIndex(widget()->findText(text));
}

int ComboBoxAdapter::itemCount() const
{
    return widget()->count();
}

QString ComboBoxAdapter::itemText(int row) const
{
    return widget()->itemText(row);
}

QVariant ComboBoxAdapter::itemNumber(int row) const
{
    return widget()->itemData(row);
}

void ComboBoxAdapter::setItemNumber(int row, qint32 number)
{
    widget()->setItemData(row, number);
}

int ComboBoxAdapter::currentRow() const
{
    return widget()->currentIndex();
}

void ComboBoxAdapter::setCurrentRow(int row)
{
    widget()->setCurrentIndex(row);
}

void ComboBoxAdapter::clearItems()
{
    widget()->clear();
}

void ComboBoxAdapter::insertItem(int row, const QString &text)
{
    widget()->insertItem(row, text, 0);
}

} // namespace qor
