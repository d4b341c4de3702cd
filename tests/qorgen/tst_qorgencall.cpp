#include "lib/clsqorgenlib.h"
#include "lib/typelibrary.h"
#include "qorgenprocess.h"

#include <QJsonArray>

namespace {

QorgenRun call(const QStringList &arguments)
{
    return runQorgen(QStringList { QStringLiteral("call") } + arguments);
}

QJsonObject jsonCall(const QStringList &arguments)
{
    return QJsonDocument::fromJson(call(QStringList { QStringLiteral("--json") } + arguments).out)
        .object();
}

QJsonObject named(const QJsonArray &list, const QString &name)
{
    for (const QJsonValue &entry : list) {
        if (entry.toObject().value("name").toString() == name)
            return entry.toObject();
    }
    return QJsonObject();
}

QStringList names(const QJsonArray &list)
{
    QStringList result;
    for (const QJsonValue &entry : list)
        result.append(entry.toObject().value("name").toString());
    return result;
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

    // `call` for people and for scripts.
    void exitStatus_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        // clang-format off
        QTest::newRow("the call ran") << QStringList({ "call", "FilterNumeric", "a1" }) << 0;
        QTest::newRow("the call ran and reported") << QStringList({ "call", "ControleerBankNr", "123" }) << 0;
        QTest::newRow("run-time error") << QStringList({ "call", "SetEuro", "abc" }) << 1;
        QTest::newRow("unknown method") << QStringList({ "call", "Nope" }) << 2;
        QTest::newRow("argument not optional") << QStringList({ "call", "FilterNumeric" }) << 2;
        QTest::newRow("argument of the wrong shape") << QStringList({ "call", "SelEdit", R"({"Text": 1})" }) << 2;
        QTest::newRow("no method") << QStringList({ "call", "--json" }) << 2;
        QTest::newRow("unknown option") << QStringList({ "call", "--loud", "FilterNumeric", "1" }) << 2;
        QTest::newRow("option without value") << QStringList({ "call", "--locale" }) << 2;
        QTest::newRow("bad locale") << QStringList({ "call", "--locale", "xx_QQ", "FilterNumeric", "1" }) << 2;
        QTest::newRow("unknown command") << QStringList({ "frobnicate" }) << 2;
        QTest::newRow("no command") << QStringList() << 2;
        // clang-format on
    }
    void exitStatus()
    {
        QFETCH(QStringList, arguments);
        const QorgenRun run = runQorgen(arguments);
        QVERIFY(run.finished);
        QTEST(run.exitCode, "status");
    }

    void plainOutputForPeople()
    {
        const QorgenRun good = call({ "ControleerBankNr", "000-0000000-97" });
        QCOMPARE(good.out, QByteArray("000-0000000-97\n"));
        QCOMPARE(good.err, QByteArray());

        const QorgenRun wrong = call({ "ControleerBankNr", "000-0000000-98" });
        QCOMPARE(wrong.out, QByteArray("\n"));
        QVERIFY2(wrong.err.contains("Fout !"), wrong.err.constData());
        QVERIFY(wrong.err.contains("Ongeldig Bankrekeningnummer"));
        QVERIFY(!wrong.err.contains('\r'));

        const QorgenRun failed = call({ "SetEuro", "abc" });
        QCOMPARE(failed.out, QByteArray());
        QVERIFY2(failed.err.contains("13") && failed.err.contains("Type mismatch"),
            failed.err.constData());

        const QorgenRun unknown = call({ "Nope" });
        QVERIFY(unknown.err.contains("Nope"));
    }

    void argumentsAreJsonOrText_data()
    {
        QTest::addColumn<QString>("argument");
        QTest::addColumn<QString>("subtype");
        // clang-format off
        QTest::newRow("number") << "12" << "Integer";
        QTest::newRow("number with fraction") << "12.5" << "Double";
        QTest::newRow("quoted text") << "\"12\"" << "String";
        QTest::newRow("text that is no JSON") << "12,5" << "String";
        QTest::newRow("bank account notation") << "000-0000000-97" << "String";
        QTest::newRow("null") << "null" << "Null";
        QTest::newRow("empty") << R"({"$empty": true})" << "Empty";
        // clang-format on
    }
    void argumentsAreJsonOrText()
    {
        QFETCH(QString, argument);
        const QJsonObject reply = jsonCall({ "CGetal", argument });
        QTEST(reply.value("argTypes").toArray().at(0).toString(), "subtype");
    }

