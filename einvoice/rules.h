#pragma once

#include <QString>

namespace qor::einvoice {

/// The ids of the rules the library's own check reports: those of the
/// e-invoice norm (BR-...), of the Peppol profile (PEPPOL-...), and the
/// library's own Belgian checks (QORGEN-...), which the official rules do not
/// make.
namespace Rule {
inline constexpr char16_t InvoiceNumber[] = u"BR-02";
inline constexpr char16_t IssueDate[] = u"BR-03";
inline constexpr char16_t Currency[] = u"BR-05";
inline constexpr char16_t SellerName[] = u"BR-06";
inline constexpr char16_t BuyerName[] = u"BR-07";
inline constexpr char16_t SellerCountry[] = u"BR-09";
inline constexpr char16_t BuyerCountry[] = u"BR-11";
inline constexpr char16_t AtLeastOneLine[] = u"BR-16";
inline constexpr char16_t LineUnit[] = u"BR-23";
inline constexpr char16_t LineItemName[] = u"BR-25";
inline constexpr char16_t LineNetPriceNotNegative[] = u"BR-27";
inline constexpr char16_t InvoicingPeriodOrder[] = u"BR-29";
inline constexpr char16_t LinePeriodOrder[] = u"BR-30";
inline constexpr char16_t AllowanceCategory[] = u"BR-32";
inline constexpr char16_t AllowanceReason[] = u"BR-33";
inline constexpr char16_t ChargeCategory[] = u"BR-37";
inline constexpr char16_t ChargeReason[] = u"BR-38";
inline constexpr char16_t LineAllowanceReason[] = u"BR-42";
inline constexpr char16_t LineChargeReason[] = u"BR-44";
inline constexpr char16_t PaymentMeansCode[] = u"BR-49";
inline constexpr char16_t AccountingCurrencyTotal[] = u"BR-53";
inline constexpr char16_t PrecedingInvoiceNumber[] = u"BR-55";
inline constexpr char16_t CreditTransferAccount[] = u"BR-61";
inline constexpr char16_t SellerAddressScheme[] = u"BR-62";
inline constexpr char16_t BuyerAddressScheme[] = u"BR-63";
inline constexpr char16_t LineCategory[] = u"BR-CO-04";
inline constexpr char16_t VatIdentifierPrefix[] = u"BR-CO-09";
inline constexpr char16_t LineNetTotal[] = u"BR-CO-10";
inline constexpr char16_t AllowanceTotal[] = u"BR-CO-11";
inline constexpr char16_t ChargeTotal[] = u"BR-CO-12";
inline constexpr char16_t TaxExclusiveAmount[] = u"BR-CO-13";
inline constexpr char16_t VatTotal[] = u"BR-CO-14";
inline constexpr char16_t TaxInclusiveAmount[] = u"BR-CO-15";
inline constexpr char16_t PayableAmount[] = u"BR-CO-16";
inline constexpr char16_t CategoryTaxAmount[] = u"BR-CO-17";
inline constexpr char16_t SellerIdentified[] = u"BR-CO-26";
inline constexpr char16_t OutOfScopeAlone[] = u"BR-O-11";
inline constexpr char16_t IntraCommunityDelivery[] = u"BR-IC-11";
inline constexpr char16_t IntraCommunityDeliveryCountry[] = u"BR-IC-12";
inline constexpr char16_t OneNote[] = u"PEPPOL-EN16931-R002";
inline constexpr char16_t BuyerOrOrderReference[] = u"PEPPOL-EN16931-R003";
inline constexpr char16_t AccountingCurrencyDiffers[] = u"PEPPOL-EN16931-R005";
inline constexpr char16_t BuyerElectronicAddress[] = u"PEPPOL-EN16931-R010";
inline constexpr char16_t SellerElectronicAddress[] = u"PEPPOL-EN16931-R020";
inline constexpr char16_t AllowanceChargePercentage[] = u"PEPPOL-EN16931-R040";
inline constexpr char16_t AllowanceChargeBaseAmount[] = u"PEPPOL-EN16931-R041";
inline constexpr char16_t AllowanceChargePercentageMissing[] = u"PEPPOL-EN16931-R042";
inline constexpr char16_t DirectDebitMandate[] = u"PEPPOL-EN16931-R061";
inline constexpr char16_t LineNetAmount[] = u"PEPPOL-EN16931-R120";
inline constexpr char16_t BaseQuantityPositive[] = u"PEPPOL-EN16931-R121";
inline constexpr char16_t BelgianEnterpriseNumber[] = u"PEPPOL-COMMON-R043";
inline constexpr char16_t BelgianVatNumber[] = u"QORGEN-BE-VAT";
inline constexpr char16_t AccountIban[] = u"QORGEN-IBAN";
inline constexpr char16_t AccountBic[] = u"QORGEN-BIC";
} // namespace Rule

/// The rules each VAT category has under the same number: BR-S-05,
/// BR-Z-05, BR-AE-05 ... (category K's rules are named BR-IC-...).
enum class CategoryRule {
    /// A line of the category needs the seller's (and buyer's) identifiers.
    LineIdentifiers = 2,
    /// The same for a document-level allowance.
    AllowanceIdentifiers = 3,
    /// The same for a document-level charge.
    ChargeIdentifiers = 4,
    /// The rate of a line.
    LineRate = 5,
    /// The rate of a document-level allowance.
    AllowanceRate = 6,
    /// The rate of a document-level charge.
    ChargeRate = 7,
    /// The taxable amount of the category's breakdown.
    TaxableAmount = 8,
    /// The exemption reason of the category's breakdown.
    ExemptionReason = 10,
};

/// The id of a category's rule, e.g. categoryRuleId("K", CategoryRule::LineRate)
/// is "BR-IC-05".
QString categoryRuleId(const QString &category, CategoryRule rule);

} // namespace qor::einvoice
