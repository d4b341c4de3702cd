#include "validate/checkreports.h"

#include "lib/frame/messageboxlogic.h"
#include "lib/frame/catalogue.h"

namespace qor {

namespace {

constexpr int exclamationOK = 48;
constexpr int criticalOK = 16;
constexpr int identityNumberMode = -1;
constexpr int titleError = 1031;

void reportWrongNumber(qint32 whatId, qint32 notationId)
{
    const QString prompt
        = loadCatalogueText(whatId) + QString(2, QChar(13)) + loadCatalogueText(notationId);
    showMessageBoxE(prompt, exclamationOK, loadCatalogueText(titleError));
}

} // namespace

void reportRefusedBankAccount()
{
    reportWrongNumber(1002, 1001);
}
void reportRefusedEnterpriseNumber()
{
    reportWrongNumber(1010, 1011);
}
void reportRefusedNationalNumber()
{
    reportWrongNumber(1026, 1027);
}

void reportRefusedPaymentReference(const QString &typed)
{
    showMessageBoxE(typed + loadCatalogueText(1012), exclamationOK, loadCatalogueText(titleError));
}

void reportReferenceTooLong(const QString &digits, const QString &paragraphBreak)
{
    showMessageBoxE(loadCatalogueText(1221) + digits + loadCatalogueText(1222) + paragraphBreak
            + loadCatalogueText(9700),
        criticalOK, QStringLiteral("OstGenLib / Get OGM"));
}

bool userAcceptsIdentityCard(const QString &identNr)
{
    return showMessageBoxE(identNr, identityNumberMode, loadCatalogueText(1040)) == 1;
}

} // namespace qor
