#pragma once

#include "einvoice/invoiceamounts.h"
#include "einvoice/invoiceline.h"
#include "einvoice/payment.h"

#include <QStringList>

namespace qor::einvoice {

/// The Peppol BIS Billing 3.0 identifiers every document carries.
namespace Peppol {
/// BT-24: the customization identifier, naming the rules the document follows.
inline constexpr char16_t CustomizationId[]
    = u"urn:cen.eu:en16931:2017#compliant#urn:fdc:peppol.eu:2017:poacc:billing:3.0";
/// BT-23: the business process.
inline constexpr char16_t ProfileId[] = u"urn:fdc:peppol.eu:2017:poacc:billing:01:1.0";
} // namespace Peppol

/// Which of the two UBL documents is written.
enum class DocumentKind {
    /// A UBL Invoice (type code 380 unless told otherwise).
    Invoice,
    /// A UBL CreditNote (type code 381 unless told otherwise).
    CreditNote,
};

/// The type codes (UNCL 1001) the library names.
namespace TypeCode {
inline constexpr int CommercialInvoice = 380;
inline constexpr int CreditNote = 381;
inline constexpr int CorrectedInvoice = 384;
} // namespace TypeCode

/// An earlier invoice a credit note or correction refers to (BG-3).
struct PrecedingInvoice
{
    /// BT-25.
    QString number;
    /// BT-26.
    QDate issueDate;

    bool operator==(const PrecedingInvoice &) const = default;
};

/// Why the lines of one VAT category carry no VAT (BT-120, BT-121). For
/// categories AE, K, G and O the library adds the usual VATEX code when the
/// host gives neither text nor code; an exempt category E needs one from the host.
struct VatExemption
{
    /// The category it explains (BT-118).
    QString category;
    /// BT-120.
    QString reason;
    /// BT-121, e.g. "VATEX-EU-132" or "VATEX-EU-AE".
    QString reasonCode;

    bool operator==(const VatExemption &) const = default;
};

/// A document that supports the invoice (BG-24): a time sheet, a
/// price list, a delivery note, given by reference or attached.
struct SupportingDocument
{
    /// BT-122: the document's identifier; required.
    QString id;
    /// BT-123: what it is.
    QString description;
    /// BT-124: where it can be found.
    QString externalUri;
    /// BT-125: the attached document, base64 encoded as in the UBL document.
    QString attachmentBase64;
    /// BT-125-1: the attachment's MIME type ("application/pdf").
    QString attachmentMimeCode;
    /// BT-125-2: the attachment's file name.
    QString attachmentFilename;

    bool operator==(const SupportingDocument &) const = default;
};

/// Where and when the goods or services were delivered (BG-13).
struct Delivery
{
    /// BT-70: the name of the party delivered to.
    QString partyName;
    /// BT-71 with scheme BT-71-1: the location's identifier.
    Identifier locationId;
    /// BT-72: the actual delivery date.
    QDate date;
    /// BG-15: the address delivered to.
    PostalAddress address;

    bool isEmpty() const { return *this == Delivery(); }
    bool operator==(const Delivery &) const = default;
};

/// An invoice or credit note as a value: what the host states. The VAT
/// breakdown and the totals are never typed in: computeAmounts() derives them
/// by the rules of the e-invoice norm. A document read from UBL keeps the
/// amounts it states in statedAmounts, so that it is written back unchanged.
///
/// Empty texts, invalid dates and absent optionals mean "not given".
struct Invoice
{
    DocumentKind kind = DocumentKind::Invoice;
    /// BT-3: 0 means 380 for an invoice and 381 for a credit note.
    int typeCode = 0;
    /// BT-1: the invoice number; required.
    QString number;
    /// BT-2: required.
    QDate issueDate;
    /// BT-9: the payment due date.
    QDate dueDate;
    /// BT-7: the VAT point date, when it differs from the issue date.
    QDate taxPointDate;
    /// BT-5: the ISO 4217 currency of all amounts.
    QString currency = QStringLiteral("EUR");
    /// BT-6: the VAT accounting currency, when it differs from BT-5.
    QString vatAccountingCurrency;
    /// BT-19: the buyer's accounting reference.
    QString accountingCost;
    /// BT-10: the buyer's reference (a Peppol document needs this one or the
    /// purchase order reference).
    QString buyerReference;
    /// BT-11.
    QString projectReference;
    /// BT-12.
    QString contractReference;
    /// BT-13: the buyer's purchase order.
    QString purchaseOrderReference;
    /// BT-14: the seller's sales order.
    QString salesOrderReference;
    /// BT-15.
    QString receivingAdviceReference;
    /// BT-16.
    QString despatchAdviceReference;
    /// BT-17.
    QString tenderReference;
    /// BT-18 with scheme BT-18-1: an object the invoice is for (a
    /// subscription, a meter, a call).
    Identifier invoicedObject;
    /// BT-20: the payment terms as text.
    QString paymentTerms;
    /// BT-22: free text notes, one per entry.
    QStringList notes;
    /// BG-3: the invoices a credit note or correction refers to.
    QList<PrecedingInvoice> precedingInvoices;
    /// BG-4: the seller.
    Party seller;
    /// BG-7: the buyer.
    Party buyer;
    /// BG-13: the delivery.
    Delivery delivery;
    /// BG-14: the invoicing period (BT-73, BT-74).
    QDate periodStart;
    QDate periodEnd;
    /// BG-16: the payment means, usually one.
    QList<PaymentMeans> paymentMeans;
    /// BG-20 / BG-21: the document-level allowances and charges.
    QList<AllowanceCharge> allowanceCharges;
    /// BG-25: the lines; at least one.
    QList<InvoiceLine> lines;
    /// BG-24: supporting documents.
    QList<SupportingDocument> supportingDocuments;
    /// BT-120 / BT-121 per VAT category.
    QList<VatExemption> vatExemptions;
    /// BT-113: the amount already paid.
    std::optional<Decimal> paidAmount;
    /// BT-114: the rounding amount.
    std::optional<Decimal> roundingAmount;
    /// BT-111: the VAT total in the VAT accounting currency (BT-6); the host
    /// gives it, as only it knows the exchange rate.
    std::optional<Decimal> vatTotalInAccountingCurrency;
    /// The amounts a document that was read states (line net amounts, VAT
    /// breakdown, totals); absent for a document the host built.
    std::optional<InvoiceAmounts> statedAmounts;

    /// BT-3 with the default of the kind filled in.
    int effectiveTypeCode() const
    {
        if (typeCode != 0)
            return typeCode;
        return kind == DocumentKind::CreditNote ? TypeCode::CreditNote
                                                : TypeCode::CommercialInvoice;
    }

    bool operator==(const Invoice &) const = default;
};

} // namespace qor::einvoice
