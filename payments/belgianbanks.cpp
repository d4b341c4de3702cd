#include "payments/belgianbanks.h"

#include "payments/iban.h"

namespace qor {

namespace {

struct BankRange
{
    int first;
    int last;
    const char *bic;
    const char *name;
};

#define QOR_BELGIAN_BANK(first, last, bic, name)                                                   \
    { first, last, bic, reinterpret_cast<const char *>(name) },
const BankRange bankCodes[] = {
#include "belgianbanktable.inc"
};
#undef QOR_BELGIAN_BANK

// The electronic Belgian IBAN of an account in either notation, or "".
QString belgianIbanOf(QStringView account)
{
    const QString electronic = ibanElectronicForm(account);
    if (belgianIbanValidity(electronic) == PaymentCheck::Valid)
        return electronic;
    return ibanFromBelgianAccount(account);
}

} // namespace

std::optional<BelgianBank> belgianBankOfCode(int code)
{
    for (const BankRange &range : bankCodes) {
        if (code >= range.first && code <= range.last)
            return BelgianBank { QString::fromLatin1(range.bic), QString::fromUtf8(range.name) };
    }
    return std::nullopt;
}

std::optional<BelgianBank> belgianBankOf(QStringView account)
{
    const QString iban = belgianIbanOf(account);
    if (iban.isEmpty())
        return std::nullopt;
    // BE, two check digits, then the bank code.
    return belgianBankOfCode(QStringView(iban).sliced(4, 3).toInt());
}

} // namespace qor
