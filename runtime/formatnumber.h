#pragma once

#include "runtime/regionalsettings.h"

#include <QString>
#include <QStringList>
#include <QVariant>

namespace qor {

// A value through a number pattern: "0" and "#" digits, "." and "," the
// regional separators, "%" and exponents, sections positive;negative;zero.
// Rounds half away from zero on the digits the value shows (15 significant
// for a Double, 7 for a Single). A text that is not numeric comes back as it is.
QString formatAsNumber(
    const QVariant &value, const QStringList &sections, const RegionalSettings &rs);

} // namespace qor
