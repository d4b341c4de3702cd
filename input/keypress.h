#pragma once

#include "runtime/regionalsettings.h"

#include <QString>
#include <QVariant>

namespace qor {

// The key filter of a free-text field. allowed holds literal characters and
// the classes C (digits), D (date: digits and the date separator), U (time:
// digits and the time separator), L (letters) and H (letters, upper-cased);
// it is upper-cased in the caller's variable. Quotes always become the acute
// accent in ka; Backspace and Enter always pass; an empty set lets all pass.
// Returns the key code to use, or 0 with a beep.
QVariant keyPress(short &ka, QString &allowed, const RegionalSettings &rs);

} // namespace qor
