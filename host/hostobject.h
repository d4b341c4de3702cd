#pragma once

#include "qorgenlib_export.h"
#include "runtime/propertybag.h"

#include <QObject>
#include <QStringList>
#include <QVariant>
#include <QVariantList>

namespace qor {

/// A model host control: a property bag with named operations, reached by name
/// the way the library reaches a host's real controls. Declared properties keep
/// their type; any other property a caller assigns is kept as given. Every
/// operation called on the object is recorded, in order, so that a caller can
/// see what the library did to it.
///
/// Used on its own it is the class "Object": a bag with no declared properties.
class QORGENLIB_EXPORT HostObject : public QObject, public PropertyBag
{
    Q_OBJECT
    Q_CLASSINFO("HostClass", "Object")

public:
    explicit HostObject(QObject *parent = nullptr);

    /// The class name callers use ("TextBox", "Column", ...).
    QString className() const;

    /// Declared properties in declaration order, then the others in the order
    /// they were first assigned.
    QStringList propertyNames() const;
    /// The declared ones alone.
    QStringList declaredNames() const;
    /// The name the object knows a property by, matched regardless of case; empty when unknown.
    QString resolveName(const QString &name) const;
    bool isDeclared(const QString &name) const;
    bool isWritable(const QString &name) const;

    QVariant value(const QString &name) const;
    /// A declared property converts the value to its type as an automation call
    /// does (RuntimeError 13 or 6 when it cannot, 383 when it is read-only); any
    /// other name becomes a property of its own.
    void assign(const QString &name, const QVariant &value);

    /// The operations called so far: maps with "name" and "args".
    QVariantList calls() const { return m_calls; }

    /// The class of an object made for `property` when the caller names none
    /// (a column of a grid's Columns); empty when the property holds no objects.
    virtual QString elementClass(const QString &property) const;

    /// A collection (a grid's Columns, a column's ValueItems) shows itself to
    /// callers that read its owner as data, such as the bridge, as the array
    /// of its elements.
    virtual bool isCollection() const { return false; }
    virtual QVariantList elements() const { return {}; }

protected:
    void recordCall(const QString &name, const QVariantList &args = {});

private:
    /// The meta-object index of a property spelled exactly `name`, or -1.
    int exactIndex(const QString &name) const;

    QVariantList m_calls;
};

} // namespace qor
