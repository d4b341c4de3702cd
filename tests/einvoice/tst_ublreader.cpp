#include "einvoice/ublnames.h"
#include "einvoice/ublreader.h"
#include "einvoice/ublwriter.h"

#include "testinvoices.h"

#include <QFileInfo>
#include <QTest>

using namespace qor::einvoice;

namespace {

// A small valid invoice; "%1" is replaced by the row's text in its body.
QByteArray invoiceWith(const char *body, const char *payable = "121.00")
{
    const QByteArray root
        = QStringLiteral(R"(<Invoice xmlns="%1" xmlns:cac="%2" xmlns:cbc="%3">)")
              .arg(Ubl::InvoiceNamespace, Ubl::AggregateNamespace, Ubl::BasicNamespace)
              .toUtf8();
    return QByteArray(R"(<?xml version="1.0" encoding="UTF-8"?>
)") + root
        + R"(
<cbc:ID>F1</cbc:ID>
<cbc:IssueDate>2026-01-15</cbc:IssueDate>
<cbc:DocumentCurrencyCode>EUR</cbc:DocumentCurrencyCode>
)" + body
        + R"(
<cac:TaxTotal><cbc:TaxAmount currencyID="EUR">21.00</cbc:TaxAmount>
<cac:TaxSubtotal><cbc:TaxableAmount currencyID="EUR">100.00</cbc:TaxableAmount><cbc:TaxAmount currencyID="EUR">21.00</cbc:TaxAmount>
<cac:TaxCategory><cbc:ID>S</cbc:ID><cbc:Percent>21</cbc:Percent><cac:TaxScheme><cbc:ID>VAT</cbc:ID></cac:TaxScheme></cac:TaxCategory></cac:TaxSubtotal></cac:TaxTotal>
<cac:LegalMonetaryTotal><cbc:LineExtensionAmount currencyID="EUR">100.00</cbc:LineExtensionAmount>
<cbc:TaxExclusiveAmount currencyID="EUR">100.00</cbc:TaxExclusiveAmount><cbc:TaxInclusiveAmount currencyID="EUR">121.00</cbc:TaxInclusiveAmount>
<cbc:PayableAmount currencyID="EUR">)"
        + payable + R"(</cbc:PayableAmount></cac:LegalMonetaryTotal>
<cac:InvoiceLine><cbc:ID>1</cbc:ID><cbc:InvoicedQuantity unitCode="C62">1</cbc:InvoicedQuantity>
<cbc:LineExtensionAmount currencyID="EUR">100.00</cbc:LineExtensionAmount>
<cac:Item><cbc:Name>Ontwerp</cbc:Name><cac:ClassifiedTaxCategory><cbc:ID>S</cbc:ID><cbc:Percent>21</cbc:Percent><cac:TaxScheme><cbc:ID>VAT</cbc:ID></cac:TaxScheme></cac:ClassifiedTaxCategory></cac:Item>
<cac:Price><cbc:PriceAmount currencyID="EUR">100</cbc:PriceAmount></cac:Price></cac:InvoiceLine>
</Invoice>
)";
}

} // namespace

