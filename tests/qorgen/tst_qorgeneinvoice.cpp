#include "qorgenprocess.h"

#include <QFile>
#include <QTemporaryDir>

// `qorgen einvoice` and the bridge's second class, driven as a separate process.
class TestQorgenEInvoice : public QObject
{
    Q_OBJECT

private slots:
    void exitStatusAndOutput_data()
    {
        const QString valid = QStringLiteral(QOR_EINVOICE_TEST_DATA "/invoices/01-two-rates.json");
        QFile file(valid);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray json = file.readAll();
        QByteArray noBuyer = json;
        noBuyer.replace("\"Bouwwerken Claes NV\"", "\"\"");
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<QByteArray>("input");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QByteArray>("out"); // a part of standard output
        QTest::addColumn<QByteArray>("err"); // a part of standard error
        // clang-format off
        QTest::newRow("valid model written") << QStringList { "write", valid } << QByteArray() << 0 << QByteArray("<cbc:ID>F-2026-0001</cbc:ID>") << QByteArray();
        QTest::newRow("broken model not written") << QStringList { "write", "-" } << noBuyer << 1 << QByteArray() << QByteArray("BR-07: De naam van de koper ontbreekt.");
        QTest::newRow("check in French") << QStringList { "check", "-", "--language", "fr" } << noBuyer << 1 << QByteArray("BR-07: Le nom de l'acheteur manque.") << QByteArray();
        QTest::newRow("official example reads") << QStringList { "read", QOR_EINVOICE_RULES "/examples/peppol-base-example.xml" } << QByteArray() << 0 << QByteArray("\"number\": \"Snippet1\"") << QByteArray();
        QTest::newRow("official example checks clean") << QStringList { "check", QOR_EINVOICE_RULES "/examples/peppol-vat-category-E.xml" } << QByteArray() << 0 << QByteArray() << QByteArray();
        QTest::newRow("XML of another kind") << QStringList { "read", "-" } << QByteArray("<Order/>") << 2 << QByteArray() << QByteArray("-: ");
        QTest::newRow("member of the wrong type") << QStringList { "check", "-" } << QByteArray("{\"number\": 5}") << 2 << QByteArray() << QByteArray("number");
        QTest::newRow("file that is not there") << QStringList { "check", "/nonexistent/x.json" } << QByteArray() << 2 << QByteArray() << QByteArray("/nonexistent/x.json");
        QTest::newRow("unknown language") << QStringList { "check", valid, "--language", "de" } << QByteArray() << 2 << QByteArray() << QByteArray("--language");
        // clang-format on
    }
    void exitStatusAndOutput()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, input);
        QFETCH(int, exitCode);
        QFETCH(QByteArray, out);
        QFETCH(QByteArray, err);
        const QorgenRun run = runQorgen(QStringList { "einvoice" } + arguments, input);
        QVERIFY(run.finished);
        QCOMPARE(run.exitCode, exitCode);
        QVERIFY2(run.out.contains(out), run.out.left(400).constData());
        QVERIFY2(run.err.contains(err), run.err.constData());
        if (exitCode != 0 && arguments.first() == u"write")
            QVERIFY(!run.out.contains("<Invoice"));
    }

    void bridgeReachesInvoiceObject_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("expected");
        // clang-format off
        QTest::newRow("method of the invoice") << QByteArray(R"({"object": "clsqorEInvoice", "call": "AddLine", "args": ["Koffie", 3, "0.335"]})") << "result" << "1";
        QTest::newRow("property after the call, class name in any case") << QByteArray(R"({"object": "clsqoreinvoice", "call": "AddLine", "args": ["Koffie", 3, "0.335", 6]})") << "props.TotalInclVAT" << "1.07";
        QTest::newRow("class that does not exist") << QByteArray(R"({"object": "clsqorNone", "call": "x"})") << "error.number" << "429";
        // clang-format on
    }
    void bridgeReachesInvoiceObject()
    {
        QFETCH(QByteArray, request);
        QFETCH(QString, field);
        QFETCH(QString, expected);
        const QorgenRun run = runQorgen({ "batch" }, request + '\n');
        QVERIFY(run.finished);
        QJsonValue value = run.responses().value(0);
        for (const QString &key : field.split(u'.'))
            value = value.toObject().value(key);
        QCOMPARE(value.toVariant().toString(), expected);
    }
};

QTEST_GUILESS_MAIN(TestQorgenEInvoice)
#include "tst_qorgeneinvoice.moc"
