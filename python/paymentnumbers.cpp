#include "python/paymentnumbers.h"

#include "payments/belgianbanks.h"
#include "payments/creditorreference.h"
#include "payments/iban.h"

namespace qor::python {

namespace {

constexpr qsizetype bankCodeAt = 4; // after the land code and the check digits
constexpr qsizetype bankCodeDigits = 3;

Fault faultOf(PaymentCheck check)
{
    switch (check) {
    case PaymentCheck::Valid: return Fault::None;
    case PaymentCheck::InvalidLength: return Fault::Length;
    case PaymentCheck::InvalidFormat: return Fault::Format;
    case PaymentCheck::InvalidChecksum: return Fault::Checksum;
    case PaymentCheck::InvalidComponent: return Fault::Component;
    }
    return Fault::Format;
}

QString compactIban(QStringView number)
{
    return ibanElectronicForm(cleanNumber(number, u" -."));
}

std::optional<BelgianBank> bankOfCompactAccount(const QString &iban)
{
    const QStringView code = QStringView(iban).mid(bankCodeAt, bankCodeDigits);
    if (!iban.startsWith(QLatin1String("BE")) || code.size() != bankCodeDigits
        || !isPlainDigits(code))
        return std::nullopt;
    return belgianBankOfCode(code.toInt());
}

// A Belgian account is of a bank the National Bank lists, as Python programs
// expect of these checks.
Fault withKnownBank(Fault fault, const QString &compacted)
{
    if (fault == Fault::None && !bankOfCompactAccount(compacted))
        return Fault::Component;
    return fault;
}

Fault checkBelgianIban(const QString &compacted)
{
    return withKnownBank(faultOf(belgianIbanValidity(compacted)), compacted);
}

// A Belgian IBAN is checked as Belgian: its account digits have their own check.
Fault checkIban(const QString &compacted)
{
    if (compacted.startsWith(QLatin1String("BE")))
        return checkBelgianIban(compacted);
    return faultOf(ibanValidity(compacted));
}

QString formatIban(const QString &compacted)
{
    return ibanPrintForm(compacted);
}

QString compactCreditorReference(QStringView number)
{
    return creditorReferenceElectronicForm(cleanNumber(number, u" -.,/:"));
}

Fault checkCreditorReference(const QString &compacted)
{
    return faultOf(creditorReferenceValidity(compacted));
}

QString formatCreditorReference(const QString &compacted)
{
    return creditorReferencePrintForm(compacted);
}

} // namespace

const NumberKind internationalAccount { compactIban, checkIban, formatIban };
const NumberKind belgianAccount { compactIban, checkBelgianIban, formatIban };
const NumberKind creditorReference { compactCreditorReference, checkCreditorReference,
    formatCreditorReference };

std::optional<BelgianBank> bankOfBelgianAccount(QStringView number)
{
    return bankOfCompactAccount(compactIban(number));
}

} // namespace qor::python
