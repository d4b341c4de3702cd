#pragma once

#include <QObject>
#include <QVariant>

#include <memory>

namespace qor {

// Makes the value item a grid column's translation list takes: the item class
// of the ADO-bound grid when typeADO is true, else that of the classic grid.
// A host with its own grid classes installs its own factory.
class ValueItemFactory
{
public:
    virtual ~ValueItemFactory() = default;
    virtual std::unique_ptr<QObject> create(bool typeADO) const = 0;

    static const ValueItemFactory &current();
    // nullptr puts the library's own factory back.
    static void install(std::shared_ptr<const ValueItemFactory> factory);
};

// The library's own items: a stored value and the text shown for it.
class ValueItemObject : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QVariant Value MEMBER m_value)
    Q_PROPERTY(QVariant DisplayValue MEMBER m_displayValue)

public:
    using QObject::QObject;

private:
    QVariant m_value;
    QVariant m_displayValue;
};

// The item class of the classic grid.
class ClassicValueItem : public ValueItemObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "ValueItem")

public:
    using ValueItemObject::ValueItemObject;
};

// The item class of the ADO-bound grid.
class AdoValueItem : public ValueItemObject
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "AdoValueItem")

public:
    using ValueItemObject::ValueItemObject;
};

} // namespace qor
