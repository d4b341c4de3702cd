#include "qorgenprocess.h"

#include <QFile>
#include <QJsonArray>

namespace {

int errorNumberOf(const QJsonObject &reply)
{
    return reply.value("error").toObject().value("number").toInt();
}

QJsonObject named(const QJsonArray &list, const QString &name)
{
    for (const QJsonValue &entry : list) {
        if (entry.toObject().value("name").toString() == name)
            return entry.toObject();
    }
    return QJsonObject();
}

} // namespace

// The qorgen program run as a separate process, as its users run it: `call`,
// `methods`, help, `batch` and `einvoice`.
class TestQorgen : public QObject
{
    Q_OBJECT

    QJsonObject typeInfo;

private slots:
    void initTestCase()
    {
        const QorgenRun run = runQorgen({ QStringLiteral("methods") });
        QCOMPARE(run.exitCode, 0);
        QJsonParseError error;
        typeInfo = QJsonDocument::fromJson(run.out, &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
    }

    // `call` for people and for scripts: the exit status, standard output as one line
    // holding "out" (or nothing when "out" is empty), standard error holding "err" (or
    // nothing when "err" is empty), and line feeds where the library writes carriage returns.
    void calls_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("out");
        QTest::addColumn<QByteArray>("err");
        const QByteArray none;
        // clang-format off
        QTest::newRow("the call ran") << QStringList({ "call", "FilterNumeric", "a1" }) << 0 << QByteArray("1\n") << none;
        QTest::newRow("a wrong account: an empty line, the message on stderr") << QStringList({ "call", "ControleerBankNr", "000-0000000-98" }) << 0 << QByteArray("\n") << QByteArray("Fout !\nOngeldig Bankrekeningnummer");
        QTest::newRow("run-time error") << QStringList({ "call", "SetEuro", "abc" }) << 1 << none << QByteArray("13: Type mismatch");
        QTest::newRow("unknown method") << QStringList({ "call", "Nope" }) << 2 << none << QByteArray("\"Nope\"");
        QTest::newRow("no method") << QStringList({ "call", "--json" }) << 2 << none << QByteArray("METHOD");
        QTest::newRow("unknown option") << QStringList({ "call", "--loud", "FilterNumeric", "1" }) << 2 << none << QByteArray("--loud");
        QTest::newRow("option without value") << QStringList({ "call", "--locale" }) << 2 << none << QByteArray("--locale needs a value");
        QTest::newRow("bad locale") << QStringList({ "call", "--locale", "xx_QQ", "FilterNumeric", "1" }) << 2 << none << QByteArray("xx_QQ");
        QTest::newRow("version") << QStringList({ "--version" }) << 0 << QByteArray("qorgen ") << none;
        QTest::newRow("unknown command") << QStringList({ "frobnicate" }) << 2 << none << QByteArray("Usage: qorgen");
        QTest::newRow("a clock") << QStringList({ "call", "--now", "2004-05-20T08:30:00", "FilterNumeric", "1" }) << 0 << QByteArray("1\n") << none;
        QTest::newRow("a number argument") << QStringList({ "call", "--json", "CGetal", "12" }) << 0 << QByteArray(R"("args":[12],"argTypes":["Integer"])") << none;
        QTest::newRow("an argument that is no JSON is text") << QStringList({ "call", "--json", "CGetal", "12,5" }) << 0 << QByteArray(R"("args":["12,5"],"argTypes":["String"])") << none;
        QTest::newRow("a property set with =") << QStringList({ "call", "--json", "--set=msg=hallo", "SCase", "x" }) << 0 << QByteArray(R"("msg":"hallo")") << none;
        QTest::newRow("an answer") << QStringList({ "call", "--json", "--answer", "2", "ControleerBankNr", "123" }) << 0 << QByteArray(R"("answer":2)") << none;
        QTest::newRow("after the method every word is an argument") << QStringList({ "call", "--json", "SCase", "--JSON" }) << 0 << QByteArray(R"("args":["--json"])") << none;
        QTest::newRow("JSON in UTF-8") << QStringList({ "call", "--json", "SCase", QStringLiteral("a\u00e9") }) << 0 << QByteArray("{\"result\":\"A\xc3\xa9\"") << none;
        // clang-format on
    }
    void calls()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QByteArray, out);
        QFETCH(QByteArray, err);
        const QorgenRun run = runQorgen(arguments);
        QVERIFY(run.finished);
        QTEST(run.exitCode, "status");
        QCOMPARE(run.out.count('\n'), out.isEmpty() ? 0 : 1);
        QVERIFY2(run.out.contains(out) && run.out.endsWith(out.isEmpty() ? "" : "\n"),
            run.out.constData());
        QVERIFY2(err.isEmpty() ? run.err.isEmpty() : run.err.contains(err), run.err.constData());
        QVERIFY(!run.err.contains('\r'));
    }

    // `methods`: one entry of each kind, as the type information holds it.
    void typeInformationEntries_data()
    {
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("list"); // empty: the entry itself
        QTest::addColumn<int>("index");
        QTest::addColumn<QByteArray>("json");
        // clang-format off
        QTest::newRow("function") << "methods" << "LLGenLib" << "" << 0 << QByteArray(R"({"name":"LLGenLib","parameters":[{"byRef":false,"name":"ResOffsetCode","optional":false,"type":"Long"}],"returnType":"String"})");
        QTest::newRow("method without result, optional arguments with defaults") << "methods" << "SelEdit" << "" << 0 << QByteArray(R"({"name":"SelEdit","parameters":[{"byRef":false,"name":"Obj","optional":false,"type":"Object"},{"byRef":false,"default":false,"name":"StartAtEnd","optional":true,"type":"Boolean"},{"byRef":false,"default":false,"name":"Flexgrid","optional":true,"type":"Boolean"}]})");
        QTest::newRow("by reference Variant") << "methods" << "FilterNumeric" << "parameters" << 0 << QByteArray(R"({"byRef":true,"name":"Ingave","optional":false,"type":"Variant"})");
        QTest::newRow("enumeration-typed default") << "methods" << "SetEuro" << "parameters" << 1 << QByteArray(R"({"byRef":false,"default":0,"name":"AddSymbol","optional":true,"type":"OstSymbolType"})");
        QTest::newRow("member with a diaeresis") << "enumerations" << "OstBetalingswijze" << "members" << 22 << QByteArray("{\"name\":\"btDomicili\xc3\xabring\",\"value\":10}");
        QTest::newRow("property") << "properties" << "Offset" << "" << 0 << QByteArray(R"({"name":"Offset","type":"Long"})");
        QTest::newRow("record field") << "records" << "WindowSize" << "fields" << 0 << QByteArray(R"({"name":"Left","type":"Long"})");
        // clang-format on
    }
    void typeInformationEntries()
    {
        QFETCH(QString, section);
        QFETCH(QString, name);
        QFETCH(QString, list);
        QFETCH(int, index);
        QJsonObject entry = named(typeInfo.value(section).toArray(), name);
        if (!list.isEmpty())
            entry = entry.value(list).toArray().at(index).toObject();
        QTEST(QJsonDocument(entry).toJson(QJsonDocument::Compact), "json");
    }

    // Help and version.
    void helpExplainsEachCommandWithAnExample()
    {
        const QorgenRun run = runQorgen({ QStringLiteral("--help") });
        QCOMPARE(run.exitCode, 0);
        for (const char *command : { "qorgen call", "qorgen batch", "qorgen methods",
                 "qorgen records", "qorgen einvoice", "--version" })
            QVERIFY2(run.out.contains(command), command);
        QCOMPARE(run.out.count("Example"), 5);
        for (const QString &command : { QStringLiteral("call"), QStringLiteral("batch") }) {
            const QorgenRun part = runQorgen({ command, QStringLiteral("--help") });
            QCOMPARE(part.exitCode, 0);
            QVERIFY(part.out.contains("qorgen " + command.toUtf8()));
            QVERIFY(part.out.contains("Example"));
            QVERIFY(!part.out.contains("qorgen methods"));
        }
    }

    // One response a line, in order: the layout of each is the session's business. Input
    // that is large, odd or cut off, and a line that cannot be read, never stop the batch.
    void badInputNeverStopsTheBatch()
    {
        const QByteArray hugeString = QByteArray("a1").repeated(2500000);
        const QByteArray hugeArray = "[" + QByteArray("0,").repeated(1500000) + "0]";
        const QorgenRun run = runQorgen({ QStringLiteral("batch") },
            "{\"call\": \"FilterNumeric\", \"args\": [\"" + hugeString + "\"]}\n"
                + R"({"call": "FilterNumeric", "args": [)" + hugeArray + "]}\n\n   \n"
                + R"({"call": "SCase", "args": ["crlf"]})"
                  "\r\n"
                + R"({"call": "FilterNumeric", "args": ["x9"]})"
                  "\n"
                + "{\"call\": \"FilterNu");
        QVERIFY(run.finished);
        QCOMPARE(run.exitCode, 0);
        const QList<QJsonObject> responses = run.responses();
        QCOMPARE(responses.size(), 5); // blank lines get no response
        QCOMPARE(responses[0].value("result").toString().size(), 2500000);
        QCOMPARE(errorNumberOf(responses[1]), 5);
        QCOMPARE(responses[2].value("result").toString(), QStringLiteral("Crlf"));
        QCOMPARE(responses[3].value("result").toString(), QStringLiteral("9"));
        QCOMPARE(errorNumberOf(responses[4]), 5); // the input closed in the middle of a line
    }

    // `qorgen einvoice`.
    void einvoiceExitStatusAndOutput_data()
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
    void einvoiceExitStatusAndOutput()
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

QTEST_GUILESS_MAIN(TestQorgen)
#include "tst_qorgen.moc"
