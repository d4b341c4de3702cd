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

bool checkDigitsMatch(QStringView twelveCharacters, const RegionalSettings &rs)
{
    const QStringView firstPart = leftPart(twelveCharacters, 10);
    const QStringView check = rightPart(twelveCharacters, 2);
    // Ten digits are exact in double precision, so the whole-number remainder
    // is the one the double computation gives.
    if (isAsciiDigits(twelveCharacters))
        return digitsNumber(check) == digitsNumber(firstPart) % 97;
    return partValue(check, rs) == remainder97(partValue(firstPart, rs));
}

} // namespace

Verdict checkIdentityCard(QString &identNr, const RegionalSettings &rs, QString &display)
{
    if (isBlank(identNr))
        return nothingShown(display, Verdict::Skipped);
    if (identNr.size() != 12)
        return nothingShown(display, Verdict::Refused);
    // The card number is kept with check digits "00" for a remainder of 0.
    if (isText(rightPart(identNr, 2), QLatin1String("97"))) {
        identNr[10] = QLatin1Char('0');
        identNr[11] = QLatin1Char('0');
    }
    if (!checkDigitsMatch(identNr, rs))
        return nothingShown(display, Verdict::Refused);
    assignText(display, identNr);
    return Verdict::Accepted;
}

CheckResult checkIdentityCard(QString &identNr, const RegionalSettings &rs)
{
    return checkResultOf([&](QString &display) { return checkIdentityCard(identNr, rs, display); });
}

} // namespace qor
