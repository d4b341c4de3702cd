#include "einvoiceexport.h"

#include <qorgenlib/lib/clsqoreinvoice.h>

namespace {

// The demo shop, seller of every invoice.
const QString shopName = QStringLiteral("qorSoft Demo Winkel BV");
const QString shopEnterpriseNumber = QStringLiteral("0403199702");
const QString shopIban = QStringLiteral("BE71096123456769");
const QString shopBic = QStringLiteral("GKCCBEBB");

// The library's unit codes 1 (m3) and 2 (kg) in UN/ECE Recommendation 20; the rest are pieces.
QString unitCode(int unit)
{
    if (unit == 1)
        return QStringLiteral("MTQ");
    if (unit == 2)
        return QStringLiteral("KGM");
    return QStringLiteral("H87");
}

void addLine(clsqorEInvoice &invoice, const InvoiceLine &line)
{
    // The demo keeps prices VAT included; the e-invoice wants them without.
    const double rate = line.vatRate / 100.0;
    const QString netPrice = QString::number(line.price / (1.0 + rate / 100.0), 'f', 4);
    invoice.AddLine(line.description, line.quantity, netPrice, rate, unitCode(line.unit),
        QStringLiteral("S"), line.code, QString());
}

} // namespace

QVariantList saveEInvoice(const EInvoiceSource &source, const QString &path, int offset)
{
    clsqorEInvoice invoice;
    invoice.setProperty("Offset", offset);
    invoice.setProperty("Number", source.number);
    invoice.setProperty("IssueDate", source.date.startOfDay());
    invoice.setProperty("BuyerReference", source.number);
    invoice.setProperty("PaymentReference", source.reference);
    invoice.setProperty("IBAN", shopIban);
    invoice.setProperty("BIC", shopBic);
    invoice.setProperty("SellerName", shopName);
    invoice.setProperty("SellerCountry", QStringLiteral("BE"));
    invoice.setProperty("SellerVAT", QStringLiteral("BE") + shopEnterpriseNumber);
    invoice.setProperty("SellerEnterpriseNr", shopEnterpriseNumber);
    invoice.setProperty("BuyerName", source.customerName);
    invoice.setProperty("BuyerCountry", QStringLiteral("BE"));
    if (!source.customerVat.isEmpty()) {
        invoice.setProperty("BuyerVAT", QStringLiteral("BE") + source.customerVat);
        invoice.setProperty("BuyerEnterpriseNr", source.customerVat);
    }
    for (const InvoiceLine &line : source.lines)
        addLine(invoice, line);
    if (invoice.SaveUBL(path))
        return {};
    return invoice.Check().toList();
}
