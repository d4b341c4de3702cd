#include "grid/hostcollection.h"

#include "platform/clock.h"
#include "runtime/callbyname.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

namespace qor::hostcollection {

namespace {

QObject *objectOf(const QVariant &v)
{
    if (!isObject(v))
        throw RuntimeError::objectRequired();
    QObject *object = v.value<QObject *>();
    if (!object)
        throw RuntimeError::objectNotSet();
    return object;
}

QVariantList arrayOf(const QVariant &collection)
{
    return collection.toList();
}

} // namespace

QVariant of(QObject *owner, const char *property)
{
    return getProperty(owner, property);
}

qint32 count(const QVariant &collection)
{
    if (isArray(collection))
        return qint32(arrayOf(collection).size());
    return toLong(getProperty(objectOf(collection), "Count"), Clock::current().regionalSettings());
}

QObject *item(const QVariant &collection, qint32 index)
{
    if (isArray(collection)) {
        const QVariantList elements = arrayOf(collection);
        if (index < 0 || index >= elements.size())
            throw RuntimeError::subscriptOutOfRange();
        return objectOf(elements.at(index));
    }
    return objectOf(
        callOperation(objectOf(collection), "Item", { QVariant::fromValue<qint32>(index) }));
}

QList<QObject *> elements(const QVariant &collection)
{
    QList<QObject *> all;
    const qint32 n = count(collection);
    for (qint32 i = 0; i < n; ++i)
        all.append(item(collection, i));
    return all;
}

void add(const QVariant &collection, qint32 index)
{
    if (isArray(collection))
        throw RuntimeError::notSupportedByObject();
    callOperation(objectOf(collection), "Add", { QVariant::fromValue<qint32>(index) });
}

void remove(const QVariant &collection, qint32 index)
{
    if (isArray(collection))
        throw RuntimeError::notSupportedByObject();
    callOperation(objectOf(collection), "Remove", { QVariant::fromValue<qint32>(index) });
}

} // namespace qor::hostcollection
