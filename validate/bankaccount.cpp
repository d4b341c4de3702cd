#include "validate/bankaccount.h"

#include "input/textfilters.h"
#include "runtime/textmask.h"
#include "validate/checktext.h"

namespace qor {

CheckResult checkBankAccount(QString &bankNr)
{
    if (isBlank(bankNr))
        return CheckResult::skipped();
    bankNr = filterNumeric(bankNr);
    // The program tests for twelve digits but lets the check digits decide, so
    // numbers of other lengths are accepted when they add up.
    double remainder = remainder97(digitsValue(leftPart(bankNr, 10)));
    if (remainder == 0)
        remainder = 97;
    if (digitsValue(rightPart(bankNr, 2)) != remainder)
        return CheckResult::wrong();
    static const TextMask notation(QStringLiteral("&&&\\-&&&&&&&\\-&&"));
    return CheckResult::accepted(notation.apply(bankNr));
}

} // namespace qor
