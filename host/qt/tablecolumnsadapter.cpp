#include "host/qt/tablecolumnsadapter.h"

#include "host/qt/tablecolumnadapter.h"
#include "host/qt/translationdelegate.h"
#include "runtime/runtimeerror.h"

#include <QAbstractItemModel>

namespace qor {

TableColumnsAdapter::TableColumnsAdapter(QTableView *view, QObject *parent)
    : QObject(parent)
    , m_view(view)
{ }

// The view's model may have been replaced or changed by the host since.
void TableColumnsAdapter::sync() const
{
    QTableView *table = view();
    const int columns = table->model()->columnCount();
    while (m_columns.size() > columns) {
        TableColumnAdapter *column = m_columns.takeLast();
        delete column->delegate();
        delete column;
    }
    while (m_columns.size() < columns)
        m_columns.append(new TableColumnAdapter(
            table, qint32(m_columns.size()), const_cast<TableColumnsAdapter *>(this)));
}

QTableView *TableColumnsAdapter::view() const
{
    if (!m_view || !m_view->model())
        throw RuntimeError::objectNotSet();
    return m_view.data();
}

qint32 TableColumnsAdapter::count() const
{
    sync();
    return qint32(m_columns.size());
}

QObject *TableColumnsAdapter::Add(qint32 index)
{
    if (index < 0 || index > count())
        throw RuntimeError::subscriptOutOfRange();
    sync();
    if (!view()->model()->insertColumn(index))
        throw RuntimeError::notSupportedByObject();
    auto *column = new TableColumnAdapter(view(), index, this);
    m_columns.insert(index, column);
    renumber(index + 1);
    return column;
}

void TableColumnsAdapter::Remove(qint32 index)
{
    if (index < 0 || index >= count())
        throw RuntimeError::subscriptOutOfRange();
    if (!view()->model()->removeColumn(index))
        throw RuntimeError::notSupportedByObject();
    TableColumnAdapter *column = m_columns.takeAt(index);
    view()->setItemDelegateForColumn(index, nullptr);
    delete column->delegate();
    delete column;
    renumber(index);
    view()->setItemDelegateForColumn(count(), nullptr);
}

QObject *TableColumnsAdapter::Item(qint32 index) const
{
    if (index < 0 || index >= count())
        throw RuntimeError::subscriptOutOfRange();
    return m_columns.at(index);
}

void TableColumnsAdapter::renumber(qint32 from)
{
    for (qint32 i = from; i < count(); ++i)
        m_columns.at(i)->setIndex(i);
}

} // namespace qor
