#include "einvoice/invoicejson.h"

#include <QFile>
#include <QJsonDocument>
#include <QTest>

using namespace qor::einvoice;

namespace {

QJsonObject objectOf(const QByteArray &text)
{
    return QJsonDocument::fromJson(text).object();
}

} // namespace

class TestInvoiceJson : public QObject
{
    Q_OBJECT

private slots:
    // Every member of the shape is set in the file: a member the reader
    // forgets is reported unknown, one the writer forgets is missing.
    void everyMemberRoundTrips()
    {
        QFile file(QStringLiteral(QOR_EINVOICE_TEST_DATA "/complete.json"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QJsonObject original = QJsonDocument::fromJson(file.readAll()).object();
        QVERIFY(!original.isEmpty());
        const InvoiceFromJson read = invoiceFromJson(original);
        QCOMPARE(read.errors, QStringList());
        QCOMPARE(invoiceToJson(read.invoice), original);
        QCOMPARE(invoiceFromJson(invoiceToJson(read.invoice)).invoice, read.invoice);
    }

    void wrongMembers_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("error");
        // clang-format off
        QTest::newRow("misspelt member") << QByteArray(R"({"numbr":"F1"})") << "numbr: unknown member";
        QTest::newRow("nested misspelt member") << QByteArray(R"({"seller":{"address":{"city":"Gent"}}})") << "seller.address.city: unknown member";
        QTest::newRow("number for a text") << QByteArray(R"({"number":5})") << "number: a string is wanted, not a number";
        QTest::newRow("date that does not exist") << QByteArray(R"({"issueDate":"2026-02-30"})") << "issueDate: a date that exists is wanted as YYYY-MM-DD, not \"2026-02-30\"";
        QTest::newRow("amount in exponent form") << QByteArray(R"({"lines":[{"quantity":"1E3"}]})") << "lines[0].quantity: \"1E3\" is not a plain decimal number (character 'E')";
        QTest::newRow("JSON number too large") << QByteArray(R"({"paidAmount":1e20})") << "paidAmount: \"100000000000000000000.000000000000\" has more than 18 digits";
        QTest::newRow("unknown kind") << QByteArray(R"({"kind":"order"})") << "kind: \"invoice\" or \"creditNote\" is wanted, not \"order\"";
        QTest::newRow("type code out of range") << QByteArray(R"({"typeCode":3800})") << "typeCode: a whole number from 0 to 999 is wanted";
        QTest::newRow("line that is not an object") << QByteArray(R"({"lines":[3]})") << "lines[0]: an object is wanted, not a number";
        QTest::newRow("flag as text") << QByteArray(R"({"allowanceCharges":[{"isCharge":"yes"}]})") << "allowanceCharges[0].isCharge: true or false is wanted, not a string";
        QTest::newRow("note that is not a text") << QByteArray(R"({"notes":["a",{}]})") << "notes[1]: a string is wanted, not an object";
        // clang-format on
    }
    void wrongMembers()
    {
        QFETCH(QByteArray, json);
        const InvoiceFromJson read = invoiceFromJson(objectOf(json));
        QCOMPARE(read.errors.size(), 1);
        QTEST(read.errors.first(), "error");
    }

    void numbers_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("price");
        QTest::newRow("binary fraction read as written") << QByteArray("0.335") << "0.335";
        QTest::newRow("whole number") << QByteArray("21") << "21";
        QTest::newRow("small number in exponent form") << QByteArray("1e-7") << "0.0000001";
        QTest::newRow("text keeps its zeros") << QByteArray("\"2.50\"") << "2.50";
    }
    void numbers()
    {
        QFETCH(QByteArray, json);
        const InvoiceFromJson read
            = invoiceFromJson(objectOf("{\"lines\":[{\"netPrice\":" + json + "}]}"));
        QCOMPARE(read.errors, QStringList());
        QTEST(read.invoice.lines.first().netPrice.toString(), "price");
    }
};

QTEST_APPLESS_MAIN(TestInvoiceJson)
#include "tst_invoicejson.moc"
