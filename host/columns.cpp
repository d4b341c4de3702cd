#include "host/columns.h"

#include "host/column.h"
#include "runtime/runtimeerror.h"

namespace qor {

Columns::Columns(QObject *parent)
    : ObjectCollection(parent)
{ }

QObject *Columns::Add(qint32 index)
{
    recordCall(QStringLiteral("Add"), { index });
    if (index < 0 || index > count())
        throw RuntimeError::subscriptOutOfRange();
    auto *column = new Column(parent() ? parent() : this);
    insertAt(index, column);
    return column;
}

void Columns::Remove(qint32 index)
{
    recordCall(QStringLiteral("Remove"), { index });
    if (index < 0 || index >= count())
        throw RuntimeError::subscriptOutOfRange();
    removeAt(index);
}

QString Columns::elementClass(const QString &) const
{
    return QStringLiteral("Column");
}

void Columns::renumber(qint32 from)
{
    for (qint32 i = from; i < count(); ++i) {
        if (QObject *column = at(i))
            column->setProperty("ColIndex", i);
    }
}

} // namespace qor
