#include "lib/clsqorgenlib.h"
#include "lib/typelibrary.h"
#include "qorgenprocess.h"

#include <QJsonArray>

using namespace qor;

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

template <typename Info> QStringList names(const QList<Info> &list)
{
    QStringList result;
    for (const Info &info : list)
        result.append(info.name);
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
        QTest::newRow("no method") << QStringList({ "call", "--json" }) << 2;
        QTest::newRow("unknown option") << QStringList({ "call", "--loud", "FilterNumeric", "1" }) << 2;
        QTest::newRow("option without value") << QStringList({ "call", "--locale" }) << 2;
        QTest::newRow("bad locale") << QStringList({ "call", "--locale", "xx_QQ", "FilterNumeric", "1" }) << 2;
        QTest::newRow("bad clock") << QStringList({ "call", "--now", "yesterday", "FilterNumeric", "1" }) << 2;
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
        QTest::newRow("quoted text") << "\"12\"" << "String";
        QTest::newRow("text that is no JSON") << "12,5" << "String";
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

    // `methods`: the type information, in its own order.
    void typeInformationListsEverything()
    {
        const TypeLibrary &library = clsqorGenLib::typeLibrary();
        QCOMPARE(names(typeInfo.value("methods").toArray()), names(library.methods()));
        QCOMPARE(names(typeInfo.value("properties").toArray()), names(library.properties()));
        const QJsonArray enumerations = typeInfo.value("enumerations").toArray();
        QCOMPARE(names(enumerations), names(library.enumerations()));
        for (const EnumInfo &info : library.enumerations())
            QCOMPARE(names(named(enumerations, info.name).value("members").toArray()),
                names(info.members));
        const QJsonObject windowSize = named(typeInfo.value("records").toArray(), "WindowSize");
        QCOMPARE(names(windowSize.value("fields").toArray()), names(library.records()[0].fields));
    }

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
        QTest::newRow("property") << "properties" << "Offset" << "" << 0 << QByteArray(R"({"name":"Offset","type":"Long"})");
        QTest::newRow("member with a diaeresis") << "enumerations" << "OstBetalingswijze" << "members" << 22 << QByteArray("{\"name\":\"btDomicili\xc3\xabring\",\"value\":10}");
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
        for (const char *command :
            { "qorgen call", "qorgen batch", "qorgen methods", "qorgen records", "--version" })
            QVERIFY2(run.out.contains(command), command);
        QCOMPARE(run.out.count("Example"), 4);
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
