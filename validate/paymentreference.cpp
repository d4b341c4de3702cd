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
    char16_t *write = sizedForWriting(out, 14);
    write = std::copy(twelveDigits, twelveDigits + 3, write);
    *write++ = u'/';
    write = std::copy(twelveDigits + 3, twelveDigits + 7, write);
    *write++ = u'/';
    std::copy(twelveDigits + 7, twelveDigits + 12, write);
}

// The reference zero-padded to ten digits followed by the two check digits: what
// the masks "000\/0000\/000" and "00" write side by side.
void writeReferenceDigitsWithCheck(qint64 value, qint64 check, char16_t (&digits)[12])
{
    for (int i = 11; i >= 10; --i, check /= 10)
        digits[i] = char16_t(u'0' + check % 10);
    for (int i = 9; i >= 0; --i, value /= 10)
        digits[i] = char16_t(u'0' + value % 10);
}

// The number in decimal without leading zeros, as Str(CGetal(text)) writes it.
void writeNumber(qint64 value, QString &out)
{
    char16_t buffer[20];
    char16_t *end = buffer + 20;
    char16_t *begin = end;
    do {
        *--begin = char16_t(u'0' + value % 10);
        value /= 10;
    } while (value > 0);
    assignText(out, QStringView(begin, end));
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
    char16_t *write = sizedForWriting(digits, count);
    for (QChar c : text) {
        if (isDigit(c))
            *write++ = c.unicode();
    }
}

} // namespace

bool makePaymentReference(QString &referentieNummer, QString &digits, QString &ogm)
{
    copyDigits(referentieNummer, digits);
    // Padded on the left or cut to the last ten digits.
    const qint64 value = qint64(digitsValue(rightPart(digits, referenceDigits)));
    // The variable is read back as a number, which drops the leading zeros.
    writeNumber(value, referentieNummer);
    const double remainder = remainder97(double(value));
    const qint64 check = remainder == 0 ? 97 : qint64(remainder);
    char16_t twelveDigits[12];
    writeReferenceDigitsWithCheck(value, check, twelveDigits);
    writeOgmNotation(twelveDigits, ogm);
    return digits.size() > referenceDigits;
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
