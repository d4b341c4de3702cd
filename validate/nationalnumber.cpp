#include "validate/nationalnumber.h"

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

Verdict checkNationalNumber(QString &natNr, const QString &landCode, QString &display)
{
    if (!landCode.isEmpty() && !isText(landCode, QLatin1String("BE"))) {
        assignText(display, natNr);
        return Verdict::Accepted;
    }
    if (isBlank(natNr))
        return nothingShown(display, Verdict::Skipped);
    keepDigits(natNr);
    // Nine digits always fit in 32 bits.
    const qint32 firstPart = qint32(digitsNumber(leftPart(natNr, 9)));
    const qint32 check = 97 - firstPart % 97;
    const qint32 given = qint32(digitsNumber(rightPart(natNr, 2)));
    if (given != check && given != checkFrom2000(check))
        return nothingShown(display, Verdict::Refused);
    static const TextMask notation(QStringLiteral("&&&&&&\\.&&&\\.&&"));
    notation.applyTo(natNr, display);
    return Verdict::Accepted;
}

CheckResult checkNationalNumber(QString &natNr, const QString &landCode)
{
    return checkResultOf(
        [&](QString &display) { return checkNationalNumber(natNr, landCode, display); });
}

} // namespace qor
