#include "payments/paymentmethods.h"

#include "lib/frame/catalogue.h"
#include "lib/frame/messageboxlogic.h"
#include "lib/frame/modgenlib.h"
#include "payments/belgianbanks.h"
#include "payments/bic.h"
#include "payments/creditorreference.h"
#include "payments/iban.h"
#include "payments/paymentmessages.h"

namespace qor {

using namespace catalogue;

namespace {

bool isBlankText(const QString &text)
{
    return text.trimmed().isEmpty();
}

// "What is wrong", a blank line, "how to write it".
void reportWrong(qint32 whatId, qint32 notationId)
{
    const QString prompt
        = loadCatalogueText(whatId) + QString(2, QChar(13)) + loadCatalogueText(notationId);
    showMessageBoxE(prompt, MessageBoxStyle::Exclamation | MessageBoxStyle::OK,
        loadCatalogueText(PaymentErrorTitle));
}

QString refused(bool mbox, qint32 whatId, qint32 notationId)
{
    if (mbox)
        reportWrong(whatId, notationId);
    return QString();
}

} // namespace

QString controleerIBAN(QString &iban, bool mbox, qint32 offset)
{
    useLanguage(offset);
    if (isBlankText(iban))
        return QString();
    iban = ibanElectronicForm(iban);
    if (ibanAndAccountValidity(iban) != PaymentCheck::Valid)
        return refused(mbox, IbanWrong, IbanNotation);
    return ibanPrintForm(iban);
}

QString controleerBIC(QString &bic, bool mbox, qint32 offset)
{
    useLanguage(offset);
    if (isBlankText(bic))
        return QString();
    bic = bicElectronicForm(bic);
    if (bicValidity(bic) != PaymentCheck::Valid)
        return refused(mbox, BicWrong, BicNotation);
    return bic;
}

QString controleerRF(QString &rf, bool mbox, qint32 offset)
{
    useLanguage(offset);
    if (isBlankText(rf))
        return QString();
    rf = creditorReferenceElectronicForm(rf);
    if (creditorReferenceValidity(rf) != PaymentCheck::Valid)
        return refused(mbox, CreditorReferenceWrong, CreditorReferenceNotation);
    return creditorReferencePrintForm(rf);
}

QString getIBAN(const QString &bankNr)
{
    return ibanPrintForm(ibanFromBelgianAccount(bankNr));
}

QString getBBAN(const QString &iban)
{
    return belgianAccountFromIban(iban);
}

QString getBIC(const QString &account)
{
    const std::optional<BelgianBank> bank = belgianBankOf(account);
    return bank ? bank->bic : QString();
}

QString getRF(const QString &reference)
{
    return creditorReferencePrintForm(makeCreditorReference(reference));
}

} // namespace qor
