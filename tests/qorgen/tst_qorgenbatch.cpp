#include "lib/clsqorgenlib.h"
#include "lib/typelibrary.h"
#include "qorgenprocess.h"

#include <QJsonArray>

namespace {

int errorNumberOf(const QJsonObject &reply)
{
    return reply.value("error").toObject().value("number").toInt();
}

} // namespace

class TestQorgenBatch : public QObject
{
    Q_OBJECT

private slots:
    // Each response as written: the id first, the result with its Variant subtype, the
    // arguments as the method left them (host controls whole), the properties unless
    // "props" is false. The requests are lines of one batch; the last response counts.
    void responses_data()
    {
        QTest::addColumn<QByteArray>("request");
        QTest::addColumn<QByteArray>("responseStart");
        // clang-format off
        QTest::newRow("a Variant property keeps its value") << QByteArray(R"({"set": {"FlowCTL": [1, "a", null, {"$empty": true}, {"$date": "2004-05-20T08:30:00"}]}, "call": "FlowCTL", "props": false})") << QByteArray(R"({"result":[1,"a",null,{"$empty":true},{"$date":"2004-05-20T08:30:00"}],"resultType":"Array","args":[],"shown":[]})");
        QTest::newRow("a number by reference comes back as text") << QByteArray(R"({"call": "FilterNumeric", "args": [1234]})") << QByteArray(R"({"result":"1234","resultType":"String","args":["1234"],"argTypes":["String"])");
        QTest::newRow("a missing argument stays missing") << QByteArray(R"({"call": "SetEuro", "args": [2, {"$missing": true}], "env": {"locale": "en_US"}})") << QByteArray(R"({"result":"2.00","args":[2,{"$missing":true}])");
        QTest::newRow("edit control, caret at the end") << QByteArray( R"({"call": "SelEdit", "args": [{"$object": "TextBox", "Text": "abc", "Tag": 7}, true]})") << QByteArray(R"({"args":[{"$object":"TextBox","Text":"abc","SelStart":3,"SelLength":0,"MaxLength":0,)" R"("Enabled":true,"Left":0.0,"Top":0.0,"Width":0.0,"Height":0.0,"Tag":7,"$calls":[]})");
        QTest::newRow("grid cell editor") << QByteArray(R"({"call": "SelEdit", "args": [{"$object": "GridEditor", "Text": "x", )" R"("EditText": "abcd"}, {"$missing": true}, true]})") << QByteArray(R"({"args":[{"$object":"GridEditor","Text":"x","EditText":"abcd","EditSelStart":0,)" R"("EditSelLength":4,"editMaxLength":0,"$calls":[]})");
        QTest::newRow("a property keeps its value, in any case") << QByteArray(R"({"call": "offset", "args": [10000]})" "\n" R"({"call": "OFFSET", "props": false})") << QByteArray(R"({"result":10000,"args":[],"shown":[]})");
        QTest::newRow("properties set before the call") << QByteArray(R"({"set": {"BtwTar1": 2100, "msg": "hallo"}, "call": "LLGenLib", "args": [11028]})" "\n" R"({"call": "msg", "props": false})") << QByteArray(R"({"result":"hallo","args":[],"shown":[]})");
        QTest::newRow("a host object the library holds outlives its request") << QByteArray(R"({"call": "HoldSysData", "args": [{"$object": "Application", "ProductName": "Kassa", "Major": 3}]})" "\n" R"({"call": "SCase", "args": ["x"]})" "\n" R"({"call": "HoldSysData", "props": false})") << QByteArray(R"({"result":{"$object":"Application","PrevInstance":false,"ProductName":"Kassa","EXEName":"","Path":"","Major":3,"Minor":0,"Revision":0,"$calls":[]},"resultType":"Object","args":[],"shown":[]})");
        QTest::newRow("a run-time error with the arguments as left") << QByteArray(R"({"call": "SetEuro", "args": [1e40], "props": false})") << QByteArray(R"({"args":[1e+40],"shown":[],"error":{"number":6,"description":"Overflow"}})");
        QTest::newRow("the library's own error") << QByteArray(R"({"call": "SelEdit", "args": [{"$object": "TextBox", "Text": "ab"}, false, true], "props": false})") << QByteArray(R"({"args":[{"$object":"TextBox","Text":"ab","SelStart":0,"SelLength":0,"MaxLength":0,"Enabled":true,"Left":0.0,"Top":0.0,"Width":0.0,"Height":0.0,"$calls":[]},false,true],"shown":[],"error":{"number":438,)");
        QTest::newRow("a run-time error with the properties") << QByteArray(R"({"call": "SetEuro", "args": [1e40]})") << QByteArray(R"({"args":[1e+40],"props":{)");
        QTest::newRow("number id, properties left out") << QByteArray(R"({"id": 7, "call": "FilterNumeric", "args": ["a1b2"], "props": false})") << QByteArray(R"({"id":7,"result":"12","resultType":"String","args":["a1b2"],"argTypes":["String"],"shown":[]})");
        QTest::newRow("id given last") << QByteArray(R"({"call": "SCase", "args": ["x"], "props": false, "id": "x-1"})") << QByteArray(R"({"id":"x-1","result":"X","args":["x"],"shown":[]})");
        QTest::newRow("properties by default") << QByteArray(R"({"call": "Offset"})") << QByteArray(R"({"result":0,"args":[],"props":{)");
        QTest::newRow("id of an unknown method") << QByteArray(R"({"id": 3, "call": "NoSuchMethod"})") << QByteArray(R"({"id":3,"error":{"number":438,)");
        QTest::newRow("props that is not a flag") << QByteArray(R"({"id": 4, "call": "Offset", "props": 0})") << QByteArray(R"({"id":4,"error":{"number":5,)");
        QTest::newRow("no id in JSON that cannot be read") << QByteArray(R"({"id": 5, "call": )") << QByteArray(R"({"error":{"number":5,)");
        // clang-format on
    }
    void responses()
    {
        QFETCH(QByteArray, request);
        QFETCH(QByteArray, responseStart);
        const BatchResult result = runBatch(request.split('\n'));
        QCOMPARE(result.raw.size(), request.count('\n') + 1);
        QVERIFY2(result.raw.last().startsWith(responseStart), result.raw.last().constData());
    }

