#include "validate/identifierchecks.h"

#include "lib/frame/catalogue.h"
#include "lib/frame/messageboxlogic.h"
#include "lib/frame/modgenlib.h"
#include "platform/clock.h"
#include "validate/bankaccount.h"
#include "validate/identifiermessages.h"
#include "validate/identitycard.h"
#include "validate/nationalnumber.h"
#include "validate/paymentreference.h"
#include "validate/vatnumber.h"

namespace qor {

using namespace catalogue;

namespace {

constexpr int exclamationOK = MessageBoxStyle::Exclamation | MessageBoxStyle::OK;
constexpr int criticalOK = MessageBoxStyle::Critical | MessageBoxStyle::OK;

// "What is wrong", a blank line, "how to write it".
void reportWrongNumber(qint32 whatId, qint32 notationId)
{
    const QString prompt
        = loadCatalogueText(whatId) + QString(2, QChar(13)) + loadCatalogueText(notationId);
    showMessageBoxE(prompt, exclamationOK, loadCatalogueText(ErrorTitle));
}

QString reported(const CheckResult &check, bool mbox, qint32 whatId, qint32 notationId)
{
    if (mbox && check.refused)
        reportWrongNumber(whatId, notationId);
    return check.display;
}

} // namespace

QString controleerBankNr(QString &bankNr, bool mbox, qint32 offset)
{
    useLanguage(offset);
    return reported(checkBankAccount(bankNr), mbox, BankAccountWrong, BankAccountNotation);
}

QString controleerVAT(QString &vatNr, bool mbox, QString &landCode, qint32 offset)
{
    useLanguage(offset);
    return reported(
        checkVatNumber(vatNr, landCode), mbox, EnterpriseNumberWrong, EnterpriseNumberNotation);
}

QString controleerNatNr(QString &natNr, bool mbox, const QString &landCode, qint32 offset)
{
    useLanguage(offset);
    return reported(
        checkNationalNumber(natNr, landCode), mbox, NationalNumberWrong, NationalNumberNotation);
}

QString controleerIdentNr(QString &identNr, bool mbox, qint32 offset)
{
    useLanguage(offset);
    const CheckResult check = checkIdentityCard(identNr, Clock::current().regionalSettings());
    // The identity-number box: answer 1 accepts the number as a foreign card.
    if (mbox && check.refused
        && showMessageBoxE(
               identNr, MessageBoxStyle::IdentityNumber, loadCatalogueText(IdentityCardTitle))
            == MessageBoxResult::OK)
        return identNr;
    return check.display;
}

QString getOGM(QString &referentieNummer, const QString &paragraphBreak, qint32 offset)
{
    useLanguage(offset);
    const PaymentReference made = makePaymentReference(referentieNummer);
    // The text speaks of nine digits where ten are allowed, as it always did.
    if (made.tooLong)
        showMessageBoxE(loadCatalogueText(ReferenceTooLongStart) + made.digits
                + loadCatalogueText(ReferenceTooLongEnd) + paragraphBreak
                + loadCatalogueText(ContactHelpDesk),
            criticalOK, QStringLiteral("OstGenLib / Get OGM"));
    return made.ogm;
}

QString controleerOGM(QString &ogm, bool mbox, qint32 offset)
{
    useLanguage(offset);
    const QString typed = ogm;
    const CheckResult check = checkPaymentReference(ogm);
    if (mbox && check.refused)
        showMessageBoxE(typed + loadCatalogueText(PaymentReferenceWrong), exclamationOK,
            loadCatalogueText(ErrorTitle));
    return check.display;
}

} // namespace qor
