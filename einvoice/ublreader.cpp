#include "einvoice/ublreader.h"

#include "einvoice/isodate.h"
#include "einvoice/ublnames.h"
#include "einvoice/ublreference.h"
#include "einvoice/xmlcursor.h"

#include <QXmlStreamReader>

namespace qor::einvoice {

namespace {

QString attributeValue(const QXmlStreamReader &xml, QLatin1StringView name)
{
    return xml.attributes().value(name).toString();
}

QString attributeValue(const XmlCursor &xml, QLatin1StringView name)
{
    return xml.attributeValue(name);
}

// Reads one document by descending through the elements the model knows.
// Each reading function is called on a start element and leaves the reader
// on its end element. An element a function does not know is skipped and
// reported as dropped.
template <typename Xml> class DocumentReader
{
public:
    DocumentReader(Xml &xml, UblReadResult &result)
        : m_xml(xml)
        , m_result(result)
        , m_invoice(result.invoice)
    { }

    void read();

private:
    bool toRoot();
    bool readRoot();
    // Calls handle(name) for every child element; a child it does not take
    // (handle returns false) is dropped.
    template <typename Handle> void children(Handle handle);
    void drop();
    void error(const QString &message);
    QString place() const;
    QString path() const;
    void enterElement();
    bool inNamespace(const QString &uri) const { return m_xml.namespaceUri() == uri; }

    QString text();
    QString attribute(QLatin1StringView name) const;
    Decimal decimal();
    std::optional<Decimal> optionalDecimal() { return decimal(); }
    QDate date();
    Identifier identifier(QLatin1StringView schemeAttribute = QLatin1StringView("schemeID"));
    // The text of the one child an element holds (its cbc:ID, its cbc:Name, ...).
    QString childText(QStringView child);
    QString idOf() { return childText(u"ID"); }
    // The start and end dates of a period.
    void period(QDate &start, QDate &end);
    void checkCurrency();

    bool root(QStringView name);
    bool references(QStringView name);
    void additionalDocument();
    void party(Party &party);
    bool partyMember(QStringView name, Party &party);
    void address(PostalAddress &address);
    void delivery();
    void paymentMeans();
    void allowanceCharge(AllowanceCharge &item);
    // A tax category: its id, rate and (for a breakdown) exemption reason.
    void taxCategory(QString &category, std::optional<Decimal> &rate, VatBreakdown *breakdown);
    void taxTotal();
    void monetaryTotal();
    void line();
    bool lineMember(QStringView name, InvoiceLine &line);
    void item(InvoiceLine &line);
    void price(InvoiceLine &line);

    Xml &m_xml;
    UblReadResult &m_result;
    Invoice &m_invoice;
    InvoiceAmounts m_stated;
    bool m_creditNote = false;
    // The names of the elements being read, root first. The cursor's names
    // stay valid for the whole document; QXmlStreamReader's must be copied.
    QList<std::conditional_t<std::is_same_v<Xml, XmlCursor>, QStringView, QString>> m_path;
    // Where the element being read starts (just after its start tag).
    qint64 m_elementLine = 0;
    qint64 m_elementColumn = 0;
};

template <typename Xml> template <typename Handle> void DocumentReader<Xml>::children(Handle handle)
{
    while (m_xml.readNextStartElement()) {
        enterElement();
        m_elementLine = m_xml.lineNumber();
        m_elementColumn = m_xml.columnNumber();
        const bool ours = inNamespace(Ubl::BasicNamespace) || inNamespace(Ubl::AggregateNamespace);
        if (!ours || !handle(m_xml.name()))
            drop();
        m_path.removeLast();
    }
}

template <typename Xml> void DocumentReader<Xml>::enterElement()
{
    if constexpr (std::is_same_v<Xml, XmlCursor>)
        m_path.append(m_xml.name());
    else
        m_path.append(m_xml.name().toString());
}

template <typename Xml> QString DocumentReader<Xml>::path() const
{
    QString joined;
    for (QStringView name : m_path) {
        if (!joined.isEmpty())
            joined.append(u'/');
        joined.append(name);
    }
    return joined;
}

template <typename Xml> QString DocumentReader<Xml>::place() const
{
    return QStringLiteral("%1 (line %2, column %3)")
        .arg(path())
        .arg(m_elementLine)
        .arg(m_elementColumn);
}

template <typename Xml> void DocumentReader<Xml>::drop()
{
    m_result.dropped.append(QStringLiteral("%1 (line %2)").arg(path()).arg(m_xml.lineNumber()));
    m_xml.skipCurrentElement();
}

template <typename Xml> void DocumentReader<Xml>::error(const QString &message)
{
    m_result.errors.append(place() + QStringLiteral(": ") + message);
}

template <typename Xml> QString DocumentReader<Xml>::text()
{
    return m_xml.readElementText(QXmlStreamReader::SkipChildElements);
}

template <typename Xml> QString DocumentReader<Xml>::attribute(QLatin1StringView name) const
{
    return attributeValue(m_xml, name);
}

template <typename Xml> Decimal DocumentReader<Xml>::decimal()
{
    const QString value = text().trimmed();
    const QString problem = Decimal::parseError(value);
    if (!problem.isEmpty()) {
        error(problem);
        return Decimal();
    }
    return Decimal::parse(value);
}

template <typename Xml> QDate DocumentReader<Xml>::date()
{
    const QString value = text().trimmed();
    const QDate read = parseIsoDate(value);
    if (!read.isValid())
        error(QStringLiteral("\"%1\" is not a date that exists (YYYY-MM-DD)").arg(value.left(40)));
    return read;
}

template <typename Xml>
Identifier DocumentReader<Xml>::identifier(QLatin1StringView schemeAttribute)
{
    Identifier id;
    id.scheme = attribute(schemeAttribute);
    id.id = text();
    return id;
}

template <typename Xml> QString DocumentReader<Xml>::childText(QStringView child)
{
    QString value;
    children([&](QStringView name) {
        if (name != child)
            return false;
        value = text();
        return true;
    });
    return value;
}

template <typename Xml> void DocumentReader<Xml>::period(QDate &start, QDate &end)
{
    children([&](QStringView name) {
        if (name == u"StartDate")
            start = date();
        else if (name == u"EndDate")
            end = date();
        else
            return false;
        return true;
    });
}

// Amounts in another currency than the document's are not the document's
// amounts (only the VAT total in the accounting currency is, read apart).
template <typename Xml> void DocumentReader<Xml>::checkCurrency()
{
    const QString currency = attribute(QLatin1StringView("currencyID"));
    if (!currency.isEmpty() && currency != m_invoice.currency)
        error(QStringLiteral("amount in %1 in a document in %2").arg(currency, m_invoice.currency));
}

// Moves to the root element. A DOCTYPE is refused as soon as it is met, so
// that no entity it declares is ever used.
template <typename Xml> bool DocumentReader<Xml>::toRoot()
{
    while (!m_xml.atEnd()) {
        switch (m_xml.readNext()) {
        case QXmlStreamReader::DTD:
            m_result.errors.append(QStringLiteral("line %1, column %2: a DOCTYPE is not accepted "
                                                  "in an e-invoice")
                                       .arg(m_xml.lineNumber())
                                       .arg(m_xml.columnNumber()));
            return false;
        case QXmlStreamReader::StartElement: return true;
        default: break;
        }
    }
    return false;
}

template <typename Xml> bool DocumentReader<Xml>::readRoot()
{
    if (m_xml.name() == u"Invoice" && inNamespace(Ubl::InvoiceNamespace)) {
        m_invoice.kind = DocumentKind::Invoice;
    } else if (m_xml.name() == u"CreditNote" && inNamespace(Ubl::CreditNoteNamespace)) {
        m_invoice.kind = DocumentKind::CreditNote;
        m_creditNote = true;
    } else {
        m_result.errors.append(
            QStringLiteral("line %1: the document is a {%2}%3, not a UBL Invoice or CreditNote")
                .arg(m_xml.lineNumber())
                .arg(m_xml.namespaceUri().toString(), m_xml.name().toString()));
        return false;
    }
    enterElement();
    children([this](QStringView name) { return root(name); });
    // What follows the root must still be well-formed.
    while (!m_xml.atEnd())
        m_xml.readNext();
    return true;
}

template <typename Xml> void DocumentReader<Xml>::read()
{
    if (toRoot() && !readRoot())
        return;
    if (m_xml.hasError()) {
        m_result.errors.append(QStringLiteral("line %1, column %2: %3")
                                   .arg(m_xml.lineNumber())
                                   .arg(m_xml.columnNumber())
                                   .arg(m_xml.errorString()));
        return;
    }
    if (m_path.isEmpty()) {
        if (m_result.errors.isEmpty())
            m_result.errors.append(QStringLiteral("the document has no XML element"));
        return;
    }
    for (InvoiceLine &line : m_invoice.lines)
        m_stated.lineNetAmounts.append(line.statedNetAmount.value_or(Decimal()));
    m_invoice.statedAmounts = m_stated;
    m_result.differences = compareAmounts(m_stated, computeAmounts(m_invoice));
}

template <typename Xml> bool DocumentReader<Xml>::root(QStringView name)
{
    if (name == u"CustomizationID" || name == u"ProfileID") {
        // Written back, the document carries the Peppol identifiers.
        const QString value = text();
        const QString peppol = QString::fromUtf16(
            name == u"ProfileID" ? Peppol::ProfileId : Peppol::CustomizationId);
        if (value != peppol)
            m_result.dropped.append(
                place() + QStringLiteral(": \"%1\" becomes \"%2\"").arg(value, peppol));
    } else if (name == u"ID") {
        m_invoice.number = text();
    } else if (name == u"IssueDate") {
        m_invoice.issueDate = date();
    } else if (name == u"DueDate" && !m_creditNote) {
        m_invoice.dueDate = date();
    } else if (name == (m_creditNote ? u"CreditNoteTypeCode" : u"InvoiceTypeCode")) {
        bool number = false;
        const QString value = text();
        m_invoice.typeCode = value.trimmed().toInt(&number);
        if (!number || m_invoice.typeCode < 1 || m_invoice.typeCode > 999) {
            error(QStringLiteral("\"%1\" is not a document type code").arg(value.left(40)));
            m_invoice.typeCode = 0;
        }
    } else if (name == u"Note") {
        m_invoice.notes.append(text());
    } else if (name == u"TaxPointDate") {
        m_invoice.taxPointDate = date();
    } else if (name == u"DocumentCurrencyCode") {
        m_invoice.currency = text();
    } else if (name == u"TaxCurrencyCode") {
        m_invoice.vatAccountingCurrency = text();
    } else if (name == u"AccountingCost") {
        m_invoice.accountingCost = text();
    } else if (name == u"BuyerReference") {
        m_invoice.buyerReference = text();
    } else if (name == u"InvoicePeriod") {
        period(m_invoice.periodStart, m_invoice.periodEnd);
    } else if (references(name)) {
    } else if (name == u"AccountingSupplierParty") {
        party(m_invoice.seller);
    } else if (name == u"AccountingCustomerParty") {
        party(m_invoice.buyer);
    } else if (name == u"Delivery") {
        delivery();
    } else if (name == u"PaymentMeans") {
        paymentMeans();
    } else if (name == u"PaymentTerms") {
        m_invoice.paymentTerms = childText(u"Note");
    } else if (name == u"AllowanceCharge") {
        allowanceCharge(m_invoice.allowanceCharges.emplace_back());
    } else if (name == u"TaxTotal") {
        taxTotal();
    } else if (name == u"LegalMonetaryTotal") {
        monetaryTotal();
    } else if (name == (m_creditNote ? u"CreditNoteLine" : u"InvoiceLine")) {
        line();
    } else {
        return false;
    }
    return true;
}

template <typename Xml> bool DocumentReader<Xml>::references(QStringView name)
{
    if (name == u"OrderReference") {
        children([this](QStringView child) {
            if (child == u"ID")
                m_invoice.purchaseOrderReference = text();
            else if (child == u"SalesOrderID")
                m_invoice.salesOrderReference = text();
            else
                return false;
            return true;
        });
    } else if (name == u"BillingReference") {
        children([this](QStringView child) {
            if (child != u"InvoiceDocumentReference")
                return false;
            PrecedingInvoice &preceding = m_invoice.precedingInvoices.emplace_back();
            children([&](QStringView member) {
                if (member == u"ID")
                    preceding.number = text();
                else if (member == u"IssueDate")
                    preceding.issueDate = date();
                else
                    return false;
                return true;
            });
            return true;
        });
    } else if (name == u"DespatchDocumentReference") {
        m_invoice.despatchAdviceReference = idOf();
    } else if (name == u"ReceiptDocumentReference") {
        m_invoice.receivingAdviceReference = idOf();
    } else if (name == u"OriginatorDocumentReference") {
        m_invoice.tenderReference = idOf();
    } else if (name == u"ContractDocumentReference") {
        m_invoice.contractReference = idOf();
    } else if (name == u"ProjectReference") {
        m_invoice.projectReference = idOf();
    } else if (name == u"AdditionalDocumentReference") {
        additionalDocument();
    } else {
        return false;
    }
    return true;
}

// A supporting document, or the invoiced object (type code 130), or the
// project reference of a credit note (type code 50).
template <typename Xml> void DocumentReader<Xml>::additionalDocument()
{
    SupportingDocument document;
    Identifier id;
    QString typeCode;
    children([&](QStringView name) {
        if (name == u"ID") {
            id = identifier();
        } else if (name == u"DocumentTypeCode") {
            typeCode = text();
        } else if (name == u"DocumentDescription") {
            document.description = text();
        } else if (name == u"Attachment") {
            children([&](QStringView child) {
                if (child == u"EmbeddedDocumentBinaryObject") {
                    document.attachmentMimeCode = attribute(QLatin1StringView("mimeCode"));
                    document.attachmentFilename = attribute(QLatin1StringView("filename"));
                    document.attachmentBase64 = text();
                } else if (child == u"ExternalReference") {
                    document.externalUri = childText(u"URI");
                } else {
                    return false;
                }
                return true;
            });
        } else {
            return false;
        }
        return true;
    });
    if (typeCode == Ubl::InvoicedObjectTypeCode) {
        m_invoice.invoicedObject = id;
    } else if (typeCode == Ubl::ProjectTypeCode && m_creditNote) {
        m_invoice.projectReference = id.id;
    } else {
        document.id = id.id;
        m_invoice.supportingDocuments.append(document);
    }
}

template <typename Xml> void DocumentReader<Xml>::party(Party &party)
{
    children([&](QStringView name) {
        if (name != u"Party")
            return false;
        children([&](QStringView member) { return partyMember(member, party); });
        return true;
    });
}

template <typename Xml> bool DocumentReader<Xml>::partyMember(QStringView name, Party &party)
{
    if (name == u"EndpointID") {
        party.electronicAddress = identifier();
    } else if (name == u"PartyIdentification") {
        children([&](QStringView child) {
            if (child != u"ID")
                return false;
            party.identifiers.append(identifier());
            return true;
        });
    } else if (name == u"PartyName") {
        party.tradingName = childText(u"Name");
    } else if (name == u"PostalAddress") {
        address(party.address);
    } else if (name == u"PartyTaxScheme") {
        QString companyId;
        QString scheme;
        children([&](QStringView child) {
            if (child == u"CompanyID")
                companyId = text();
            else if (child == u"TaxScheme")
                scheme = idOf();
            else
                return false;
            return true;
        });
        (scheme == Ubl::VatScheme ? party.vatIdentifier : party.taxRegistration) = companyId;
    } else if (name == u"PartyLegalEntity") {
        children([&](QStringView child) {
            if (child == u"RegistrationName")
                party.name = text();
            else if (child == u"CompanyID")
                party.legalRegistration = identifier();
            else if (child == u"CompanyLegalForm")
                party.legalForm = text();
            else
                return false;
            return true;
        });
    } else if (name == u"Contact") {
        children([&](QStringView child) {
            if (child == u"Name")
                party.contact.name = text();
            else if (child == u"Telephone")
                party.contact.telephone = text();
            else if (child == u"ElectronicMail")
                party.contact.email = text();
            else
                return false;
            return true;
        });
    } else {
        return false;
    }
    return true;
}

template <typename Xml> void DocumentReader<Xml>::address(PostalAddress &address)
{
    children([&](QStringView name) {
        if (name == u"StreetName") {
            address.streetName = text();
        } else if (name == u"AdditionalStreetName") {
            address.additionalStreetName = text();
        } else if (name == u"CityName") {
            address.cityName = text();
        } else if (name == u"PostalZone") {
            address.postalZone = text();
        } else if (name == u"CountrySubentity") {
            address.countrySubentity = text();
        } else if (name == u"AddressLine") {
            address.addressLine3 = childText(u"Line");
        } else if (name == u"Country") {
            address.countryCode = childText(u"IdentificationCode");
        } else {
            return false;
        }
        return true;
    });
}

template <typename Xml> void DocumentReader<Xml>::delivery()
{
    Delivery &delivery = m_invoice.delivery;
    children([&](QStringView name) {
        if (name == u"ActualDeliveryDate") {
            delivery.date = date();
        } else if (name == u"DeliveryLocation") {
            children([&](QStringView child) {
                if (child == u"ID")
                    delivery.locationId = identifier();
                else if (child == u"Address")
                    address(delivery.address);
                else
                    return false;
                return true;
            });
        } else if (name == u"DeliveryParty") {
            children([&](QStringView child) {
                if (child != u"PartyName")
                    return false;
                delivery.partyName = childText(u"Name");
                return true;
            });
        } else {
            return false;
        }
        return true;
    });
}

template <typename Xml> void DocumentReader<Xml>::paymentMeans()
{
    PaymentMeans &means = m_invoice.paymentMeans.emplace_back();
    children([&](QStringView name) {
        if (name == u"PaymentMeansCode") {
            means.text = attribute(QLatin1StringView("name"));
            means.code = text();
        } else if (name == u"PaymentDueDate" && m_creditNote) {
            m_invoice.dueDate = date();
        } else if (name == u"PaymentID") {
            means.remittanceInformation = text();
        } else if (name == u"PayeeFinancialAccount") {
            children([&](QStringView child) {
                if (child == u"ID")
                    means.accountId = text();
                else if (child == u"Name")
                    means.accountName = text();
                else if (child == u"FinancialInstitutionBranch")
                    means.bic = idOf();
                else
                    return false;
                return true;
            });
        } else if (name == u"PaymentMandate") {
            children([&](QStringView child) {
                if (child == u"ID")
                    means.mandateReference = text();
                else if (child == u"PayerFinancialAccount")
                    means.debitedAccountId = idOf();
                else
                    return false;
                return true;
            });
        } else {
            return false;
        }
        return true;
    });
}

template <typename Xml> void DocumentReader<Xml>::allowanceCharge(AllowanceCharge &item)
{
    children([&](QStringView name) {
        if (name == u"ChargeIndicator") {
            item.isCharge = text().trimmed() == u"true";
        } else if (name == u"AllowanceChargeReasonCode") {
            item.reasonCode = text();
        } else if (name == u"AllowanceChargeReason") {
            item.reason = text();
        } else if (name == u"MultiplierFactorNumeric") {
            item.percentage = decimal();
        } else if (name == u"Amount") {
            checkCurrency();
            item.amount = decimal();
        } else if (name == u"BaseAmount") {
            checkCurrency();
            item.baseAmount = decimal();
        } else if (name == u"TaxCategory") {
            taxCategory(item.vatCategory, item.vatRate, nullptr);
        } else {
            return false;
        }
        return true;
    });
}

template <typename Xml>
void DocumentReader<Xml>::taxCategory(
    QString &category, std::optional<Decimal> &rate, VatBreakdown *breakdown)
{
    children([&](QStringView name) {
        if (name == u"ID") {
            category = text();
        } else if (name == u"Percent") {
            rate = decimal();
        } else if (name == u"TaxExemptionReasonCode" && breakdown) {
            breakdown->exemptionReasonCode = text();
        } else if (name == u"TaxExemptionReason" && breakdown) {
            breakdown->exemptionReason = text();
        } else if (name == u"TaxScheme") {
            const QString scheme = idOf();
            if (scheme != Ubl::VatScheme)
                error(QStringLiteral("tax scheme \"%1\" instead of VAT").arg(scheme.left(40)));
        } else {
            return false;
        }
        return true;
    });
}

template <typename Xml> void DocumentReader<Xml>::taxTotal()
{
    children([&](QStringView name) {
        if (name == u"TaxAmount") {
            const QString currency = attribute(QLatin1StringView("currencyID"));
            if (!m_invoice.vatAccountingCurrency.isEmpty()
                && currency == m_invoice.vatAccountingCurrency && currency != m_invoice.currency) {
                m_invoice.vatTotalInAccountingCurrency = decimal();
                m_stated.totals.vatTotalInAccountingCurrency
                    = m_invoice.vatTotalInAccountingCurrency;
            } else {
                checkCurrency();
                m_stated.totals.vatTotal = decimal();
            }
        } else if (name == u"TaxSubtotal") {
            VatBreakdown &entry = m_stated.vatBreakdown.emplace_back();
            children([&](QStringView child) {
                if (child == u"TaxableAmount") {
                    checkCurrency();
                    entry.taxableAmount = decimal();
                } else if (child == u"TaxAmount") {
                    checkCurrency();
                    entry.taxAmount = decimal();
                } else if (child == u"TaxCategory") {
                    taxCategory(entry.category, entry.rate, &entry);
                } else {
                    return false;
                }
                return true;
            });
            // The reasons stay with the model, for a document built from it anew.
            if (!entry.exemptionReason.isEmpty() || !entry.exemptionReasonCode.isEmpty())
                m_invoice.vatExemptions.append(
                    { entry.category, entry.exemptionReason, entry.exemptionReasonCode });
        } else {
            return false;
        }
        return true;
    });
}

template <typename Xml> void DocumentReader<Xml>::monetaryTotal()
{
    DocumentTotals &totals = m_stated.totals;
    children([&](QStringView name) {
        Decimal *target = nullptr;
        if (name == u"LineExtensionAmount")
            target = &totals.lineNetTotal;
        else if (name == u"TaxExclusiveAmount")
            target = &totals.taxExclusiveAmount;
        else if (name == u"TaxInclusiveAmount")
            target = &totals.taxInclusiveAmount;
        else if (name == u"AllowanceTotalAmount")
            target = &totals.allowanceTotal;
        else if (name == u"ChargeTotalAmount")
            target = &totals.chargeTotal;
        else if (name == u"PrepaidAmount")
            target = &totals.paidAmount;
        else if (name == u"PayableRoundingAmount")
            target = &totals.roundingAmount;
        else if (name == u"PayableAmount")
            target = &totals.payableAmount;
        else
            return false;
        checkCurrency();
        *target = decimal();
        return true;
    });
    if (!totals.paidAmount.isZero())
        m_invoice.paidAmount = totals.paidAmount;
    if (!totals.roundingAmount.isZero())
        m_invoice.roundingAmount = totals.roundingAmount;
}

template <typename Xml> void DocumentReader<Xml>::line()
{
    InvoiceLine &line = m_invoice.lines.emplace_back();
    line.unitCode.clear();
    line.vatCategory.clear();
    children([&](QStringView name) { return lineMember(name, line); });
}

template <typename Xml> bool DocumentReader<Xml>::lineMember(QStringView name, InvoiceLine &line)
{
    if (name == u"ID") {
        line.id = text();
    } else if (name == u"Note") {
        line.note = text();
    } else if (name == (m_creditNote ? u"CreditedQuantity" : u"InvoicedQuantity")) {
        line.unitCode = attribute(QLatin1StringView("unitCode"));
        line.quantity = decimal();
    } else if (name == u"LineExtensionAmount") {
        checkCurrency();
        line.statedNetAmount = decimal();
    } else if (name == u"AccountingCost") {
        line.accountingCost = text();
    } else if (name == u"InvoicePeriod") {
        period(line.periodStart, line.periodEnd);
    } else if (name == u"OrderLineReference") {
        line.orderLineReference = childText(u"LineID");
    } else if (name == u"DocumentReference") {
        children([&](QStringView child) {
            if (child == u"ID")
                line.objectIdentifier = identifier();
            else if (child != u"DocumentTypeCode")
                return false;
            else
                text();
            return true;
        });
    } else if (name == u"AllowanceCharge") {
        allowanceCharge(line.allowanceCharges.emplace_back());
    } else if (name == u"Item") {
        item(line);
    } else if (name == u"Price") {
        price(line);
    } else {
        return false;
    }
    return true;
}

template <typename Xml> void DocumentReader<Xml>::item(InvoiceLine &line)
{
    children([&](QStringView name) {
        if (name == u"Description") {
            line.itemDescription = text();
        } else if (name == u"Name") {
            line.itemName = text();
        } else if (name == u"BuyersItemIdentification") {
            line.buyersItemId = idOf();
        } else if (name == u"SellersItemIdentification") {
            line.sellersItemId = idOf();
        } else if (name == u"StandardItemIdentification") {
            children([&](QStringView child) {
                if (child != u"ID")
                    return false;
                line.standardItemId = identifier();
                return true;
            });
        } else if (name == u"OriginCountry") {
            line.originCountry = childText(u"IdentificationCode");
        } else if (name == u"CommodityClassification") {
            children([&](QStringView child) {
                if (child != u"ItemClassificationCode")
                    return false;
                line.classifications.append(identifier(QLatin1StringView("listID")));
                return true;
            });
        } else if (name == u"ClassifiedTaxCategory") {
            taxCategory(line.vatCategory, line.vatRate, nullptr);
        } else if (name == u"AdditionalItemProperty") {
            ItemAttribute &attribute = line.attributes.emplace_back();
            children([&](QStringView child) {
                if (child == u"Name")
                    attribute.name = text();
                else if (child == u"Value")
                    attribute.value = text();
                else
                    return false;
                return true;
            });
        } else {
            return false;
        }
        return true;
    });
}

template <typename Xml> void DocumentReader<Xml>::price(InvoiceLine &line)
{
    children([&](QStringView name) {
        if (name == u"PriceAmount") {
            checkCurrency();
            line.netPrice = decimal();
        } else if (name == u"BaseQuantity") {
            line.baseQuantityUnit = attribute(QLatin1StringView("unitCode"));
            line.baseQuantity = decimal();
        } else if (name == u"AllowanceCharge") {
            // The price discount: always an allowance.
            children([&](QStringView child) {
                if (child == u"ChargeIndicator") {
                    text();
                } else if (child == u"Amount") {
                    checkCurrency();
                    line.priceDiscount = decimal();
                } else if (child == u"BaseAmount") {
                    checkCurrency();
                    line.grossPrice = decimal();
                } else {
                    return false;
                }
                return true;
            });
        } else {
            return false;
        }
        return true;
    });
}

} // namespace

namespace {

bool tooLarge(const QByteArray &document, UblReadResult &result)
{
    if (document.size() <= maxUblDocumentSize)
        return false;
    result.errors.append(QStringLiteral("the document has %1 bytes, more than the %2 accepted")
                             .arg(document.size())
                             .arg(maxUblDocumentSize));
    return true;
}

} // namespace

UblReadResult readUbl(const QByteArray &document)
{
    UblReadResult result;
    if (tooLarge(document, result))
        return result;
    XmlCursor cursor(document);
    DocumentReader<XmlCursor>(cursor, result).read();
    return cursor.hasError() ? readUblWithQtReader(document) : result;
}

UblReadResult readUblWithQtReader(const QByteArray &document)
{
    UblReadResult result;
    if (tooLarge(document, result))
        return result;
    QXmlStreamReader xml(document);
    DocumentReader<QXmlStreamReader>(xml, result).read();
    return result;
}

} // namespace qor::einvoice
