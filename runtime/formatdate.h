#pragma once

#include "runtime/regionalsettings.h"

#include <QString>
#include <QVariant>

namespace qor {

// A value through a date and time pattern (d, m, y, h, n, s, w, q, AM/PM and
// the regional "/" and ":" separators). A text that is neither a date nor a
// number comes back as it is.
QString formatAsDate(const QVariant &value, const QString &section, const RegionalSettings &rs);

} // namespace qor
