#include "validate/identitycard.h"

#include "input/amounts.h"
#include "validate/checktext.h"

namespace qor {

namespace {

// Plain digits read the same under every setting; anything else goes through
// the library's number reading (0 for what is not numeric).
double partValue(QStringView part, const RegionalSettings &rs)
{
    if (isAsciiDigits(part))
        return digitsValue(part);
    return cGetalValue(QVariant(part.toString()), rs);
}

} // namespace

CheckResult checkIdentityCard(QString &identNr, const RegionalSettings &rs)
{
    if (isBlank(identNr))
        return CheckResult::skipped();
    if (identNr.size() != 12)
        return CheckResult::wrong();
    // The card number is kept with check digits "00" for a remainder of 0.
    if (identNr.endsWith(QLatin1String("97")))
        identNr = identNr.left(10) + QStringLiteral("00");
    const double remainder = remainder97(partValue(leftPart(identNr, 10), rs));
    if (partValue(rightPart(identNr, 2), rs) != remainder)
        return CheckResult::wrong();
    return CheckResult::accepted(identNr);
}

} // namespace qor
