#pragma once

#include <QList>
#include <QMetaProperty>
#include <QString>

#include <functional>
#include <memory>

class QObject;

namespace qor {

class TypeLibrary;
struct PropertyInfo;

// A class the bridge creates objects of and calls by name: the library
// object (the default of every request) and the further creatable classes,
// chosen by the request's "object" field.
struct AutomationClass
{
    QString name;
    const TypeLibrary &(*typeLibrary)();
    std::function<std::unique_ptr<QObject>()> create;
    // The published properties with their meta-object property, in type
    // library order.
    QList<std::pair<const PropertyInfo *, QMetaProperty>> properties;

    // Every class, the library object first.
    static const QList<AutomationClass> &all();
    // The class of that name regardless of case; null when there is none.
    static const AutomationClass *find(const QString &name);
    static const AutomationClass &library() { return all().first(); }
    // Its place in all().
    qsizetype index() const;
};

} // namespace qor
