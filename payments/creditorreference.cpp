#include "payments/creditorreference.h"

#include "payments/paymenttext.h"

namespace qor {

namespace {

constexpr qsizetype shortestReference = 5;
constexpr qsizetype longestReference = 25;
constexpr qsizetype longestOwnReference = longestReference - 4;

} // namespace

QString creditorReferenceElectronicForm(QStringView reference)
{
    return compactedText(reference, u"-.");
}

PaymentCheck creditorReferenceValidity(QStringView electronic)
{
    if (electronic.size() < shortestReference || electronic.size() > longestReference)
        return PaymentCheck::InvalidLength;
    const int remainder = rearrangedRemainder97(electronic);
    if (!electronic.startsWith(u"RF") || remainder < 0)
        return PaymentCheck::InvalidFormat;
    if (remainder != 1)
        return PaymentCheck::InvalidChecksum;
    return PaymentCheck::Valid;
}

PaymentCheck checkCreditorReference(QStringView reference)
{
    return creditorReferenceValidity(creditorReferenceElectronicForm(reference));
}

QString makeCreditorReference(QStringView reference)
{
    const QString own = creditorReferenceElectronicForm(reference);
    if (own.isEmpty() || own.size() > longestOwnReference)
        return QString();
    const int ownRemainder = remainder97(own);
    if (ownRemainder < 0)
        return QString();
    // The reference followed by RF00 (R = 27, F = 15).
    const int check = 98 - remainder97(u"271500", ownRemainder);
    return QStringLiteral("RF") + QChar(u'0' + check / 10) + QChar(u'0' + check % 10) + own;
}

QString creditorReferencePrintForm(QStringView electronic)
{
    return groupsOfFour(electronic);
}

} // namespace qor
