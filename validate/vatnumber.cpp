#include "validate/vatnumber.h"

#include "input/textfilters.h"
#include "runtime/textmask.h"
#include "validate/checktext.h"

namespace qor {

CheckResult checkVatNumber(QString &vatNr, QString &landCode)
{
    if (isBlank(vatNr))
        return CheckResult::skipped();
    if (landCode.isEmpty())
        landCode = QStringLiteral("BE");
    if (landCode != QLatin1String("BE"))
        return CheckResult::accepted(vatNr);
    // A deliberate "0" stands for a number that is known to be absent.
    if (vatNr == QLatin1String("0"))
        return CheckResult::accepted(QStringLiteral("0000.000.000"));
    vatNr = filterNumeric(vatNr);
    // Eight digits always fit in 32 bits.
    const qint32 firstPart = qint32(digitsValue(leftPart(vatNr, 8)));
    const qint32 check = 97 - firstPart % 97;
    if (digitsValue(rightPart(vatNr, 2)) != check)
        return CheckResult::wrong();
    static const TextMask notation(QStringLiteral("&&&&\\.&&&\\.&&&"));
    return CheckResult::accepted(notation.apply(vatNr));
}

} // namespace qor
