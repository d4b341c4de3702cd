#include "validate/paymentreference.h"

#include "runtime/conversion.h"
#include "validate/checktext.h"

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
    const double firstPart = digitsValue(leftPart(twelveDigits, 10));
    const double check = digitsValue(rightPart(twelveDigits, 2));
    // Integer division on 32 bits: raises Overflow for a first part beyond it.
    return check == firstPart - 97.0 * vbIntDiv(firstPart, 97);
}

// The digits of text, copied into storage.
void copyDigits(QStringView text, QString &digits)
{
    digits.resize(text.size());
    char16_t *write = reinterpret_cast<char16_t *>(digits.data());
    char16_t *const start = write;
    for (QChar c : text) {
        if (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
            *write++ = c.unicode();
    }
    digits.resize(write - start);
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
    display.resize(0);
    if (isBlank(ogm))
        return Verdict::Skipped;
    keepDigits(ogm);
    if (ogm.size() != 12 || !checkDigitsMatch(ogm))
        ogm.clear();
    if (ogm.isEmpty())
        return Verdict::Refused;
    writeOgmNotation(reinterpret_cast<const char16_t *>(ogm.constData()), display);
    return Verdict::Accepted;
}

CheckResult checkPaymentReference(QString &ogm)
{
    return checkResultOf([&](QString &display) { return checkPaymentReference(ogm, display); });
}

} // namespace qor
