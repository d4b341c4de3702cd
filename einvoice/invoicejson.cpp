#include "einvoice/invoicejson.h"

#include "einvoice/jsonfields.h"
#include "einvoice/jsonout.h"

namespace qor::einvoice {

namespace {

const QString invoiceKind = QStringLiteral("invoice");
const QString creditNoteKind = QStringLiteral("creditNote");

// Writing

QJsonObject identifierJson(const Identifier &identifier)
{
    JsonOut out;
    out.text("id", identifier.id);
    out.text("scheme", identifier.scheme);
    return out.json();
}

QJsonArray identifiersJson(const QList<Identifier> &identifiers)
{
    QJsonArray array;
    for (const Identifier &identifier : identifiers)
        array.append(identifierJson(identifier));
    return array;
}

QJsonObject addressJson(const PostalAddress &address)
{
    JsonOut out;
    out.text("streetName", address.streetName);
    out.text("additionalStreetName", address.additionalStreetName);
    out.text("addressLine3", address.addressLine3);
    out.text("cityName", address.cityName);
    out.text("postalZone", address.postalZone);
    out.text("countrySubentity", address.countrySubentity);
    out.text("countryCode", address.countryCode);
    return out.json();
}

QJsonObject partyJson(const Party &party)
{
    JsonOut out;
    out.text("name", party.name);
    out.text("tradingName", party.tradingName);
    out.array("identifiers", identifiersJson(party.identifiers));
    out.object("legalRegistration", identifierJson(party.legalRegistration));
    out.text("legalForm", party.legalForm);
    out.text("vatIdentifier", party.vatIdentifier);
    out.text("taxRegistration", party.taxRegistration);
    out.object("electronicAddress", identifierJson(party.electronicAddress));
    out.object("address", addressJson(party.address));
    JsonOut contact;
    contact.text("name", party.contact.name);
    contact.text("telephone", party.contact.telephone);
    contact.text("email", party.contact.email);
    out.object("contact", contact.json());
    return out.json();
}

QJsonArray allowanceChargesJson(const QList<AllowanceCharge> &list)
{
    QJsonArray array;
    for (const AllowanceCharge &item : list) {
        JsonOut out;
        out.flag("isCharge", item.isCharge);
        out.decimal("amount", item.amount);
        out.decimal("baseAmount", item.baseAmount);
        out.decimal("percentage", item.percentage);
        out.text("vatCategory", item.vatCategory);
        out.decimal("vatRate", item.vatRate);
        out.text("reason", item.reason);
        out.text("reasonCode", item.reasonCode);
        array.append(out.json());
    }
    return array;
}

QJsonObject lineJson(const InvoiceLine &line)
{
    JsonOut out;
    out.text("id", line.id);
    out.text("note", line.note);
    out.object("objectIdentifier", identifierJson(line.objectIdentifier));
    out.decimal("quantity", line.quantity);
    out.text("unitCode", line.unitCode);
    out.text("orderLineReference", line.orderLineReference);
    out.text("accountingCost", line.accountingCost);
    out.date("periodStart", line.periodStart);
    out.date("periodEnd", line.periodEnd);
    out.array("allowanceCharges", allowanceChargesJson(line.allowanceCharges));
    out.decimal("netPrice", line.netPrice);
    out.decimal("priceDiscount", line.priceDiscount);
    out.decimal("grossPrice", line.grossPrice);
    out.decimal("baseQuantity", line.baseQuantity);
    out.text("baseQuantityUnit", line.baseQuantityUnit);
    out.text("vatCategory", line.vatCategory);
    out.decimal("vatRate", line.vatRate);
    out.text("itemName", line.itemName);
    out.text("itemDescription", line.itemDescription);
    out.text("sellersItemId", line.sellersItemId);
    out.text("buyersItemId", line.buyersItemId);
    out.object("standardItemId", identifierJson(line.standardItemId));
    out.array("classifications", identifiersJson(line.classifications));
    out.text("originCountry", line.originCountry);
    QJsonArray attributes;
    for (const ItemAttribute &attribute : line.attributes)
        attributes.append(QJsonObject { { QStringLiteral("name"), attribute.name },
            { QStringLiteral("value"), attribute.value } });
    out.array("attributes", attributes);
    out.decimal("statedNetAmount", line.statedNetAmount);
    return out.json();
}

QJsonObject amountsJson(const InvoiceAmounts &amounts)
{
    QJsonArray lineNet;
    for (const Decimal &amount : amounts.lineNetAmounts)
        lineNet.append(amount.toString());
    QJsonArray breakdown;
    for (const VatBreakdown &entry : amounts.vatBreakdown) {
        JsonOut out;
        out.text("category", entry.category);
        out.decimal("rate", entry.rate);
        out.decimal("taxableAmount", entry.taxableAmount);
        out.decimal("taxAmount", entry.taxAmount);
        out.text("exemptionReason", entry.exemptionReason);
        out.text("exemptionReasonCode", entry.exemptionReasonCode);
        breakdown.append(out.json());
    }
    const DocumentTotals &t = amounts.totals;
    JsonOut totals;
    totals.decimal("lineNetTotal", t.lineNetTotal);
    totals.decimal("allowanceTotal", t.allowanceTotal);
    totals.decimal("chargeTotal", t.chargeTotal);
    totals.decimal("taxExclusiveAmount", t.taxExclusiveAmount);
    totals.decimal("vatTotal", t.vatTotal);
    totals.decimal("vatTotalInAccountingCurrency", t.vatTotalInAccountingCurrency);
    totals.decimal("taxInclusiveAmount", t.taxInclusiveAmount);
    totals.decimal("paidAmount", t.paidAmount);
    totals.decimal("roundingAmount", t.roundingAmount);
    totals.decimal("payableAmount", t.payableAmount);
    JsonOut out;
    out.array("lineNetAmounts", lineNet);
    out.array("vatBreakdown", breakdown);
    out.object("totals", totals.json());
    return out.json();
}

// Reading

void readIdentifier(JsonFields &fields, Identifier &identifier)
{
    fields.text("id", identifier.id);
    fields.text("scheme", identifier.scheme);
}

void readIdentifiers(JsonFields &fields, const char *key, QList<Identifier> &list)
{
    fields.objects(key, [&](JsonFields &item) { readIdentifier(item, list.emplace_back()); });
}

void readAddress(JsonFields &fields, PostalAddress &address)
{
    fields.text("streetName", address.streetName);
    fields.text("additionalStreetName", address.additionalStreetName);
    fields.text("addressLine3", address.addressLine3);
    fields.text("cityName", address.cityName);
    fields.text("postalZone", address.postalZone);
    fields.text("countrySubentity", address.countrySubentity);
    fields.text("countryCode", address.countryCode);
}

void readParty(JsonFields &fields, Party &party)
{
    fields.text("name", party.name);
    fields.text("tradingName", party.tradingName);
    readIdentifiers(fields, "identifiers", party.identifiers);
    fields.object(
        "legalRegistration", [&](JsonFields &f) { readIdentifier(f, party.legalRegistration); });
    fields.text("legalForm", party.legalForm);
    fields.text("vatIdentifier", party.vatIdentifier);
    fields.text("taxRegistration", party.taxRegistration);
    fields.object(
        "electronicAddress", [&](JsonFields &f) { readIdentifier(f, party.electronicAddress); });
    fields.object("address", [&](JsonFields &f) { readAddress(f, party.address); });
    fields.object("contact", [&](JsonFields &f) {
        f.text("name", party.contact.name);
        f.text("telephone", party.contact.telephone);
        f.text("email", party.contact.email);
    });
}

void readAllowanceCharges(JsonFields &fields, QList<AllowanceCharge> &list)
{
    fields.objects("allowanceCharges", [&](JsonFields &f) {
        AllowanceCharge &item = list.emplace_back();
        f.flag("isCharge", item.isCharge);
        f.decimal("amount", item.amount);
        f.decimal("baseAmount", item.baseAmount);
        f.decimal("percentage", item.percentage);
        f.text("vatCategory", item.vatCategory);
        f.decimal("vatRate", item.vatRate);
        f.text("reason", item.reason);
        f.text("reasonCode", item.reasonCode);
    });
}

void readLine(JsonFields &f, InvoiceLine &line)
{
    f.text("id", line.id);
    f.text("note", line.note);
    f.object("objectIdentifier", [&](JsonFields &g) { readIdentifier(g, line.objectIdentifier); });
    f.decimal("quantity", line.quantity);
    f.text("unitCode", line.unitCode);
    f.text("orderLineReference", line.orderLineReference);
    f.text("accountingCost", line.accountingCost);
    f.date("periodStart", line.periodStart);
    f.date("periodEnd", line.periodEnd);
    readAllowanceCharges(f, line.allowanceCharges);
    f.decimal("netPrice", line.netPrice);
    f.decimal("priceDiscount", line.priceDiscount);
    f.decimal("grossPrice", line.grossPrice);
    f.decimal("baseQuantity", line.baseQuantity);
    f.text("baseQuantityUnit", line.baseQuantityUnit);
    f.text("vatCategory", line.vatCategory);
    f.decimal("vatRate", line.vatRate);
    f.text("itemName", line.itemName);
    f.text("itemDescription", line.itemDescription);
    f.text("sellersItemId", line.sellersItemId);
    f.text("buyersItemId", line.buyersItemId);
    f.object("standardItemId", [&](JsonFields &g) { readIdentifier(g, line.standardItemId); });
    readIdentifiers(f, "classifications", line.classifications);
    f.text("originCountry", line.originCountry);
    f.objects("attributes", [&](JsonFields &g) {
        ItemAttribute &attribute = line.attributes.emplace_back();
        g.text("name", attribute.name);
        g.text("value", attribute.value);
    });
    f.decimal("statedNetAmount", line.statedNetAmount);
}

void readAmounts(JsonFields &f, InvoiceAmounts &amounts)
{
    QStringList lineNet;
    f.texts("lineNetAmounts", lineNet);
    for (qsizetype i = 0; i < lineNet.size(); ++i) {
        const QString problem = Decimal::parseError(lineNet[i]);
        if (problem.isEmpty())
            amounts.lineNetAmounts.append(Decimal::parse(lineNet[i]));
        else
            f.error(QStringLiteral("lineNetAmounts[%1]").arg(i), problem);
    }
    f.objects("vatBreakdown", [&](JsonFields &g) {
        VatBreakdown &entry = amounts.vatBreakdown.emplace_back();
        g.text("category", entry.category);
        g.decimal("rate", entry.rate);
        g.decimal("taxableAmount", entry.taxableAmount);
        g.decimal("taxAmount", entry.taxAmount);
        g.text("exemptionReason", entry.exemptionReason);
        g.text("exemptionReasonCode", entry.exemptionReasonCode);
    });
    f.object("totals", [&](JsonFields &g) {
        DocumentTotals &t = amounts.totals;
        g.decimal("lineNetTotal", t.lineNetTotal);
        g.decimal("allowanceTotal", t.allowanceTotal);
        g.decimal("chargeTotal", t.chargeTotal);
        g.decimal("taxExclusiveAmount", t.taxExclusiveAmount);
        g.decimal("vatTotal", t.vatTotal);
        g.decimal("vatTotalInAccountingCurrency", t.vatTotalInAccountingCurrency);
        g.decimal("taxInclusiveAmount", t.taxInclusiveAmount);
        g.decimal("paidAmount", t.paidAmount);
        g.decimal("roundingAmount", t.roundingAmount);
        g.decimal("payableAmount", t.payableAmount);
    });
}

void readKind(JsonFields &f, Invoice &invoice)
{
    QString kind;
    f.text("kind", kind);
    if (kind == creditNoteKind)
        invoice.kind = DocumentKind::CreditNote;
    else if (!kind.isEmpty() && kind != invoiceKind)
        f.error(QStringLiteral("kind"),
            QStringLiteral("\"invoice\" or \"creditNote\" is wanted, not \"%1\"")
                .arg(kind.left(40)));
}

} // namespace

QJsonObject invoiceToJson(const Invoice &invoice)
{
    JsonOut out;
    out.text("kind", invoice.kind == DocumentKind::CreditNote ? creditNoteKind : invoiceKind);
    out.number("typeCode", invoice.typeCode);
    out.text("number", invoice.number);
    out.date("issueDate", invoice.issueDate);
    out.date("dueDate", invoice.dueDate);
    out.date("taxPointDate", invoice.taxPointDate);
    out.text("currency", invoice.currency);
    out.text("vatAccountingCurrency", invoice.vatAccountingCurrency);
    out.text("accountingCost", invoice.accountingCost);
    out.text("buyerReference", invoice.buyerReference);
    out.text("projectReference", invoice.projectReference);
    out.text("contractReference", invoice.contractReference);
    out.text("purchaseOrderReference", invoice.purchaseOrderReference);
    out.text("salesOrderReference", invoice.salesOrderReference);
    out.text("receivingAdviceReference", invoice.receivingAdviceReference);
    out.text("despatchAdviceReference", invoice.despatchAdviceReference);
    out.text("tenderReference", invoice.tenderReference);
    out.object("invoicedObject", identifierJson(invoice.invoicedObject));
    out.text("paymentTerms", invoice.paymentTerms);
    out.texts("notes", invoice.notes);
    QJsonArray preceding;
    for (const PrecedingInvoice &reference : invoice.precedingInvoices) {
        JsonOut item;
        item.text("number", reference.number);
        item.date("issueDate", reference.issueDate);
        preceding.append(item.json());
    }
    out.array("precedingInvoices", preceding);
    out.object("seller", partyJson(invoice.seller));
    out.object("buyer", partyJson(invoice.buyer));
    JsonOut delivery;
    delivery.text("partyName", invoice.delivery.partyName);
    delivery.object("locationId", identifierJson(invoice.delivery.locationId));
    delivery.date("date", invoice.delivery.date);
    delivery.object("address", addressJson(invoice.delivery.address));
    out.object("delivery", delivery.json());
    out.date("periodStart", invoice.periodStart);
    out.date("periodEnd", invoice.periodEnd);
    QJsonArray means;
    for (const PaymentMeans &item : invoice.paymentMeans) {
        JsonOut m;
        m.text("code", item.code);
        m.text("text", item.text);
        m.text("remittanceInformation", item.remittanceInformation);
        m.text("accountId", item.accountId);
        m.text("accountName", item.accountName);
        m.text("bic", item.bic);
        m.text("mandateReference", item.mandateReference);
        m.text("debitedAccountId", item.debitedAccountId);
        means.append(m.json());
    }
    out.array("paymentMeans", means);
    out.array("allowanceCharges", allowanceChargesJson(invoice.allowanceCharges));
    QJsonArray lines;
    for (const InvoiceLine &line : invoice.lines)
        lines.append(lineJson(line));
    out.array("lines", lines);
    QJsonArray documents;
    for (const SupportingDocument &document : invoice.supportingDocuments) {
        JsonOut d;
        d.text("id", document.id);
        d.text("description", document.description);
        d.text("externalUri", document.externalUri);
        d.text("attachmentBase64", document.attachmentBase64);
        d.text("attachmentMimeCode", document.attachmentMimeCode);
        d.text("attachmentFilename", document.attachmentFilename);
        documents.append(d.json());
    }
    out.array("supportingDocuments", documents);
    QJsonArray exemptions;
    for (const VatExemption &exemption : invoice.vatExemptions) {
        JsonOut e;
        e.text("category", exemption.category);
        e.text("reason", exemption.reason);
        e.text("reasonCode", exemption.reasonCode);
        exemptions.append(e.json());
    }
    out.array("vatExemptions", exemptions);
    out.decimal("paidAmount", invoice.paidAmount);
    out.decimal("roundingAmount", invoice.roundingAmount);
    out.decimal("vatTotalInAccountingCurrency", invoice.vatTotalInAccountingCurrency);
    if (invoice.statedAmounts)
        out.object("statedAmounts", amountsJson(*invoice.statedAmounts));
    return out.json();
}

InvoiceFromJson invoiceFromJson(const QJsonObject &json)
{
    InvoiceFromJson result;
    Invoice &invoice = result.invoice;
    JsonFields f(json, QString(), result.errors);
    readKind(f, invoice);
    f.number("typeCode", invoice.typeCode);
    f.text("number", invoice.number);
    f.date("issueDate", invoice.issueDate);
    f.date("dueDate", invoice.dueDate);
    f.date("taxPointDate", invoice.taxPointDate);
    f.text("currency", invoice.currency);
    f.text("vatAccountingCurrency", invoice.vatAccountingCurrency);
    f.text("accountingCost", invoice.accountingCost);
    f.text("buyerReference", invoice.buyerReference);
    f.text("projectReference", invoice.projectReference);
    f.text("contractReference", invoice.contractReference);
    f.text("purchaseOrderReference", invoice.purchaseOrderReference);
    f.text("salesOrderReference", invoice.salesOrderReference);
    f.text("receivingAdviceReference", invoice.receivingAdviceReference);
    f.text("despatchAdviceReference", invoice.despatchAdviceReference);
    f.text("tenderReference", invoice.tenderReference);
    f.object("invoicedObject", [&](JsonFields &g) { readIdentifier(g, invoice.invoicedObject); });
    f.text("paymentTerms", invoice.paymentTerms);
    f.texts("notes", invoice.notes);
    f.objects("precedingInvoices", [&](JsonFields &g) {
        PrecedingInvoice &reference = invoice.precedingInvoices.emplace_back();
        g.text("number", reference.number);
        g.date("issueDate", reference.issueDate);
    });
    f.object("seller", [&](JsonFields &g) { readParty(g, invoice.seller); });
    f.object("buyer", [&](JsonFields &g) { readParty(g, invoice.buyer); });
    f.object("delivery", [&](JsonFields &g) {
        g.text("partyName", invoice.delivery.partyName);
        g.object(
            "locationId", [&](JsonFields &h) { readIdentifier(h, invoice.delivery.locationId); });
        g.date("date", invoice.delivery.date);
        g.object("address", [&](JsonFields &h) { readAddress(h, invoice.delivery.address); });
    });
    f.date("periodStart", invoice.periodStart);
    f.date("periodEnd", invoice.periodEnd);
    f.objects("paymentMeans", [&](JsonFields &g) {
        PaymentMeans &item = invoice.paymentMeans.emplace_back();
        g.text("code", item.code);
        g.text("text", item.text);
        g.text("remittanceInformation", item.remittanceInformation);
        g.text("accountId", item.accountId);
        g.text("accountName", item.accountName);
        g.text("bic", item.bic);
        g.text("mandateReference", item.mandateReference);
        g.text("debitedAccountId", item.debitedAccountId);
    });
    readAllowanceCharges(f, invoice.allowanceCharges);
    f.objects("lines", [&](JsonFields &g) { readLine(g, invoice.lines.emplace_back()); });
    f.objects("supportingDocuments", [&](JsonFields &g) {
        SupportingDocument &document = invoice.supportingDocuments.emplace_back();
        g.text("id", document.id);
        g.text("description", document.description);
        g.text("externalUri", document.externalUri);
        g.text("attachmentBase64", document.attachmentBase64);
        g.text("attachmentMimeCode", document.attachmentMimeCode);
        g.text("attachmentFilename", document.attachmentFilename);
    });
    f.objects("vatExemptions", [&](JsonFields &g) {
        VatExemption &exemption = invoice.vatExemptions.emplace_back();
        g.text("category", exemption.category);
        g.text("reason", exemption.reason);
        g.text("reasonCode", exemption.reasonCode);
    });
    f.decimal("paidAmount", invoice.paidAmount);
    f.decimal("roundingAmount", invoice.roundingAmount);
    f.decimal("vatTotalInAccountingCurrency", invoice.vatTotalInAccountingCurrency);
    f.object(
        "statedAmounts", [&](JsonFields &g) { readAmounts(g, invoice.statedAmounts.emplace()); });
    f.finish();
    return result;
}

} // namespace qor::einvoice
