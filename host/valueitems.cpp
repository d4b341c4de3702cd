#include "host/valueitems.h"

#include "host/valueitem.h"
#include "runtime/runtimeerror.h"

#include <QMetaClassInfo>

namespace qor {

namespace {

QString itemClass(const QObject *item)
{
    const QMetaObject *meta = item->metaObject();
    const int index = meta->indexOfClassInfo("HostClass");
    return index >= 0 ? QString::fromLatin1(meta->classInfo(index).value())
                      : QString::fromLatin1(meta->className());
}

} // namespace

ValueItems::ValueItems(QObject *parent)
    : ObjectCollection(parent)
{ }

void ValueItems::Add(QObject *item)
{
    if (!item)
        throw RuntimeError::objectNotSet();
    recordCall(QStringLiteral("Add"), { itemClass(item) });
    auto *copy = new ValueItem(parent() ? parent() : this);
    copy->assign(QStringLiteral("Value"), item->property("Value"));
    copy->assign(QStringLiteral("DisplayValue"), item->property("DisplayValue"));
    insertAt(count(), copy);
}

void ValueItems::Remove(qint32 index)
{
    recordCall(QStringLiteral("Remove"), { index });
    if (index < 0 || index >= count())
        throw RuntimeError::subscriptOutOfRange();
    removeAt(index);
}

void ValueItems::Clear()
{
    recordCall(QStringLiteral("Clear"));
    clear();
}

QString ValueItems::elementClass(const QString &) const
{
    return QStringLiteral("ValueItem");
}

} // namespace qor
