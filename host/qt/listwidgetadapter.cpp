#include "host/qt/listwidgetadapter.h"

#include "runtime/runtimeerror.h"

namespace qor {

ListWidgetAdapter::ListWidgetAdapter(QListWidget *list, QObject *parent)
    : ListAdapter(list, parent)
    , m_list(list)
{ }

QListWidget *ListWidgetAdapter::widget() const
{
    if (!m_list)
        throw RuntimeError::objectNotSet();
    return m_list.data();
}

QString ListWidgetAdapter::text() const
{
    const QListWidgetItem *current = widget()->currentItem();
    return current ? current->text() : QString();
}

int ListWidgetAdapter::itemCount() const
{
    return widget()->count();
}

QString ListWidgetAdapter::itemText(int row) const
{
    return widget()->item(row)->text();
}

QVariant ListWidgetAdapter::itemNumber(int row) const
{
    return widget()->item(row)->data(Qt::UserRole);
}

void ListWidgetAdapter::setItemNumber(int row, qint32 number)
{
    widget()->item(row)->setData(Qt::UserRole, number);
}

int ListWidgetAdapter::currentRow() const
{
    return widget()->currentRow();
}

void ListWidgetAdapter::setCurrentRow(int row)
{
    widget()->setCurrentRow(row);
}

void ListWidgetAdapter::clearItems()
{
    widget()->clear();
}

void ListWidgetAdapter::insertItem(int row, const QString &text)
{
    auto *entry = new QListWidgetItem(text);
    entry->setData(Qt::UserRole, 0);
    widget()->insertItem(row, entry);
}

} // namespace qor
