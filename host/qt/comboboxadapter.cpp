#include "host/qt/comboboxadapter.h"

#include "platform/platform.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"

namespace qor {

ComboBoxAdapter::ComboBoxAdapter(QComboBox *combo, QObject *parent)
    : QObject(parent)
    , m_combo(combo)
{ }

QComboBox *ComboBoxAdapter::widget() const
{
    if (!m_combo)
        throw RuntimeError::objectNotSet();
    return m_combo.data();
}

QVariantList ComboBoxAdapter::list() const
{
    QVariantList entries;
    for (int i = 0; i < widget()->count(); ++i)
        entries.append(widget()->itemText(i));
    return entries;
}

QVariantList ComboBoxAdapter::itemData() const
{
    QVariantList numbers;
    for (int i = 0; i < widget()->count(); ++i)
        numbers.append(widget()->itemData(i).toInt());
    return numbers;
}

void ComboBoxAdapter::setItemData(const QVariantList &numbers)
{
    const RegionalSettings rs = platform().regionalSettings();
    for (int i = 0; i < widget()->count() && i < numbers.size(); ++i)
        widget()->setItemData(i, toLong(numbers.at(i), rs));
}

qint32 ComboBoxAdapter::listIndex() const
{
    return widget()->currentIndex();
}

void ComboBoxAdapter::setListIndex(qint32 index)
{
    if (index < -1 || index >= listCount())
        throw RuntimeError::invalidPropertyValue();
    widget()->setCurrentIndex(index);
}

qint32 ComboBoxAdapter::listCount() const
{
    return widget()->count();
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

void ComboBoxAdapter::Clear()
{
    widget()->clear();
    m_newIndex = -1;
}

void ComboBoxAdapter::AddItem(const QString &item)
{
    AddItem(item, listCount());
}

void ComboBoxAdapter::AddItem(const QString &item, qint32 index)
{
    if (index < 0 || index > listCount())
        throw RuntimeError::invalidProcedureCall();
    widget()->insertItem(index, item, 0);
    m_newIndex = index;
}

} // namespace qor
