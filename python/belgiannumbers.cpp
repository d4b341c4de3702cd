#include "python/belgiannumbers.h"

#include "platform/clock.h"
#include "validate/checktext.h"
#include "validate/nationalnumber.h"
#include "validate/paymentreference.h"
#include "validate/vatnumber.h"

namespace qor::python {

namespace {

constexpr qsizetype vatDigits = 10;
constexpr qsizetype nationalNumberDigits = 11;
constexpr qsizetype referenceDigits = 12;
constexpr qsizetype referenceNumberDigits = 10;

// Format first, then length: a number must be digits and not zero before its
// length is looked at.
Fault digitsFault(const QString &compacted, qsizetype length)
{
    if (!isPlainDigits(compacted) || isZero(compacted))
        return Fault::Format;
    if (compacted.size() != length)
        return Fault::Length;
    return Fault::None;
}

QString compactVat(QStringView number)
{
    QString vat = cleanNumber(number, u" -./").toUpper();
    if (vat.startsWith(QLatin1String("BE")))
        vat.remove(0, 2);
    // The older numbers of nine digits take a leading zero.
    if (vat.size() == vatDigits - 1)
        vat.prepend(QLatin1Char('0'));
    return vat;
}

Fault checkVat(const QString &compacted)
{
    if (const Fault fault = digitsFault(compacted, vatDigits); fault != Fault::None)
        return fault;
    // Storage kept from check to check, as a host's variables are.
    thread_local QString vat;
    thread_local QString landCode;
    thread_local QString display;
    assignText(vat, compacted);
    assignText(landCode, u"BE");
    const Verdict verdict = checkVatNumber(vat, landCode, display);
    return verdict == Verdict::Refused ? Fault::Checksum : Fault::None;
}

QString formatVat(const QString &compacted)
{
    return grouped(compacted, { 4, 3 }, { u'.', u'.' });
}

QString compactNationalNumber(QStringView number)
{
    return cleanNumber(number, u" -.");
}

// The check digits of a birth before 2000 (no 2 in front of the nine digits).
bool hasCheckBefore2000(const QString &compacted)
{
    const qint64 firstPart = digitsNumber(leftPart(compacted, 9));
    return digitsNumber(rightPart(compacted, 2)) == 97 - firstPart % 97;
}

// A number made with the check from 2000 on must be of a year that has begun.
bool bornInAPastYear(const QString &compacted)
{
    const qint64 year = 2000 + digitsNumber(leftPart(compacted, 2));
    return year <= Clock::current().now().date().year();
}

Fault checkNationalNumber(const QString &compacted)
{
    if (const Fault fault = digitsFault(compacted, nationalNumberDigits); fault != Fault::None)
        return fault;
    thread_local QString number;
    thread_local QString display;
    assignText(number, compacted);
    if (qor::checkNationalNumber(number, QString(), display) == Verdict::Refused)
        return Fault::Checksum;
    if (!hasCheckBefore2000(compacted) && !bornInAPastYear(compacted))
        return Fault::Checksum;
    return Fault::None;
}

QString formatNationalNumber(const QString &compacted)
{
    return grouped(compacted, { 2, 2, 2, 3 }, { u'.', u'.', u'-', u'.' });
}

QString compactReference(QStringView number)
{
    return cleanNumber(number, u" -.+/");
}

// The check digits are those the library gives when it makes the reference
// of the first ten digits: their remainder modulo 97, and 97 for 0.
Fault checkReference(const QString &compacted)
{
    if (!isPlainDigits(compacted))
        return Fault::Format;
    if (compacted.size() != referenceDigits)
        return Fault::Length;
    QString reference = compacted.left(referenceNumberDigits);
    const PaymentReference made = makePaymentReference(reference);
    QString madeDigits = made.ogm;
    madeDigits.remove(QLatin1Char('/'));
    return madeDigits == compacted ? Fault::None : Fault::Checksum;
}

QString formatReference(const QString &compacted)
{
    return QLatin1String("+++") + grouped(compacted, { 3, 4 }, { u'/', u'/' })
        + QLatin1String("+++");
}

} // namespace

const NumberKind belgianVat { compactVat, checkVat, formatVat };
const NumberKind nationalNumber { compactNationalNumber, checkNationalNumber,
    formatNationalNumber };
const NumberKind structuredReference { compactReference, checkReference, formatReference };

} // namespace qor::python
