#include "validate/paymentreference.h"

#include "input/textfilters.h"
#include "runtime/conversion.h"
#include "validate/checktext.h"

#include <array>

namespace qor {

namespace {

constexpr qsizetype referenceDigits = 10;

// Twelve digits in the form 000/0000/00000.
QString ogmNotation(QStringView twelveDigits)
{
    QString out;
    out.reserve(14);
    out.append(twelveDigits.first(3)).append(QLatin1Char('/'));
    out.append(twelveDigits.sliced(3, 4)).append(QLatin1Char('/'));
    return out.append(twelveDigits.sliced(7));
}

// The reference zero-padded to ten digits followed by the two check digits: what
// the masks "000\/0000\/000" and "00" write side by side.
std::array<char16_t, 12> referenceDigitsWithCheck(qint64 value, qint64 check)
{
    std::array<char16_t, 12> digits;
    for (int i = 11; i >= 10; --i, check /= 10)
        digits[size_t(i)] = char16_t(u'0' + check % 10);
    for (int i = 9; i >= 0; --i, value /= 10)
        digits[size_t(i)] = char16_t(u'0' + value % 10);
    return digits;
}

bool checkDigitsMatch(const QString &twelveDigits)
{
    const double firstPart = digitsValue(leftPart(twelveDigits, 10));
    const double check = digitsValue(rightPart(twelveDigits, 2));
    // Integer division on 32 bits: raises Overflow for a first part beyond it.
    return check == firstPart - 97.0 * vbIntDiv(firstPart, 97);
}

} // namespace

PaymentReference makePaymentReference(QString &referentieNummer)
{
    PaymentReference made;
    made.digits = filterNumeric(referentieNummer);
    made.tooLong = made.digits.size() > referenceDigits;
    // Padded on the left or cut to the last ten digits.
    const qint64 value = qint64(digitsValue(rightPart(made.digits, referenceDigits)));
    // The variable is read back as a number, which drops the leading zeros.
    referentieNummer = QString::number(value);
    const double remainder = remainder97(double(value));
    const qint64 check = remainder == 0 ? 97 : qint64(remainder);
    const std::array<char16_t, 12> digits = referenceDigitsWithCheck(value, check);
    made.ogm = ogmNotation(QStringView(digits.data(), digits.size()));
    return made;
}

CheckResult checkPaymentReference(QString &ogm)
{
    if (isBlank(ogm))
        return CheckResult::skipped();
    ogm = filterNumeric(ogm);
    if (ogm.size() != 12 || !checkDigitsMatch(ogm))
        ogm.clear();
    if (ogm.isEmpty())
        return CheckResult::wrong();
    return CheckResult::accepted(ogmNotation(ogm));
}

} // namespace qor
