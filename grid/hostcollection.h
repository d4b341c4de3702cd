#pragma once

#include <QObject>
#include <QVariant>

namespace qor {

// A host collection as the library reaches it by name: an object with Count
// and Item(index) (and Add, Remove where the collection offers them), or a
// plain array of objects. Indices start at 0; an index outside the collection
// raises 9.
namespace hostcollection {

QVariant of(QObject *owner, const char *property);
qint32 count(const QVariant &collection);
QObject *item(const QVariant &collection, qint32 index);
// Every element in index order.
QList<QObject *> elements(const QVariant &collection);
// Add(index) and Remove(index) of a collection object (438 for an array).
void add(const QVariant &collection, qint32 index);
void remove(const QVariant &collection, qint32 index);

} // namespace hostcollection

} // namespace qor
