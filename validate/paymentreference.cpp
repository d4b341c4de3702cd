#include "validate/paymentreference.h"

#include "runtime/runtimeerror.h"
#include "validate/checktext.h"

#include <algorithm>
#include <limits>

namespace qor {

namespace {

constexpr qsizetype referenceDigits = 10;

// Twelve digits in the form 000/0000/00000.
void writeOgmNotation(const char16_t *twelveDigits, QString &out)
{
    out.resize(14);
    char16_t *write = reinterpret_cast<char16_t *>(out.data());
    write = std::copy(twelveDigits, twelveDigits + 3, write);
    *write++ = u'/';
    write = std::copy(twelveDigits + 3, twelveDigits + 7, write);
    *write++ = u'/';
    std::copy(twelveDigits + 7, twelveDigits + 12, write);
}

// The number ten digits stand for, as Str(CGetal(text)) writes it: without
// its leading zeros, "0" for none but zeros.
void writeWithoutLeadingZeros(const char16_t *tenDigits, QString &out)
{
    qsizetype first = 0;
    while (first < referenceDigits - 1 && tenDigits[first] == u'0')
        ++first;
    assignText(out, QStringView(tenDigits + first, referenceDigits - first));
}

bool checkDigitsMatch(QStringView twelveDigits)
{
    const qint64 firstPart = digitsNumber(leftPart(twelveDigits, 10));
    // The remainder is worked out by an integer division on 32 bits, which
    // raises Overflow for a first part beyond it.
    if (firstPart > std::numeric_limits<qint32>::max())
        throw RuntimeError::overflow();
    return digitsNumber(rightPart(twelveDigits, 2)) == firstPart % 97;
}

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

// The digits of text, copied into storage: counted first, so that storage
// holding as many digits as the last number is written without resizing.
void copyDigits(QStringView text, QString &digits)
{
    const qsizetype count = std::count_if(text.begin(), text.end(), isDigit);
    digits.resize(count);
    char16_t *write = reinterpret_cast<char16_t *>(digits.data());
    for (QChar c : text) {
        if (isDigit(c))
            *write++ = c.unicode();
    }
}

} // namespace

bool makePaymentReference(QString &referentieNummer, QString &digits, QString &ogm)
{
    copyDigits(referentieNummer, digits);
    // The last ten digits, padded on the left with zeros: what the masks
    // "000\/0000\/000" and "00" write side by side, check digits after them.
    const QStringView reference = rightPart(digits, referenceDigits);
    char16_t twelveDigits[referenceDigits + 2];
    const qsizetype padding = referenceDigits - reference.size();
    std::fill_n(twelveDigits, padding, u'0');
    std::copy_n(reference.utf16(), reference.size(), twelveDigits + padding);
    // Ten digits are exact in double precision, so the remainder the double
    // computation gives is the whole-number one.
    const qint64 remainder = digitsNumber(reference) % 97;
    const qint64 check = remainder == 0 ? 97 : remainder;
    twelveDigits[referenceDigits] = char16_t(u'0' + check / 10);
    twelveDigits[referenceDigits + 1] = char16_t(u'0' + check % 10);
    const bool tooLong = digits.size() > referenceDigits;
    // The variable is read back as a number, which drops the leading zeros.
    writeWithoutLeadingZeros(twelveDigits, referentieNummer);
    writeOgmNotation(twelveDigits, ogm);
    return tooLong;
}

PaymentReference makePaymentReference(QString &referentieNummer)
{
    PaymentReference made;
    made.tooLong = makePaymentReference(referentieNummer, made.digits, made.ogm);
    return made;
}

Verdict checkPaymentReference(QString &ogm, QString &display)
{
    if (isBlank(ogm))
        return nothingShown(display, Verdict::Skipped);
    keepDigits(ogm);
    if (ogm.size() != 12 || !checkDigitsMatch(ogm))
        ogm.clear();
    if (ogm.isEmpty())
        return nothingShown(display, Verdict::Refused);
    writeOgmNotation(reinterpret_cast<const char16_t *>(ogm.constData()), display);
    return Verdict::Accepted;
}

CheckResult checkPaymentReference(QString &ogm)
{
    return checkResultOf([&](QString &display) { return checkPaymentReference(ogm, display); });
}

} // namespace qor
