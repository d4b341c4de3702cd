#pragma once

#include "runtime/regionalsettings.h"

#include <QObject>
#include <QVariant>
#include <QVariantList>

namespace qor {

// Late-bound access to a host object by property and operation name, as an
// automation call makes it: a property the object lacks raises 438, a missing
// object 91. Names match exactly first, then regardless of case. An object that
// is a PropertyBag keeps its undeclared properties there.
QVariant getProperty(QObject *object, const char *name);
// A declared property takes the value converted as an automation call converts
// it (see coerceTo); 383 when it is read-only.
void setProperty(
    QObject *object, const char *name, const QVariant &value, const RegionalSettings &rs);
bool hasProperty(QObject *object, const char *name);
// The name under which the object knows a property, or an empty array.
QByteArray propertyNameOf(QObject *object, const char *name);
// Calls a named operation (an invokable method) with up to four arguments, each
// converted to its declared type as setProperty converts a value (coerceTo).
QVariant callOperation(QObject *object, const char *name, const QVariantList &args = {},
    const RegionalSettings &rs = RegionalSettings());

} // namespace qor
