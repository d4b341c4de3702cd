#include "host/qt/listadapter.h"

#include "platform/clock.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"

namespace qor {

ListAdapter::ListAdapter(QWidget *widget, QObject *parent)
    : WidgetAdapter(widget, parent)
{ }

QVariantList ListAdapter::list() const
{
    QVariantList entries;
    for (int i = 0; i < itemCount(); ++i)
        entries.append(itemText(i));
    return entries;
}

QVariantList ListAdapter::itemData() const
{
    QVariantList numbers;
    for (int i = 0; i < itemCount(); ++i)
        numbers.append(itemNumber(i).toInt());
    return numbers;
}

void ListAdapter::setItemData(const QVariantList &numbers)
{
    const RegionalSettings rs = Clock::current().regionalSettings();
    for (int i = 0; i < itemCount() && i < numbers.size(); ++i)
        setItemNumber(i, toLong(numbers.at(i), rs));
}

qint32 ListAdapter::listIndex() const
{
    return currentRow();
}

void ListAdapter::setListIndex(qint32 index)
{
    if (index < -1 || index >= listCount())
        throw RuntimeError::invalidPropertyValue();
    setCurrentRow(index);
}

qint32 ListAdapter::listCount() const
{
    return itemCount();
}

void ListAdapter::Clear()
{
    clearItems();
    m_newIndex = -1;
}

void ListAdapter::AddItem(const QString &item)
{
    AddItem(item, listCount());
}

void ListAdapter::AddItem(const QString &item, qint32 index)
{
    if (index < 0 || index > listCount())
        throw RuntimeError::invalidProcedureCall();
    insertItem(index, item);
    m_newIndex = index;
}

} // namespace qor
