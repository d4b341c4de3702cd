#pragma once

#include "validate/checkresult.h"

namespace qor {

// A Belgian national register number: six digits of birth date, three of
// sequence and two check digits, shown as 000000.000.00. The check digits are
// 97 - (first nine digits modulo 97) for births before 2000, and the same with
// a 2 in front of the nine digits for births from 2000 on.
//
// A land code other than "BE" or empty returns the number unchecked. A
// non-blank number is reduced to its digits in place; the length is not
// enforced.
CheckResult checkNationalNumber(QString &natNr, const QString &landCode = QString());
// The same with the display notation written into the caller's storage.
Verdict checkNationalNumber(QString &natNr, const QString &landCode, QString &display);

} // namespace qor
