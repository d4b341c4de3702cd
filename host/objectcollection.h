#pragma once

#include "qorgenlib_export.h"

#include "host/hostobject.h"

#include <QList>
#include <QPointer>

namespace qor {

/// A host collection of objects, indexed from 0: Count, Item(index) and the
/// elements in index order. What it holds lives with the collection's owner.
class QORGENLIB_EXPORT ObjectCollection : public HostObject
{
    Q_OBJECT
    Q_PROPERTY(qint32 Count READ count)

public:
    explicit ObjectCollection(QObject *parent = nullptr);

    qint32 count() const { return qint32(m_items.size()); }
    /// 9 for an index outside the collection.
    Q_INVOKABLE QObject *Item(qint32 index) const;

    bool isCollection() const override { return true; }
    QVariantList elements() const override;
    /// Takes the objects of an array (or of another collection) as its elements;
    /// anything else raises 13.
    void setElements(const QVariant &elements);

protected:
    void insertAt(qint32 index, QObject *item);
    void removeAt(qint32 index);
    void clear();
    /// Lets a collection number its elements after a change from `from` on.
    virtual void renumber(qint32 from) { Q_UNUSED(from) }
    QObject *at(qint32 index) const { return m_items.at(index); }

private:
    QList<QPointer<QObject>> m_items;
};

} // namespace qor
