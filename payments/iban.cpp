#include "payments/iban.h"

#include "payments/ibanregistry.h"
#include "payments/paymenttext.h"

#include <algorithm>

namespace qor {

namespace {

constexpr qsizetype ibanHead = 4;
constexpr qsizetype belgianBbanLength = 12;

bool fitsClass(QChar c, char characterClass)
{
    switch (characterClass) {
    case 'n': return isAsciiDigit(c);
    case 'a': return isUpperLetter(c);
    default: return isUpperAlphanumeric(c);
    }
}

bool fitsStructure(QStringView bban, QStringView country)
{
    if (bban.size() != ibanBbanLength(country))
        return false;
    const char *classes = ibanBbanClasses(country);
    for (qsizetype i = 0; i < bban.size(); ++i) {
        if (!fitsClass(bban[i], classes[i]))
            return false;
    }
    return true;
}

QString digitsOfAccount(QStringView account)
{
    QString digits;
    for (QChar c : account) {
        if (isAsciiDigit(c))
            digits.append(c);
        else if (c != u' ' && c != u'-' && c != u'.' && c != u'/')
            return QString();
    }
    return digits;
}

} // namespace

QString ibanElectronicForm(QStringView iban)
{
    return compactedText(iban, u"-.");
}

PaymentCheck ibanValidity(QStringView electronic)
{
    const int remainder = rearrangedRemainder97(electronic);
    if (electronic.isEmpty() || remainder < 0)
        return PaymentCheck::InvalidFormat;
    if (remainder != 1)
        return PaymentCheck::InvalidChecksum;
    // A text of one to four characters can pass the check digits too.
    const QStringView country = electronic.first(std::min<qsizetype>(2, electronic.size()));
    if (!ibanBbanClasses(country))
        return PaymentCheck::InvalidComponent;
    if (electronic.size() < ibanHead || !fitsStructure(electronic.sliced(ibanHead), country))
        return PaymentCheck::InvalidFormat;
    return PaymentCheck::Valid;
}

PaymentCheck checkIban(QStringView iban)
{
    return ibanValidity(ibanElectronicForm(iban));
}

QString ibanPrintForm(QStringView electronic)
{
    return groupsOfFour(electronic);
}

bool belgianAccountDigitsMatch(QStringView twelveDigits)
{
    if (twelveDigits.size() != belgianBbanLength)
        return false;
    int remainder = remainder97(twelveDigits.first(10));
    if (remainder < 0)
        return false;
    if (remainder == 0)
        remainder = 97;
    return remainder97(twelveDigits.sliced(10)) >= 0
        && twelveDigits.sliced(10).toInt() == remainder;
}

PaymentCheck belgianIbanValidity(QStringView electronic)
{
    const PaymentCheck check = ibanValidity(electronic);
    if (check != PaymentCheck::Valid)
        return check;
    if (electronic.first(2) != u"BE")
        return PaymentCheck::InvalidComponent;
    if (!belgianAccountDigitsMatch(electronic.sliced(ibanHead)))
        return PaymentCheck::InvalidChecksum;
    return PaymentCheck::Valid;
}

PaymentCheck ibanAndAccountValidity(QStringView electronic)
{
    if (electronic.startsWith(u"BE"))
        return belgianIbanValidity(electronic);
    return ibanValidity(electronic);
}

QString ibanFromBelgianAccount(QStringView account)
{
    const QString digits = digitsOfAccount(account);
    if (!belgianAccountDigitsMatch(digits))
        return QString();
    // BE00 moved behind the BBAN: B = 11, E = 14.
    const int remainder = remainder97(u"111400", remainder97(digits));
    const int check = 98 - remainder;
    return QStringLiteral("BE") + QChar(u'0' + check / 10) + QChar(u'0' + check % 10) + digits;
}

QString belgianAccountFromIban(QStringView iban)
{
    const QString electronic = ibanElectronicForm(iban);
    if (belgianIbanValidity(electronic) != PaymentCheck::Valid)
        return QString();
    const QStringView bban = QStringView(electronic).sliced(ibanHead);
    return QStringLiteral("%1-%2-%3").arg(bban.first(3), bban.sliced(3, 7), bban.sliced(10));
}

} // namespace qor
