#pragma once

#include "qorgenlib_export.h"

#include "host/controls/valueitems.h"

#include "host/objectcollection.h"

namespace qor {

/// A grid column's value translation list. Add keeps a copy of the item it is
/// given (its Value and DisplayValue), so one item object may be filled and
/// added again and again; Translate switches the translation on.
class QORGENLIB_EXPORT ValueItems : public ObjectCollection
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "ValueItems")
    Q_PROPERTY(bool Translate MEMBER m_translate)

public:
    explicit ValueItems(QObject *parent = nullptr);

    /// Records the class of the item added (ValueItem, AdoValueItem).
    Q_INVOKABLE void Add(QObject *item);
    Q_INVOKABLE void Remove(qint32 index);
    Q_INVOKABLE void Clear();

    QString elementClass(const QString &property) const override;

private:
    bool m_translate = controls::initial<bool>(controls::valueItems, "Translate");
};

} // namespace qor
