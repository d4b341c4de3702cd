#include "qorgenprocess.h"

#include <QFile>
#include <QTemporaryDir>

// `qorgen einvoice`, driven as a separate process.
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
};

QTEST_GUILESS_MAIN(TestQorgenEInvoice)
#include "tst_qorgeneinvoice.moc"
