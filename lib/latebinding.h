#pragma once

#include "lib/typelibrary.h"
#include "runtime/regionalsettings.h"

#include <QObject>
#include <QVariantList>

namespace qor {

// Calls a method or property of an automation object by name, as a late-bound
// host does: the name regardless of case, trailing optional arguments left out
// (or passed as missingVariant()), each argument coerced to the declared type,
// and by-reference arguments written back into the argument list. A property
// name reads with no argument and assigns with one.
//
// Errors: 438 for an unknown name, 450 for too many arguments, 449 for a left
// out argument that is not optional, 13 for an argument that does not convert,
// and whatever run-time error the call itself raises.
class LateBinding
{
public:
    LateBinding(QObject *object, const TypeLibrary &library);

    QVariant invoke(const QString &name, QVariantList &args) const;

private:
    QVariant callMethod(const MethodInfo &method, QVariantList &args) const;
    QVariant accessProperty(const PropertyInfo &property, QVariantList &args) const;

    QObject *m_object;
    const TypeLibrary &m_library;
};

} // namespace qor