    void optionsShapeTheRequest()
    {
        const QJsonObject french
            = jsonCall({ "--set", "Offset=10000", "--set=msg=hallo", "ControleerBankNr", "123" });
        QCOMPARE(french.value("props").toObject().value("Offset").toInt(), 10000);
        QCOMPARE(french.value("props").toObject().value("msg").toString(), QStringLiteral("hallo"));
        QCOMPARE(french.value("shown").toArray().at(0).toObject().value("title").toString(),
            QStringLiteral("Erreur !"));

        const QJsonObject belgian = jsonCall({ "--locale", "nl_BE", "CGetal", "12,5" });
        QCOMPARE(belgian.value("result").toDouble(), 12.5);
        QCOMPARE(belgian.value("resultType").toString(), QStringLiteral("Double"));

        const QJsonObject answered = jsonCall({ "--answer", "2", "ControleerBankNr", "123" });
        QCOMPARE(answered.value("shown").toArray().at(0).toObject().value("answer").toInt(), 2);

        QCOMPARE(call({ "--now", "2004-05-20T08:30:00", "FilterNumeric", "1" }).exitCode, 0);
        QCOMPARE(call({ "--now", "yesterday", "FilterNumeric", "1" }).exitCode, 2);
        // After the method everything is an argument, even what looks like an option.
        QCOMPARE(jsonCall({ "SCase", "--JSON" }).value("args").toArray().at(0).toString(),
            QStringLiteral("--json"));
    }

    void jsonOutputIsOneLine()
    {
        const QorgenRun run = call({ "--json", "SCase", "a\u00e9" });
        QCOMPARE(run.out.count('\n'), 1);
        QVERIFY(run.out.contains("\"result\":\"A\xc3\xa9\""));
    }

    // `methods`: the type information.
    void methodsListEveryPublishedMethod()
    {
        QStringList published;
        for (const auto &method : clsqorGenLib::typeLibrary().methods())
            published.append(method.name);
        QCOMPARE(names(typeInfo.value("methods").toArray()), published);
    }