class TestUblReader : public QObject
{
    Q_OBJECT

private slots:
    void badInput_data()
    {
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<QString>("error");
        // clang-format off
        QTest::newRow("not XML") << QByteArray("Factuur F1: 121 EUR") << "line 1, column 1: Start tag expected.";
        QTest::newRow("empty") << QByteArray() << "line 1, column 0: Premature end of document.";
        QTest::newRow("invoice root in a wrong namespace") << QByteArray("<Invoice xmlns=\"urn:example\"/>") << "line 1: the document is a {urn:example}Invoice, not a UBL Invoice or CreditNote";
        QTest::newRow("100 MB of text") << QByteArray(100 * 1024 * 1024, 'x') << "the document has 104857600 bytes, more than the 67108864 accepted";
        QTest::newRow("external entity") << QByteArray("<?xml version=\"1.0\"?><!DOCTYPE Invoice [<!ENTITY x SYSTEM \"file:///etc/passwd\">]><Invoice>&x;</Invoice>") << "line 1, column 81: a DOCTYPE is not accepted in an e-invoice";
        QTest::newRow("amount in exponent form") << invoiceWith("", "1.21E2") << "Invoice/LegalMonetaryTotal/PayableAmount (line 12, column 36): \"1.21E2\" is not a plain decimal number (character 'E')";
        QTest::newRow("date that does not exist") << invoiceWith("<cbc:DueDate>2026-02-30</cbc:DueDate>") << "Invoice/DueDate (line 6, column 13): \"2026-02-30\" is not a date that exists (YYYY-MM-DD)";
        QTest::newRow("amount in another currency") << invoiceWith("<cac:AllowanceCharge><cbc:ChargeIndicator>true</cbc:ChargeIndicator><cbc:Amount currencyID=\"USD\">1.00</cbc:Amount></cac:AllowanceCharge>") << "Invoice/AllowanceCharge/Amount (line 6, column 97): amount in USD in a document in EUR";
        // clang-format on
    }
    void badInput()
    {
        QFETCH(QByteArray, document);
        const UblReadResult read = readUbl(document);
        QVERIFY(!read.ok());
        QTEST(read.errors.first(), "error");
    }

    void reportsWhatItDrops()
    {
        const UblReadResult read = readUbl(
            invoiceWith("<cac:PayeeParty><cac:PartyName><cbc:Name>Factor</cbc:Name></"
                        "cac:PartyName></cac:PayeeParty>"
                        "<cac:Delivery><cbc:ActualDeliveryDate>2026-01-10</cbc:ActualDeliveryDate>"
                        "<cac:Shipment/></cac:Delivery><Foreign xmlns=\"urn:x\"/>"));
        QCOMPARE(read.errors, QStringList());
        QCOMPARE(read.dropped,
            QStringList({ QStringLiteral("Invoice/PayeeParty (line 6)"),
                QStringLiteral("Invoice/Delivery/Shipment (line 6)"),
                QStringLiteral("Invoice/Foreign (line 6)") }));
        QCOMPARE(read.invoice.delivery.date, QDate(2026, 1, 10));
    }

    void keepsStatedAmountsAndReportsDifferences()
    {
        const UblReadResult read = readUbl(invoiceWith("", "120.00"));
        QCOMPARE(read.errors, QStringList());
        QCOMPARE(
            read.invoice.statedAmounts->totals.payableAmount.toString(), QStringLiteral("120.00"));
        QCOMPARE(read.differences.size(), 1);
        QCOMPARE(read.differences.first(),
            (AmountDifference {
                QStringLiteral("BT-115"), QStringLiteral("120.00"), QStringLiteral("121.00") }));
        QVERIFY(writeUbl(read.invoice).contains("<cbc:PayableAmount currencyID=\"EUR\">120.00<"));
    }

    // Reading what the writer wrote and writing it again gives the same
    // document: nothing the writer puts in is lost by the reader.
    void readsBackWhatItWrites_data()
    {
        QTest::addColumn<QString>("file");
        for (const QString &file : test::testInvoiceFiles())
            QTest::newRow(qPrintable(QFileInfo(file).fileName())) << file;
        QTest::newRow("every member") << test::completeInvoiceFile;
    }
    void readsBackWhatItWrites()
    {
        QFETCH(QString, file);
        const Invoice invoice = test::readInvoiceFile(file).invoice;
        const QByteArray written = writeUbl(invoice);
        const UblReadResult read = readUbl(written);
        QCOMPARE(read.errors, QStringList());
        QCOMPARE(read.dropped, QStringList());
        QCOMPARE(writeUbl(read.invoice), written);
        if (!invoice.statedAmounts)
            QCOMPARE(read.differences, QList<AmountDifference>());
    }
};

QTEST_APPLESS_MAIN(TestUblReader)
#include "tst_ublreader.moc"
