#include "einvoice/invoicejson.h"
#include "lib/clsqoreinvoice.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include <QJsonDocument>
#include <QTest>

using namespace qor;
using namespace qor::einvoice;

class TestClsqorEInvoice : public QObject
{
    Q_OBJECT

private slots:
    void lineTakesHostValues_data()
    {
        QTest::addColumn<QVariant>("quantity");
        QTest::addColumn<QString>("category");
        QTest::addColumn<QVariant>("rate"); // invalid: left out
        QTest::addColumn<QString>("wantQuantity");
        QTest::addColumn<QString>("wantRate"); // empty: no rate
        // clang-format off
        QTest::newRow("text with a decimal comma") << QVariant("0,335") << "S" << QVariant() << "0.335" << "21";
        QTest::newRow("double keeps its digits") << QVariant(0.1) << "S" << QVariant(6) << "0.1" << "6";
        QTest::newRow("zero rated defaults to 0") << QVariant(3) << "Z" << QVariant() << "3" << "0";
        QTest::newRow("out of scope has no rate") << QVariant(3) << "O" << QVariant(21) << "3" << "";
        // clang-format on
    }
    // AddLine through late binding, optional arguments left out.
    void lineTakesHostValues()
    {
        QFETCH(QVariant, quantity);
        QFETCH(QString, category);
        QFETCH(QVariant, rate);
        QFETCH(QString, wantQuantity);
        QFETCH(QString, wantRate);
        clsqorEInvoice invoice;
        QVariantList args { QStringLiteral("Koffie"), quantity, QStringLiteral("2.50"),
            rate.isValid() ? rate : missingVariant(), missingVariant(), category };
        QCOMPARE(invoice.Invoke(QStringLiteral("addline"), args).toInt(), 1);
        const InvoiceLine line = invoice.document().lines.first();
        QCOMPARE(line.quantity.toString(), wantQuantity);
        QCOMPARE(line.vatRate ? line.vatRate->toString() : QString(), wantRate);
        QCOMPARE(line.unitCode, QStringLiteral("C62"));
    }

    void wrongValueRaisesClassicError_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QVariantList>("args");
        QTest::addColumn<int>("number");
        // clang-format off
        QTest::newRow("quantity no number") << "AddLine" << QVariantList { "x", "abc", 1 } << 13;
        QTest::newRow("price of 30 digits") << "AddLine" << QVariantList { "x", 1, QString(30, u'9') } << 6;
        QTest::newRow("line that does not exist") << "AddAllowanceCharge" << QVariantList { false, 1, "Korting", "", 21, "S", 1 } << 9;
        QTest::newRow("JSON of another shape") << "SetJSON" << QVariantList { "{\"lines\": 5}" } << 5;
        // clang-format on
    }
    void wrongValueRaisesClassicError()
    {
        QFETCH(QString, method);
        QFETCH(QVariantList, args);
        QFETCH(int, number);
        clsqorEInvoice invoice;
        try {
            invoice.Invoke(method, args);
            QFAIL("no run-time error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), number);
        }
        QCOMPARE(invoice.LineCount(), 0);
    }

    // A document taken in and given back through the properties loses nothing.
    void documentSurvivesTheProperties()
    {
        QFile json(
            QStringLiteral(QOR_EINVOICE_TEST_DATA "/invoices/06-line-allowance-charge.json"));
        QVERIFY(json.open(QIODevice::ReadOnly));
        const QByteArray text = json.readAll();
        clsqorEInvoice invoice;
        invoice.SetJSON(QString::fromUtf8(text));
        const Invoice original = invoiceFromJson(QJsonDocument::fromJson(text).object()).invoice;
        QCOMPARE(invoiceToJson(invoice.document()), invoiceToJson(original));
        QVERIFY(invoice.Check().toList().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestClsqorEInvoice)
#include "tst_clsqoreinvoice.moc"