    void propsListThePublishedProperties()
    {
        const BatchResult result = runBatch({ R"({"set": {"Offset": 0}})" });
        QStringList published;
        for (const auto &property : clsqorGenLib::typeLibrary().properties())
            published.append(property.name);
        const QByteArray raw = result.raw.value(0);
        QCOMPARE(result.responses.value(0).value("props").toObject().size(), published.size());
        // In the order of the type information.
        qsizetype at = raw.indexOf("\"props\":");
        for (const QString &name : published) {
            const qsizetype next = raw.indexOf("\"" + name.toUtf8() + "\":", at);
            QVERIFY2(next > at, qPrintable(name));
            at = next;
        }
    }

    // Dialogs: the scripted answers of one request, and what it showed.
    void messageBoxIsAnsweredAndRecorded()
    {
        const BatchResult result = runBatch({
            R"({"call": "ControleerBankNr", "args": ["123"], "answers": [2, 2]})",
            R"({"call": "ControleerBankNr", "args": ["123"]})",
        });
        QCOMPARE(result.responses.size(), 2);
        QCOMPARE(result.responses[0].value("result").toString(QStringLiteral("?")), QString());
        const QJsonArray shown = result.responses[0].value("shown").toArray();
        QCOMPARE(shown.size(), 1);
        const QJsonObject box = shown.at(0).toObject();
        QCOMPARE(box.keys(),
            QStringList({ "answer", "buttons", "buttonsShown", "caption", "kind", "prompt", "title",
                "type" }));
        QVERIFY(box.value("prompt").toString().startsWith("Ongeldig Bankrekeningnummer"));
        QCOMPARE(box.value("buttons").toInt(), 48);
        QCOMPARE(box.value("title").toString(), QStringLiteral("Fout !"));
        QCOMPARE(box.value("type").toString(), QStringLiteral("Exclamation"));
        QVERIFY(result.raw[0].contains(R"("shown":[{"kind":"MsgBoxE","prompt":)"));
        // The second answer does not carry over: the next request gets the default.
        for (int i : { 0, 1 })
            QCOMPARE(
                result.responses[i].value("shown")[0].toObject().value("answer").toInt(), 2 - i);
    }

