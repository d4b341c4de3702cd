#include "payments/epcpayload.h"

#include "payments/bic.h"
#include "payments/creditorreference.h"
#include "payments/iban.h"
#include "payments/paymenttext.h"

#include <QStringList>

#include <cmath>

namespace qor {

namespace {

constexpr qsizetype longestName = 70;
constexpr qsizetype longestText = 140;
constexpr double smallestAmount = 0.01;
constexpr double largestAmount = 999999999.99;

// The number of characters a text counts: a surrogate pair counts once. Nothing
// (-1) for a text with a control character or a lone surrogate.
qsizetype printableLength(const QString &text)
{
    qsizetype length = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.unicode() < 0x20 || (c.unicode() >= 0x7F && c.unicode() < 0xA0))
            return -1;
        if (c.isHighSurrogate()) {
            if (i + 1 == text.size() || !text[i + 1].isLowSurrogate())
                return -1;
            ++i;
        } else if (c.isLowSurrogate()) {
            return -1;
        }
        ++length;
    }
    return length;
}

bool fitsLength(const QString &text, qsizetype shortest, qsizetype longest)
{
    const qsizetype length = printableLength(text);
    return length >= shortest && length <= longest;
}

// "EUR12.30", or "" for an amount outside the range.
QString amountField(double amount)
{
    if (!(amount >= smallestAmount - 0.005 && amount < largestAmount + 0.005))
        return QString();
    const qint64 cents = std::llround(amount * 100);
    if (cents < 1)
        return QString();
    return QStringLiteral("EUR%1.%2").arg(cents / 100).arg(cents % 100, 2, 10, QLatin1Char('0'));
}

QString digitsOnly(const QString &text)
{
    QString digits;
    for (QChar c : text) {
        if (isAsciiDigit(c))
            digits.append(c);
        else if (c != u'+' && c != u'/' && c != u' ')
            return QString();
    }
    return digits;
}

} // namespace

QString belgianStructuredCommunication(const QString &reference)
{
    const QString digits = digitsOnly(reference);
    if (!belgianAccountDigitsMatch(digits))
        return QString();
    return QStringLiteral("+++") + digits.first(3) + u'/' + digits.sliced(3, 4) + u'/'
        + digits.sliced(7) + QStringLiteral("+++");
}

QString epcPayload(const CreditTransfer &transfer)
{
    const QString iban = ibanElectronicForm(transfer.iban);
    const QString bic = bicElectronicForm(transfer.bic);
    const QString amount = amountField(transfer.amount);
    if (ibanValidity(iban) != PaymentCheck::Valid || amount.isEmpty()
        || (!bic.isEmpty() && bicValidity(bic) != PaymentCheck::Valid)
        || !fitsLength(transfer.name, 1, longestName) || !fitsLength(transfer.text, 0, longestText))
        return QString();
    QString structured;
    QString text = transfer.text;
    if (!transfer.reference.trimmed().isEmpty()) {
        if (!text.isEmpty())
            return QString();
        const QString creditorReference = creditorReferenceElectronicForm(transfer.reference);
        if (creditorReferenceValidity(creditorReference) == PaymentCheck::Valid)
            structured = creditorReference;
        else
            text = belgianStructuredCommunication(transfer.reference);
        if (structured.isEmpty() && text.isEmpty())
            return QString();
    }
    QStringList lines { QStringLiteral("BCD"), QStringLiteral("002"), QStringLiteral("1"),
        QStringLiteral("SCT"), bic, transfer.name, iban, amount, QString(), structured, text };
    while (lines.last().isEmpty())
        lines.removeLast();
    return lines.join(u'\n');
}

} // namespace qor
