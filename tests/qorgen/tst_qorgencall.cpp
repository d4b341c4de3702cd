#include "qorgenprocess.h"

#include <QJsonArray>

namespace {

QJsonObject named(const QJsonArray &list, const QString &name)
{
    for (const QJsonValue &entry : list) {
        if (entry.toObject().value("name").toString() == name)
            return entry.toObject();
    }
    return QJsonObject();
}

} // namespace

class TestQorgenCall : public QObject
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
        const QorgenRun version = runQorgen({ QStringLiteral("--version") });
        QCOMPARE(version.exitCode, 0);
        QVERIFY(version.out.startsWith("qorgen "));
    }
};

QTEST_GUILESS_MAIN(TestQorgenCall)
#include "tst_qorgencall.moc"