    // A request that cannot be carried out gets only its error, and the batch goes on.
    void unreadableRequestsAndTheBatchGoesOn_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<int>("number");
        // clang-format off
        QTest::newRow("not JSON") << QByteArray("not json") << 5;
        QTest::newRow("not an object") << QByteArray("[1, 2]") << 5;
        QTest::newRow("args not an array") << QByteArray(R"({"call": "FilterNumeric", "args": "1"})") << 5;
        QTest::newRow("args without call") << QByteArray(R"({"args": [1]})") << 5;
        QTest::newRow("unknown field") << QByteArray(R"({"call": "FilterNumeric", "args": ["1"], "x": 1})") << 5;
        QTest::newRow("unknown method") << QByteArray(R"({"call": "DoesNotExist"})") << 438;
        QTest::newRow("unknown property to set") << QByteArray(R"({"set": {"Nope": 1}})") << 438;
        QTest::newRow("argument not optional") << QByteArray(R"({"call": "FilterNumeric"})") << 449;
        QTest::newRow("too many arguments") << QByteArray(R"({"call": "FilterNumeric", "args": [1, 2]})") << 450;
        QTest::newRow("plain object as argument") << QByteArray(R"({"call": "SelEdit", "args": [{"Text": "x"}]})") << 13;
        QTest::newRow("answers not an array") << QByteArray(R"({"answers": 6})") << 5;
        QTest::newRow("cancel that is false") << QByteArray(R"({"answers": [{"cancel": false}]})") << 5;
        QTest::newRow("unknown locale") << QByteArray(R"({"env": {"locale": "xx_QQ"}})") << 5;
        QTest::newRow("unknown environment field") << QByteArray(R"({"env": {"timezone": "CET"}})") << 5;
        QTest::newRow("twips of zero") << QByteArray(R"({"env": {"screen": {"twipsPerPixelX": 0}}})") << 5;
        QTest::newRow("taskbar without bottom") << QByteArray(R"({"env": {"screen": {"taskbar": {"left": 0, "top": 0, "right": 1, "x": 2}}}})") << 5;
        // clang-format on
    }
    void unreadableRequestsAndTheBatchGoesOn()
    {
        QFETCH(QByteArray, line);
        const BatchResult result
            = runBatch({ line, R"({"call": "FilterNumeric", "args": ["a1b2"]})" });
        QCOMPARE(result.responses.size(), 2);
        const QJsonObject reply = result.responses[0];
        QCOMPARE(reply.keys(), QStringList({ "error" }));
        QTEST(errorNumberOf(reply), "number");
        QVERIFY(!reply.value("error").toObject().value("description").toString().isEmpty());
        QCOMPARE(result.responses[1].value("result").toString(), QStringLiteral("12"));
        QCOMPARE(result.run.exitCode, 0);
    }

    // Input that is large, odd or cut off.
    void badInputNeverStopsTheBatch()
    {
        const QByteArray hugeString = QByteArray("a1").repeated(2500000);
        const QByteArray hugeArray = "[" + QByteArray("0,").repeated(1500000) + "0]";
        const BatchResult result = runBatch({
            "{\"call\": \"FilterNumeric\", \"args\": [\"" + hugeString + "\"]}",
            R"({"call": "FilterNumeric", "args": [)" + hugeArray + "]}",
            "",
            "   ",
            R"({"call": "SCase", "args": ["crlf"]})"
            "\r",
            R"({"call": "FilterNumeric", "args": ["x9"]})",
        });
        QVERIFY(result.run.finished);
        QCOMPARE(result.responses.size(), 4); // blank lines get no response
        QCOMPARE(result.responses[0].value("result").toString().size(), 2500000);
        QCOMPARE(errorNumberOf(result.responses[1]), 5);
        QCOMPARE(result.responses[2].value("result").toString(), QStringLiteral("Crlf"));
        QCOMPARE(result.responses[3].value("result").toString(), QStringLiteral("9"));
    }

    void inputClosedInTheMiddleOfALine()
    {
        const QorgenRun run = runQorgen({ QStringLiteral("batch") },
            R"({"call": "FilterNumeric", "args": ["7"]})"
            "\n"
            "{\"call\": \"FilterNu");
        QVERIFY(run.finished);
        QCOMPARE(run.exitCode, 0);
        const QList<QByteArray> lines = run.lines();
        QCOMPARE(lines.size(), 2);
        QCOMPARE(errorNumberOf(QJsonDocument::fromJson(lines[1]).object()), 5);
    }

    // Objects of any size are read, checked for repeated names and written back
    // in time that grows with their size alone (the test's time limit is the check).
    void largeObjectsAreAnswered_data()
    {
        QTest::addColumn<QByteArray>("kind");
        QTest::addColumn<int>("members");
        QTest::newRow("host object with many properties") << QByteArray("$object") << 200000;
        QTest::newRow("plain object with many members") << QByteArray("plain") << 200000;
        QTest::newRow("many members, the last repeated") << QByteArray("repeated") << 200000;
    }
    void largeObjectsAreAnswered()
    {
        QFETCH(QByteArray, kind);
        QFETCH(int, members);
        QByteArray object = kind == "$object" ? QByteArray(R"({"$object": "TextBox", "Text": "ab")")
                                              : QByteArray("{\"m\": 0");
        for (int i = 1; i < members; ++i)
            object += ", \"m" + QByteArray::number(i) + "\": " + QByteArray::number(i);
        if (kind == "repeated")
            object += ", \"m7\": 1";
        object += '}';
        const QByteArray call = kind == "$object"
            ? R"({"id": 1, "props": false, "call": "SelEdit", "args": [)" + object + "]}"
            : R"({"id": 1, "props": false, "call": "SCase", "args": ["x"], "extra": )" + object
                + "}";
        const BatchResult result = runBatch({ call, R"({"call": "SCase", "args": ["y"]})" });
        QVERIFY(result.run.finished);
        QCOMPARE(result.responses.size(), 2);
        const QJsonObject reply = result.responses[0];
        // A line that is not JSON (a name given twice) has no id to send back.
        const QJsonValue id
            = kind == "repeated" ? QJsonValue(QJsonValue::Undefined) : QJsonValue(1);
        QCOMPARE(reply.value("id"), id);
        if (kind == "$object") {
            const QJsonObject control = reply.value("args").toArray().at(0).toObject();
            QCOMPARE(control.value("SelLength").toInt(), 2);
            QCOMPARE(control.value("m1").toInt(), 1);
            QCOMPARE(control.value("m" + QString::number(members - 1)).toInt(), members - 1);
        } else if (kind == "repeated") {
            QCOMPARE(errorNumberOf(reply), 5);
            QVERIFY(reply.value("error").toObject().value("description").toString().contains("m7"));
        } else {
            // A well-formed line with a field the bridge does not know.
            QVERIFY(
                reply.value("error").toObject().value("description").toString().contains("extra"));
        }
        QCOMPARE(result.responses[1].value("result").toString(), QStringLiteral("Y"));
    }

    // A caller that writes one line and waits gets its answer without closing its side.
    void eachLineIsAnsweredWhileTheInputStaysOpen()
    {
        QProcess process;
        process.start(QStringLiteral(QORGEN_PATH), { QStringLiteral("batch") });
        QVERIFY(process.waitForStarted(10000));
        for (const QByteArray &text : { QByteArray("one"), QByteArray("two") }) {
            process.write(
                "{\"call\": \"SCase\", \"args\": [\"" + text + "\"], \"props\": false}\n");
            QByteArray answer;
            while (!answer.endsWith('\n') && process.waitForReadyRead(20000))
                answer += process.readAllStandardOutput();
            QVERIFY2(answer.startsWith(QByteArray("{\"result\":\"")), answer.constData());
            QVERIFY(answer.contains(text.left(1).toUpper() + text.mid(1)));
        }
        process.closeWriteChannel();
        QVERIFY(process.waitForFinished(10000));
        QCOMPARE(process.exitCode(), 0);
    }
};

QTEST_GUILESS_MAIN(TestQorgenBatch)
#include "tst_qorgenbatch.moc"
