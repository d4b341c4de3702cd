#pragma once

#include "validate/checkresult.h"

namespace qor {

// A Belgian enterprise (VAT) number: eight digits and two check digits
// 97 - (first part modulo 97), shown as 0000.000.000.
//
// An empty land code becomes "BE"; any other code than exactly "BE" (case
// matters) passes the number through unchecked. A Belgian "0" is accepted as
// "0000.000.000" without a check. Otherwise the number is reduced to its
// digits in place; its length is never tested.
CheckResult checkVatNumber(QString &vatNr, QString &landCode);
// The same with the display notation written into the caller's storage.
Verdict checkVatNumber(QString &vatNr, QString &landCode, QString &display);

} // namespace qor
