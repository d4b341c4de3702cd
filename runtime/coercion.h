#pragma once

#include "runtime/regionalsettings.h"

#include <QMetaType>
#include <QVariant>

namespace qor {

// A value converted to a declared type the way an automation call converts an
// argument or a property assignment: text, numbers and Booleans through the
// classic conversions (13 Type mismatch, 6 Overflow, 94 Invalid use of Null),
// objects only from objects, arrays only from arrays; a Variant takes the value as it is.
QVariant coerceTo(const QVariant &value, QMetaType target, const RegionalSettings &rs);

} // namespace qor
