#include "host/qt/listwidgetadapter.h"

#include "platform/platform.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"

namespace qor {

ListWidgetAdapter::ListWidgetAdapter(QListWidget *list, QObject *parent)
    : QObject(parent)
    , m_list(list)
{ }

QListWidget *ListWidgetAdapter::widget() const
{
    if (!m_list)
        throw RuntimeError::objectNotSet();
    return m_list.data();
}

QVariantList ListWidgetAdapter::list() const
{
    QVariantList entries;
    for (int i = 0; i < widget()->count(); ++i)
        entries.append(widget()->item(i)->text());
    return entries;
}

QVariantList ListWidgetAdapter::itemData() const
{
    QVariantList numbers;
    for (int i = 0; i < widget()->count(); ++i)
        numbers.append(widget()->item(i)->data(Qt::UserRole).toInt());
    return numbers;
}

void ListWidgetAdapter::setItemData(const QVariantList &numbers)
{
    const RegionalSettings rs = platform().regionalSettings();
    for (int i = 0; i < widget()->count() && i < numbers.size(); ++i)
        widget()->item(i)->setData(Qt::UserRole, toLong(numbers.at(i), rs));
}

qint32 ListWidgetAdapter::listIndex() const
{
    return widget()->currentRow();
}

void ListWidgetAdapter::setListIndex(qint32 index)
{
    if (index < -1 || index >= listCount())
        throw RuntimeError::invalidPropertyValue();
    widget()->setCurrentRow(index);
}

qint32 ListWidgetAdapter::listCount() const
{
    return widget()->count();
}

QString ListWidgetAdapter::text() const
{
    const QListWidgetItem *current = widget()->currentItem();
    return current ? current->text() : QString();
}

void ListWidgetAdapter::Clear()
{
    widget()->clear();
    m_newIndex = -1;
}

void ListWidgetAdapter::AddItem(const QString &item)
{
    AddItem(item, listCount());
}

void ListWidgetAdapter::AddItem(const QString &item, qint32 index)
{
    if (index < 0 || index > listCount())
        throw RuntimeError::invalidProcedureCall();
    auto *entry = new QListWidgetItem(item);
    entry->setData(Qt::UserRole, 0);
    widget()->insertItem(index, entry);
    m_newIndex = index;
}

} // namespace qor
