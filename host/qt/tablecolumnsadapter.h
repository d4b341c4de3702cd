#pragma once

#include "qorgenlib_export.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QTableView>

namespace qor {

class TableColumnAdapter;

/// The Columns collection of a QTableView: Add(index) inserts a model column
/// there, Remove(index) takes one out, Item(index) gives the column, Count
/// how many there are. The view's model must allow inserting and removing columns.
class QORGENLIB_WIDGETS_EXPORT TableColumnsAdapter : public QObject
{
    Q_OBJECT
    Q_PROPERTY(qint32 Count READ count)

public:
    explicit TableColumnsAdapter(QTableView *view, QObject *parent = nullptr);

    qint32 count() const;
    Q_INVOKABLE QObject *Add(qint32 index);
    Q_INVOKABLE void Remove(qint32 index);
    Q_INVOKABLE QObject *Item(qint32 index) const;

private:
    QTableView *view() const;
    void renumber(qint32 from);
    void sync() const;

    QPointer<QTableView> m_view;
    mutable QList<TableColumnAdapter *> m_columns;
};

} // namespace qor
