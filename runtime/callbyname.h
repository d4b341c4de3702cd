#pragma once

#include <QObject>
#include <QVariant>
#include <QVariantList>

namespace qor {

// Late-bound access to a host object by property and operation name, as an
// automation call makes it: a property the object lacks raises 438, a missing
// object 91. Names match exactly first, then regardless of case.
QVariant getProperty(QObject *object, const char *name);
void setProperty(QObject *object, const char *name, const QVariant &value);
bool hasProperty(QObject *object, const char *name);
// Calls a named operation (an invokable method) with up to four arguments.
QVariant callOperation(QObject *object, const char *name, const QVariantList &args = {});

} // namespace qor
