#pragma once

#include <QString>

namespace qor::einvoice {

/// The payment means codes (UNCL 4461) a Belgian invoice uses most.
namespace PaymentMeansCode {
/// Credit transfer.
inline constexpr char16_t CreditTransfer[] = u"30";
/// SEPA credit transfer.
inline constexpr char16_t SepaCreditTransfer[] = u"58";
/// SEPA direct debit.
inline constexpr char16_t SepaDirectDebit[] = u"59";
/// Payment by card.
inline constexpr char16_t BankCard[] = u"48";
} // namespace PaymentMeansCode

/// How the buyer pays (BG-16), with the account to pay to (BG-17).
struct PaymentMeans
{
    /// BT-81: the UNCL 4461 code; "58" for a SEPA credit transfer.
    QString code = QStringLiteral("58");
    /// BT-82: the means as text.
    QString text;
    /// BT-83: the remittance information: a Belgian structured communication
    /// written "+++000/0000/00097+++", or an RF creditor reference.
    QString remittanceInformation;
    /// BT-84: the IBAN (or other account number) to pay to.
    QString accountId;
    /// BT-85: the account's name.
    QString accountName;
    /// BT-86: the BIC of the account's bank.
    QString bic;
    /// BT-89: the mandate reference of a direct debit.
    QString mandateReference;
    /// BT-91: the debited account of a direct debit.
    QString debitedAccountId;

    bool operator==(const PaymentMeans &) const = default;
};

} // namespace qor::einvoice
