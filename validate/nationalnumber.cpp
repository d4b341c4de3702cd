#include "validate/nationalnumber.h"

#include "input/textfilters.h"
#include "runtime/textmask.h"
#include "validate/checktext.h"

namespace qor {

namespace {

// 2000000000 modulo 97 is 68: the check for births from 2000 follows from the
// older check without numbers beyond 32 bits.
qint32 checkFrom2000(qint32 checkBefore2000)
{
    return checkBefore2000 > 68 ? checkBefore2000 - 68 : checkBefore2000 + 29;
}

} // namespace

CheckResult checkNationalNumber(QString &natNr, const QString &landCode)
{
    if (!landCode.isEmpty() && landCode != QLatin1String("BE"))
        return CheckResult::accepted(natNr);
    if (isBlank(natNr))
        return CheckResult::skipped();
    natNr = filterNumeric(natNr);
    // Nine digits always fit in 32 bits.
    const qint32 firstPart = qint32(digitsValue(leftPart(natNr, 9)));
    const qint32 check = 97 - firstPart % 97;
    const double given = digitsValue(rightPart(natNr, 2));
    if (given != check && given != checkFrom2000(check))
        return CheckResult::wrong();
    static const TextMask notation(QStringLiteral("&&&&&&\\.&&&\\.&&"));
    return CheckResult::accepted(notation.apply(natNr));
}

} // namespace qor
