#pragma once

#include "qorgenlib_export.h"

#include "host/objectcollection.h"

namespace qor {

/// A grid's columns: Add(index) inserts a new column there (0 to Count),
/// Remove(index) drops one; each column's ColIndex follows its place.
class QORGENLIB_EXPORT Columns : public ObjectCollection
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "Columns")

public:
    explicit Columns(QObject *parent = nullptr);

    Q_INVOKABLE QObject *Add(qint32 index);
    Q_INVOKABLE void Remove(qint32 index);

    QString elementClass(const QString &property) const override;

protected:
    void renumber(qint32 from) override;
};

} // namespace qor
