#include "einvoice/ublwriter.h"

#include "einvoice/invoicetotals.h"
#include "einvoice/ublnames.h"
#include "einvoice/ublreference.h"
#include "einvoice/xmlbuilder.h"

#include <QXmlStreamWriter>

namespace qor::einvoice {

namespace {

// Writes the elements of one document. Element names carry their prefixes
// ("cbc:ID"), bound once on the root element.
template <typename Writer> class DocumentWriter
{
public:
    DocumentWriter(const Invoice &invoice, QString *out, UblLayout layout)
        : m_invoice(invoice)
        , m_amounts(amountsToWrite(invoice))
        , m_creditNote(invoice.kind == DocumentKind::CreditNote)
        , m_xml(out)
    {
        m_xml.setAutoFormatting(layout == UblLayout::Indented);
        m_xml.setAutoFormattingIndent(2);
    }

    void write();

private:
    void start(const QString &name) { m_xml.writeStartElement(name); }
    void end() { m_xml.writeEndElement(); }
    void text(const QString &name, const QString &value);
    void text(const QString &name, const QString &value, const QString &attribute,
        const QString &attributeValue);
    void identifier(const QString &name, const Identifier &value);
    void date(const QString &name, const QDate &value);
    void amount(const QString &name, const Decimal &value);
    void amount(const QString &name, const std::optional<Decimal> &value);
    void idElement(const QString &wrapper, const QString &id);

    void header();
    void references();
    void party(const QString &role, const Party &party);
    void address(const QString &name, const PostalAddress &address);
    void delivery();
    void payment();
    void allowanceCharge(const AllowanceCharge &item, bool documentLevel);
    void taxCategory(
        const QString &name, const QString &category, const std::optional<Decimal> &rate);
    void taxTotals();
    void monetaryTotal();
    void line(const InvoiceLine &line, qsizetype index);
    void item(const InvoiceLine &line);
    void price(const InvoiceLine &line);

    const Invoice &m_invoice;
    const InvoiceAmounts m_amounts;
    const bool m_creditNote;
    Writer m_xml;
};

template <typename Writer>
void DocumentWriter<Writer>::text(const QString &name, const QString &value)
{
    if (!value.isEmpty())
        m_xml.writeTextElement(name, value);
}

template <typename Writer>
void DocumentWriter<Writer>::text(const QString &name, const QString &value,
    const QString &attribute, const QString &attributeValue)
{
    if (value.isEmpty())
        return;
    start(name);
    if (!attributeValue.isEmpty())
        m_xml.writeAttribute(attribute, attributeValue);
    m_xml.writeCharacters(value);
    end();
}

template <typename Writer>
void DocumentWriter<Writer>::identifier(const QString &name, const Identifier &value)
{
    text(name, value.id, QStringLiteral("schemeID"), value.scheme);
}

template <typename Writer>
void DocumentWriter<Writer>::date(const QString &name, const QDate &value)
{
    if (value.isValid())
        m_xml.writeTextElement(name, value.toString(Qt::ISODate));
}

template <typename Writer>
void DocumentWriter<Writer>::amount(const QString &name, const Decimal &value)
{
    text(name, value.toString(), QStringLiteral("currencyID"), m_invoice.currency);
}

template <typename Writer>
void DocumentWriter<Writer>::amount(const QString &name, const std::optional<Decimal> &value)
{
    if (value)
        amount(name, *value);
}

// <wrapper><cbc:ID>id</cbc:ID></wrapper>, when there is an id.
template <typename Writer>
void DocumentWriter<Writer>::idElement(const QString &wrapper, const QString &id)
{
    if (id.isEmpty())
        return;
    start(wrapper);
    text(QStringLiteral("cbc:ID"), id);
    end();
}

template <typename Writer> void DocumentWriter<Writer>::write()
{
    m_xml.writeStartDocument();
    start(m_creditNote ? QStringLiteral("CreditNote") : QStringLiteral("Invoice"));
    m_xml.writeDefaultNamespace(m_creditNote ? Ubl::CreditNoteNamespace : Ubl::InvoiceNamespace);
    m_xml.writeNamespace(Ubl::AggregateNamespace, QStringLiteral("cac"));
    m_xml.writeNamespace(Ubl::BasicNamespace, QStringLiteral("cbc"));
    header();
    references();
    party(QStringLiteral("cac:AccountingSupplierParty"), m_invoice.seller);
    party(QStringLiteral("cac:AccountingCustomerParty"), m_invoice.buyer);
    delivery();
    payment();
    for (const AllowanceCharge &item : m_invoice.allowanceCharges)
        allowanceCharge(item, true);
    taxTotals();
    monetaryTotal();
    for (qsizetype i = 0; i < m_invoice.lines.size(); ++i)
        line(m_invoice.lines[i], i);
    end();
    m_xml.writeEndDocument();
}

template <typename Writer> void DocumentWriter<Writer>::header()
{
    text(QStringLiteral("cbc:CustomizationID"), QString::fromUtf16(Peppol::CustomizationId));
    text(QStringLiteral("cbc:ProfileID"), QString::fromUtf16(Peppol::ProfileId));
    text(QStringLiteral("cbc:ID"), m_invoice.number);
    date(QStringLiteral("cbc:IssueDate"), m_invoice.issueDate);
    if (!m_creditNote)
        date(QStringLiteral("cbc:DueDate"), m_invoice.dueDate);
    text(m_creditNote ? QStringLiteral("cbc:CreditNoteTypeCode")
                      : QStringLiteral("cbc:InvoiceTypeCode"),
        QString::number(m_invoice.effectiveTypeCode()));
    for (const QString &note : m_invoice.notes)
        text(QStringLiteral("cbc:Note"), note);
    date(QStringLiteral("cbc:TaxPointDate"), m_invoice.taxPointDate);
    text(QStringLiteral("cbc:DocumentCurrencyCode"), m_invoice.currency);
    text(QStringLiteral("cbc:TaxCurrencyCode"), m_invoice.vatAccountingCurrency);
    text(QStringLiteral("cbc:AccountingCost"), m_invoice.accountingCost);
    text(QStringLiteral("cbc:BuyerReference"), m_invoice.buyerReference);
    if (m_invoice.periodStart.isValid() || m_invoice.periodEnd.isValid()) {
        start(QStringLiteral("cac:InvoicePeriod"));
        date(QStringLiteral("cbc:StartDate"), m_invoice.periodStart);
        date(QStringLiteral("cbc:EndDate"), m_invoice.periodEnd);
        end();
    }
}

template <typename Writer> void DocumentWriter<Writer>::references()
{
    if (!m_invoice.purchaseOrderReference.isEmpty() || !m_invoice.salesOrderReference.isEmpty()) {
        start(QStringLiteral("cac:OrderReference"));
        // The order reference is required in the element; a sales order alone
        // names no purchase order.
        m_xml.writeTextElement(QStringLiteral("cbc:ID"),
            m_invoice.purchaseOrderReference.isEmpty() ? QStringLiteral("NA")
                                                       : m_invoice.purchaseOrderReference);
        text(QStringLiteral("cbc:SalesOrderID"), m_invoice.salesOrderReference);
        end();
    }
    for (const PrecedingInvoice &preceding : m_invoice.precedingInvoices) {
        start(QStringLiteral("cac:BillingReference"));
        start(QStringLiteral("cac:InvoiceDocumentReference"));
        text(QStringLiteral("cbc:ID"), preceding.number);
        date(QStringLiteral("cbc:IssueDate"), preceding.issueDate);
        end();
        end();
    }
    idElement(QStringLiteral("cac:DespatchDocumentReference"), m_invoice.despatchAdviceReference);
    idElement(QStringLiteral("cac:ReceiptDocumentReference"), m_invoice.receivingAdviceReference);
    if (!m_creditNote)
        idElement(QStringLiteral("cac:OriginatorDocumentReference"), m_invoice.tenderReference);
    idElement(QStringLiteral("cac:ContractDocumentReference"), m_invoice.contractReference);
    if (!m_invoice.invoicedObject.isEmpty()) {
        start(QStringLiteral("cac:AdditionalDocumentReference"));
        identifier(QStringLiteral("cbc:ID"), m_invoice.invoicedObject);
        text(QStringLiteral("cbc:DocumentTypeCode"), Ubl::InvoicedObjectTypeCode);
        end();
    }
    if (m_creditNote && !m_invoice.projectReference.isEmpty()) {
        start(QStringLiteral("cac:AdditionalDocumentReference"));
        text(QStringLiteral("cbc:ID"), m_invoice.projectReference);
        text(QStringLiteral("cbc:DocumentTypeCode"), Ubl::ProjectTypeCode);
        end();
    }
    for (const SupportingDocument &document : m_invoice.supportingDocuments) {
        start(QStringLiteral("cac:AdditionalDocumentReference"));
        text(QStringLiteral("cbc:ID"), document.id);
        text(QStringLiteral("cbc:DocumentDescription"), document.description);
        if (!document.attachmentBase64.isEmpty() || !document.externalUri.isEmpty()) {
            start(QStringLiteral("cac:Attachment"));
            if (!document.attachmentBase64.isEmpty()) {
                start(QStringLiteral("cbc:EmbeddedDocumentBinaryObject"));
                m_xml.writeAttribute(QStringLiteral("mimeCode"), document.attachmentMimeCode);
                m_xml.writeAttribute(QStringLiteral("filename"), document.attachmentFilename);
                m_xml.writeCharacters(document.attachmentBase64);
                end();
            }
            if (!document.externalUri.isEmpty()) {
                start(QStringLiteral("cac:ExternalReference"));
                text(QStringLiteral("cbc:URI"), document.externalUri);
                end();
            }
            end();
        }
        end();
    }
    if (m_creditNote && !m_invoice.tenderReference.isEmpty())
        idElement(QStringLiteral("cac:OriginatorDocumentReference"), m_invoice.tenderReference);
    if (!m_creditNote)
        idElement(QStringLiteral("cac:ProjectReference"), m_invoice.projectReference);
}

template <typename Writer>
void DocumentWriter<Writer>::address(const QString &name, const PostalAddress &address)
{
    start(name);
    text(QStringLiteral("cbc:StreetName"), address.streetName);
    text(QStringLiteral("cbc:AdditionalStreetName"), address.additionalStreetName);
    text(QStringLiteral("cbc:CityName"), address.cityName);
    text(QStringLiteral("cbc:PostalZone"), address.postalZone);
    text(QStringLiteral("cbc:CountrySubentity"), address.countrySubentity);
    if (!address.addressLine3.isEmpty()) {
        start(QStringLiteral("cac:AddressLine"));
        text(QStringLiteral("cbc:Line"), address.addressLine3);
        end();
    }
    start(QStringLiteral("cac:Country"));
    text(QStringLiteral("cbc:IdentificationCode"), address.countryCode);
    end();
    end();
}

template <typename Writer>
void DocumentWriter<Writer>::party(const QString &role, const Party &party)
{
    start(role);
    start(QStringLiteral("cac:Party"));
    identifier(QStringLiteral("cbc:EndpointID"), party.electronicAddress);
    for (const Identifier &id : party.identifiers) {
        start(QStringLiteral("cac:PartyIdentification"));
        identifier(QStringLiteral("cbc:ID"), id);
        end();
    }
    if (!party.tradingName.isEmpty()) {
        start(QStringLiteral("cac:PartyName"));
        text(QStringLiteral("cbc:Name"), party.tradingName);
        end();
    }
    address(QStringLiteral("cac:PostalAddress"), party.address);
    const auto taxScheme = [this](const QString &companyId, const QString &scheme) {
        if (companyId.isEmpty())
            return;
        start(QStringLiteral("cac:PartyTaxScheme"));
        text(QStringLiteral("cbc:CompanyID"), companyId);
        start(QStringLiteral("cac:TaxScheme"));
        text(QStringLiteral("cbc:ID"), scheme);
        end();
        end();
    };
    taxScheme(party.vatIdentifier, Ubl::VatScheme);
    taxScheme(party.taxRegistration, QStringLiteral("TAX"));
    start(QStringLiteral("cac:PartyLegalEntity"));
    text(QStringLiteral("cbc:RegistrationName"), party.name);
    identifier(QStringLiteral("cbc:CompanyID"), party.legalRegistration);
    text(QStringLiteral("cbc:CompanyLegalForm"), party.legalForm);
    end();
    if (!party.contact.isEmpty()) {
        start(QStringLiteral("cac:Contact"));
        text(QStringLiteral("cbc:Name"), party.contact.name);
        text(QStringLiteral("cbc:Telephone"), party.contact.telephone);
        text(QStringLiteral("cbc:ElectronicMail"), party.contact.email);
        end();
    }
    end();
    end();
}

template <typename Writer> void DocumentWriter<Writer>::delivery()
{
    const Delivery &delivery = m_invoice.delivery;
    if (delivery.isEmpty())
        return;
    start(QStringLiteral("cac:Delivery"));
    date(QStringLiteral("cbc:ActualDeliveryDate"), delivery.date);
    if (!delivery.locationId.isEmpty() || !delivery.address.isEmpty()) {
        start(QStringLiteral("cac:DeliveryLocation"));
        identifier(QStringLiteral("cbc:ID"), delivery.locationId);
        if (!delivery.address.isEmpty())
            address(QStringLiteral("cac:Address"), delivery.address);
        end();
    }
    if (!delivery.partyName.isEmpty()) {
        start(QStringLiteral("cac:DeliveryParty"));
        start(QStringLiteral("cac:PartyName"));
        text(QStringLiteral("cbc:Name"), delivery.partyName);
        end();
        end();
    }
    end();
}

template <typename Writer> void DocumentWriter<Writer>::payment()
{
    bool first = true;
    for (const PaymentMeans &means : m_invoice.paymentMeans) {
        start(QStringLiteral("cac:PaymentMeans"));
        text(
            QStringLiteral("cbc:PaymentMeansCode"), means.code, QStringLiteral("name"), means.text);
        // A credit note carries its due date in its (first) payment means.
        if (m_creditNote && first)
            date(QStringLiteral("cbc:PaymentDueDate"), m_invoice.dueDate);
        first = false;
        text(QStringLiteral("cbc:PaymentID"), means.remittanceInformation);
        if (!means.accountId.isEmpty()) {
            start(QStringLiteral("cac:PayeeFinancialAccount"));
            text(QStringLiteral("cbc:ID"), means.accountId);
            text(QStringLiteral("cbc:Name"), means.accountName);
            idElement(QStringLiteral("cac:FinancialInstitutionBranch"), means.bic);
            end();
        }
        if (!means.mandateReference.isEmpty() || !means.debitedAccountId.isEmpty()) {
            start(QStringLiteral("cac:PaymentMandate"));
            text(QStringLiteral("cbc:ID"), means.mandateReference);
            idElement(QStringLiteral("cac:PayerFinancialAccount"), means.debitedAccountId);
            end();
        }
        end();
    }
    if (!m_invoice.paymentTerms.isEmpty()) {
        start(QStringLiteral("cac:PaymentTerms"));
        text(QStringLiteral("cbc:Note"), m_invoice.paymentTerms);
        end();
    }
}

template <typename Writer>
void DocumentWriter<Writer>::taxCategory(
    const QString &name, const QString &category, const std::optional<Decimal> &rate)
{
    start(name);
    text(QStringLiteral("cbc:ID"), category);
    if (rate)
        text(QStringLiteral("cbc:Percent"), rate->toString());
}

template <typename Writer>
void DocumentWriter<Writer>::allowanceCharge(const AllowanceCharge &item, bool documentLevel)
{
    start(QStringLiteral("cac:AllowanceCharge"));
    text(QStringLiteral("cbc:ChargeIndicator"),
        item.isCharge ? QStringLiteral("true") : QStringLiteral("false"));
    text(QStringLiteral("cbc:AllowanceChargeReasonCode"), item.reasonCode);
    text(QStringLiteral("cbc:AllowanceChargeReason"), item.reason);
    if (item.percentage)
        text(QStringLiteral("cbc:MultiplierFactorNumeric"), item.percentage->toString());
    amount(QStringLiteral("cbc:Amount"), item.amount);
    amount(QStringLiteral("cbc:BaseAmount"), item.baseAmount);
    if (documentLevel) {
        taxCategory(QStringLiteral("cac:TaxCategory"), item.vatCategory, item.vatRate);
        start(QStringLiteral("cac:TaxScheme"));
        text(QStringLiteral("cbc:ID"), Ubl::VatScheme);
        end();
        end();
    }
    end();
}

template <typename Writer> void DocumentWriter<Writer>::taxTotals()
{
    start(QStringLiteral("cac:TaxTotal"));
    amount(QStringLiteral("cbc:TaxAmount"), m_amounts.totals.vatTotal);
    for (const VatBreakdown &entry : m_amounts.vatBreakdown) {
        start(QStringLiteral("cac:TaxSubtotal"));
        amount(QStringLiteral("cbc:TaxableAmount"), entry.taxableAmount);
        amount(QStringLiteral("cbc:TaxAmount"), entry.taxAmount);
        taxCategory(QStringLiteral("cac:TaxCategory"), entry.category, entry.rate);
        text(QStringLiteral("cbc:TaxExemptionReasonCode"), entry.exemptionReasonCode);
        text(QStringLiteral("cbc:TaxExemptionReason"), entry.exemptionReason);
        start(QStringLiteral("cac:TaxScheme"));
        text(QStringLiteral("cbc:ID"), Ubl::VatScheme);
        end();
        end();
        end();
    }
    end();
    // The VAT total in the VAT accounting currency has a total of its own.
    if (m_amounts.totals.vatTotalInAccountingCurrency
        && !m_invoice.vatAccountingCurrency.isEmpty()) {
        start(QStringLiteral("cac:TaxTotal"));
        text(QStringLiteral("cbc:TaxAmount"),
            m_amounts.totals.vatTotalInAccountingCurrency->toString(), QStringLiteral("currencyID"),
            m_invoice.vatAccountingCurrency);
        end();
    }
}

template <typename Writer> void DocumentWriter<Writer>::monetaryTotal()
{
    const DocumentTotals &totals = m_amounts.totals;
    start(QStringLiteral("cac:LegalMonetaryTotal"));
    amount(QStringLiteral("cbc:LineExtensionAmount"), totals.lineNetTotal);
    amount(QStringLiteral("cbc:TaxExclusiveAmount"), totals.taxExclusiveAmount);
    amount(QStringLiteral("cbc:TaxInclusiveAmount"), totals.taxInclusiveAmount);
    if (!totals.allowanceTotal.isZero())
        amount(QStringLiteral("cbc:AllowanceTotalAmount"), totals.allowanceTotal);
    if (!totals.chargeTotal.isZero())
        amount(QStringLiteral("cbc:ChargeTotalAmount"), totals.chargeTotal);
    if (!totals.paidAmount.isZero())
        amount(QStringLiteral("cbc:PrepaidAmount"), totals.paidAmount);
    if (!totals.roundingAmount.isZero())
        amount(QStringLiteral("cbc:PayableRoundingAmount"), totals.roundingAmount);
    amount(QStringLiteral("cbc:PayableAmount"), totals.payableAmount);
    end();
}

template <typename Writer>
void DocumentWriter<Writer>::line(const InvoiceLine &line, qsizetype index)
{
    start(m_creditNote ? QStringLiteral("cac:CreditNoteLine") : QStringLiteral("cac:InvoiceLine"));
    text(QStringLiteral("cbc:ID"), line.id);
    text(QStringLiteral("cbc:Note"), line.note);
    text(m_creditNote ? QStringLiteral("cbc:CreditedQuantity")
                      : QStringLiteral("cbc:InvoicedQuantity"),
        line.quantity.toString(), QStringLiteral("unitCode"), line.unitCode);
    const Decimal net = line.statedNetAmount      ? *line.statedNetAmount
        : index < m_amounts.lineNetAmounts.size() ? m_amounts.lineNetAmounts[index]
                                                  : lineNetAmount(line);
    amount(QStringLiteral("cbc:LineExtensionAmount"), net);
    text(QStringLiteral("cbc:AccountingCost"), line.accountingCost);
    if (line.periodStart.isValid() || line.periodEnd.isValid()) {
        start(QStringLiteral("cac:InvoicePeriod"));
        date(QStringLiteral("cbc:StartDate"), line.periodStart);
        date(QStringLiteral("cbc:EndDate"), line.periodEnd);
        end();
    }
    if (!line.orderLineReference.isEmpty()) {
        start(QStringLiteral("cac:OrderLineReference"));
        text(QStringLiteral("cbc:LineID"), line.orderLineReference);
        end();
    }
    if (!line.objectIdentifier.isEmpty()) {
        start(QStringLiteral("cac:DocumentReference"));
        identifier(QStringLiteral("cbc:ID"), line.objectIdentifier);
        text(QStringLiteral("cbc:DocumentTypeCode"), Ubl::InvoicedObjectTypeCode);
        end();
    }
    for (const AllowanceCharge &item : line.allowanceCharges)
        allowanceCharge(item, false);
    item(line);
    price(line);
    end();
}

template <typename Writer> void DocumentWriter<Writer>::item(const InvoiceLine &line)
{
    start(QStringLiteral("cac:Item"));
    text(QStringLiteral("cbc:Description"), line.itemDescription);
    text(QStringLiteral("cbc:Name"), line.itemName);
    idElement(QStringLiteral("cac:BuyersItemIdentification"), line.buyersItemId);
    idElement(QStringLiteral("cac:SellersItemIdentification"), line.sellersItemId);
    if (!line.standardItemId.isEmpty()) {
        start(QStringLiteral("cac:StandardItemIdentification"));
        identifier(QStringLiteral("cbc:ID"), line.standardItemId);
        end();
    }
    if (!line.originCountry.isEmpty()) {
        start(QStringLiteral("cac:OriginCountry"));
        text(QStringLiteral("cbc:IdentificationCode"), line.originCountry);
        end();
    }
    for (const Identifier &classification : line.classifications) {
        start(QStringLiteral("cac:CommodityClassification"));
        text(QStringLiteral("cbc:ItemClassificationCode"), classification.id,
            QStringLiteral("listID"), classification.scheme);
        end();
    }
    taxCategory(QStringLiteral("cac:ClassifiedTaxCategory"), line.vatCategory, line.vatRate);
    start(QStringLiteral("cac:TaxScheme"));
    text(QStringLiteral("cbc:ID"), Ubl::VatScheme);
    end();
    end();
    for (const ItemAttribute &attribute : line.attributes) {
        start(QStringLiteral("cac:AdditionalItemProperty"));
        text(QStringLiteral("cbc:Name"), attribute.name);
        text(QStringLiteral("cbc:Value"), attribute.value);
        end();
    }
    end();
}

template <typename Writer> void DocumentWriter<Writer>::price(const InvoiceLine &line)
{
    start(QStringLiteral("cac:Price"));
    amount(QStringLiteral("cbc:PriceAmount"), line.netPrice);
    if (line.baseQuantity)
        text(QStringLiteral("cbc:BaseQuantity"), line.baseQuantity->toString(),
            QStringLiteral("unitCode"), line.baseQuantityUnit);
    // The price discount and gross price: each follows from the other and
    // the net price when only one is given.
    if (line.priceDiscount || line.grossPrice) {
        start(QStringLiteral("cac:AllowanceCharge"));
        text(QStringLiteral("cbc:ChargeIndicator"), QStringLiteral("false"));
        amount(QStringLiteral("cbc:Amount"),
            line.priceDiscount.value_or(line.grossPrice.value_or(Decimal()) - line.netPrice));
        amount(QStringLiteral("cbc:BaseAmount"),
            line.grossPrice.value_or(line.netPrice + line.priceDiscount.value_or(Decimal())));
        end();
    }
    end();
}

} // namespace

namespace {

template <typename Writer> QByteArray writeWith(const Invoice &invoice, UblLayout layout)
{
    // Written as text first and encoded once: much faster than encoding each
    // piece on its way into a byte array.
    QString out;
    out.reserve(16 * 1024);
    DocumentWriter<Writer>(invoice, &out, layout).write();
    return out.toUtf8();
}

} // namespace

QByteArray writeUbl(const Invoice &invoice, UblLayout layout)
{
    return writeWith<XmlBuilder>(invoice, layout);
}

QByteArray writeUblWithQtWriter(const Invoice &invoice, UblLayout layout)
{
    return writeWith<QXmlStreamWriter>(invoice, layout);
}

} // namespace qor::einvoice
