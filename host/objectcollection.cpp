#include "host/objectcollection.h"

#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

namespace qor {

ObjectCollection::ObjectCollection(QObject *parent)
    : HostObject(parent)
{ }

QObject *ObjectCollection::Item(qint32 index) const
{
    if (index < 0 || index >= count())
        throw RuntimeError::subscriptOutOfRange();
    return m_items.at(index);
}

QVariantList ObjectCollection::elements() const
{
    QVariantList all;
    all.reserve(m_items.size());
    for (const QPointer<QObject> &item : m_items)
        all.append(QVariant::fromValue<QObject *>(item.data()));
    return all;
}

void ObjectCollection::setElements(const QVariant &elements)
{
    QVariantList list;
    if (auto *other = qobject_cast<HostObject *>(elements.value<QObject *>());
        other && other->isCollection())
        list = other->elements();
    else if (isArray(elements))
        list = elements.toList();
    else if (!isEmpty(elements))
        throw RuntimeError::typeMismatch();
    QList<QPointer<QObject>> items;
    for (const QVariant &element : list) {
        if (!isObject(element) || !element.value<QObject *>())
            throw RuntimeError::typeMismatch();
        items.append(element.value<QObject *>());
    }
    m_items = items;
    renumber(0);
}

void ObjectCollection::insertAt(qint32 index, QObject *item)
{
    m_items.insert(index, item);
    renumber(index);
}

void ObjectCollection::removeAt(qint32 index)
{
    QObject *item = m_items.takeAt(index);
    if (item && (item->parent() == this || item->parent() == parent()))
        delete item;
    renumber(index);
}

void ObjectCollection::clear()
{
    while (count() > 0)
        removeAt(count() - 1);
}

} // namespace qor
