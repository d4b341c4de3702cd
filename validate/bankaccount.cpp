#include "validate/bankaccount.h"

#include "runtime/textmask.h"
#include "validate/checktext.h"

namespace qor {

Verdict checkBankAccount(QString &bankNr, QString &display)
{
    if (isBlank(bankNr))
        return nothingShown(display, Verdict::Skipped);
    keepDigits(bankNr);
    // The program tests for twelve digits but lets the check digits decide, so
    // numbers of other lengths are accepted when they add up. Ten digits are
    // exact in double precision, so the remainder is the whole-number one.
    qint64 remainder = digitsNumber(leftPart(bankNr, 10)) % 97;
    if (remainder == 0)
        remainder = 97;
    if (digitsNumber(rightPart(bankNr, 2)) != remainder)
        return nothingShown(display, Verdict::Refused);
    static const TextMask notation(QStringLiteral("&&&\\-&&&&&&&\\-&&"));
    notation.applyTo(bankNr, display);
    return Verdict::Accepted;
}

CheckResult checkBankAccount(QString &bankNr)
{
    return checkResultOf([&](QString &display) { return checkBankAccount(bankNr, display); });
}

} // namespace qor
