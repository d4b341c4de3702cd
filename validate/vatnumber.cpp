#include "validate/vatnumber.h"

#include "runtime/textmask.h"
#include "validate/checktext.h"

namespace qor {

Verdict checkVatNumber(QString &vatNr, QString &landCode, QString &display)
{
    if (isBlank(vatNr))
        return nothingShown(display, Verdict::Skipped);
    if (landCode.isEmpty())
        landCode = QStringLiteral("BE");
    if (!isText(landCode, QLatin1String("BE"))) {
        assignText(display, vatNr);
        return Verdict::Accepted;
    }
    // A deliberate "0" stands for a number that is known to be absent.
    if (isText(vatNr, QLatin1String("0"))) {
        assignText(display, u"0000.000.000");
        return Verdict::Accepted;
    }
    keepDigits(vatNr);
    // Eight digits always fit in 32 bits.
    const qint32 firstPart = qint32(digitsNumber(leftPart(vatNr, 8)));
    const qint32 check = 97 - firstPart % 97;
    if (digitsNumber(rightPart(vatNr, 2)) != check)
        return nothingShown(display, Verdict::Refused);
    static const TextMask notation(QStringLiteral("&&&&\\.&&&\\.&&&"));
    notation.applyTo(vatNr, display);
    return Verdict::Accepted;
}

CheckResult checkVatNumber(QString &vatNr, QString &landCode)
{
    return checkResultOf(
        [&](QString &display) { return checkVatNumber(vatNr, landCode, display); });
}

} // namespace qor