    void methodParameters_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<int>("index");
        QTest::addColumn<QByteArray>("parameter");
        // clang-format off
        QTest::newRow("by reference Variant") << "FilterNumeric" << 0 << QByteArray(R"({"byRef":true,"name":"Ingave","optional":false,)" R"("type":"Variant"})");
        QTest::newRow("object") << "SelEdit" << 0 << QByteArray(R"({"byRef":false,"name":"Obj","optional":false,"type":"Object"})");
        QTest::newRow("optional with default") << "SelEdit" << 1 << QByteArray(R"({"byRef":false,"default":false,"name":"StartAtEnd",)" R"("optional":true,"type":"Boolean"})");
        QTest::newRow("enumeration") << "SetEuro" << 1 << QByteArray(R"({"byRef":false,"default":0,"name":"AddSymbol","optional":true,)" R"("type":"OstSymbolType"})");
        QTest::newRow("optional Variant") << "CGetal" << 0 << QByteArray(R"({"byRef":false,"default":0,"name":"Number",)" R"("optional":true,"type":"Variant"})");
        // clang-format on
    }
    void methodParameters()
    {
        QFETCH(QString, method);
        QFETCH(int, index);
        const QJsonObject info = named(typeInfo.value("methods").toArray(), method);
        const QJsonObject parameter = info.value("parameters").toArray().at(index).toObject();
        QTEST(QJsonDocument(parameter).toJson(QJsonDocument::Compact), "parameter");
    }

    void methodResults()
    {
        const QJsonArray methods = typeInfo.value("methods").toArray();
        QCOMPARE(named(methods, "FilterNumeric").value("returnType").toString(),
            QStringLiteral("Variant"));
        QCOMPARE(
            named(methods, "LLGenLib").value("returnType").toString(), QStringLiteral("String"));
        QVERIFY(!named(methods, "SelEdit").contains("returnType"));
    }

    void propertiesWithTheirTypes()
    {
        const QJsonArray properties = typeInfo.value("properties").toArray();
        QStringList published;
        for (const auto &property : clsqorGenLib::typeLibrary().properties())
            published.append(property.name);
        QCOMPARE(names(properties), published);
        QCOMPARE(named(properties, "FlowCTL").value("type").toString(), QStringLiteral("Variant"));
        QCOMPARE(named(properties, "Offset").value("type").toString(), QStringLiteral("Long"));
        QCOMPARE(named(properties, "msg").value("type").toString(), QStringLiteral("String"));
    }

    void enumerationsInDeclarationOrder_data()
    {
        QTest::addColumn<QString>("enumeration");
        QTest::addColumn<int>("from");
        QTest::addColumn<QStringList>("members");
        QTest::addColumn<QList<int>>("values");
        // clang-format off
        QTest::newRow("published euro sign") << "OstSymbolType" << 0 << QStringList({ "vbSymbolNone", "vbSymbolEUR", "vbSymbol\u20ac" }) << QList<int>({ 0, 1, 2 });
        QTest::newRow("payment methods start out of order") << "OstBetalingswijze" << 0 << QStringList({ "btKasticket", "btAdminFactuur", "btZero" }) << QList<int>({ 20, 21, 0 });
        QTest::newRow("published diaeresis") << "OstBetalingswijze" << 22 << QStringList({ "btDomicili\u00ebring", "btDomicili\u00ebringCredit" }) << QList<int>({ 10, 110 });
        QTest::newRow("negative value first") << "NotFoundIndexType" << 0 << QStringList( { "SetListIndexMinusOne", "SetListIndexLineZero", "SetListIndexUnchanged" }) << QList<int>({ -1, 0, 99 });
        QTest::newRow("shared values") << "OstSpecificIcon" << 0 << QStringList({ "spiDefault", "spiDis", "spiGrey", "spiMove" }) << QList<int>({ 0, 2000, 1000, 0 });
        // clang-format on
    }
    void enumerationsInDeclarationOrder()
    {
        QFETCH(QString, enumeration);
        QFETCH(int, from);
        QFETCH(QStringList, members);
        QFETCH(QList<int>, values);
        const QJsonArray listed = named(typeInfo.value("enumerations").toArray(), enumeration)
                                      .value("members")
                                      .toArray();
        for (int i = 0; i < members.size(); ++i) {
            QCOMPARE(listed.at(from + i).toObject().value("name").toString(), members.at(i));
            QCOMPARE(listed.at(from + i).toObject().value("value").toInt(), values.at(i));
        }
    }

    void everyEnumerationAndRecordIsListed()
    {
        QStringList published;
        for (const auto &info : clsqorGenLib::typeLibrary().enumerations())
            published.append(info.name);
        QCOMPARE(names(typeInfo.value("enumerations").toArray()), published);
        const QJsonArray icons = named(typeInfo.value("enumerations").toArray(), "IconList")
                                     .value("members")
                                     .toArray();
        QCOMPARE(icons.size(), 253);
        const QJsonObject windowSize = named(typeInfo.value("records").toArray(), "WindowSize");
        QCOMPARE(names(windowSize.value("fields").toArray()),
            QStringList({ "Left", "Top", "Right", "Bottom", "Width", "Height" }));
    }

    // Help and version.
    void helpExplainsEachCommandWithAnExample()
    {
        const QorgenRun run = runQorgen({ QStringLiteral("--help") });
        QCOMPARE(run.exitCode, 0);
        for (const char *command : { "qorgen call", "qorgen batch", "qorgen methods", "--version" })
            QVERIFY2(run.out.contains(command), command);
        QCOMPARE(run.out.count("Example"), 3);
    }

    void version()
    {
        const QorgenRun run = runQorgen({ QStringLiteral("--version") });
        QCOMPARE(run.exitCode, 0);
        QVERIFY(run.out.startsWith("qorgen "));
    }
};

QTEST_GUILESS_MAIN(TestQorgenCall)
#include "tst_qorgencall.moc"
