#pragma once

#include "validate/checkresult.h"

namespace qor {

// A Belgian bank account number (bank code, account, two check digits) on its
// modulo-97 check, shown as 000-0000000-00. A non-blank number is reduced to
// its digits in place. The length is never enforced: any digit string whose
// first ten digits modulo 97 (0 counting as 97) equal its last two passes.
CheckResult checkBankAccount(QString &bankNr);
// The same with the display notation written into the caller's storage
// (emptied when the number is blank or refused).
Verdict checkBankAccount(QString &bankNr, QString &display);

} // namespace qor
