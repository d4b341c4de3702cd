#pragma once

#include "runtime/regionalsettings.h"
#include "validate/checkresult.h"

namespace qor {

// The twelve-character number of a Belgian identity card: ten digits and two
// check digits, the remainder modulo 97 (0 written "00"). The text is not
// cleaned, so a number with separators is refused. Check digits "97" are
// rewritten to "00" in place before the check. The two parts are read as
// numbers the way the library reads a field, hence the regional settings.
//
// A refused number may still be accepted by the user as a foreign card; that
// choice is the caller's.
CheckResult checkIdentityCard(QString &identNr, const RegionalSettings &rs);
// The same with the accepted number written into the caller's storage.
Verdict checkIdentityCard(QString &identNr, const RegionalSettings &rs, QString &display);

} // namespace qor
