#pragma once

#include "qorgenlib_export.h"

#include "host/hostobject.h"

namespace qor {

/// One entry of a grid column's value translation: the stored value and the text shown for it.
class QORGENLIB_EXPORT ValueItem : public HostObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "ValueItem")
    Q_PROPERTY(QVariant Value MEMBER m_value)
    Q_PROPERTY(QVariant DisplayValue MEMBER m_displayValue)

public:
    explicit ValueItem(QObject *parent = nullptr);

private:
    QVariant m_value;
    QVariant m_displayValue;
};

} // namespace qor
