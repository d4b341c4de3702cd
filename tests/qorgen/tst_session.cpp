#include "lib/clsqorgenlib.h"
#include "lib/frame/modgenlib.h"
#include "platform/recordingplatform.h"
#include "tools/qorgen/jsonwriter.h"
#include "tools/qorgen/session.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace qor;

class TestSession : public QObject
{
    Q_OBJECT

    QTemporaryDir soundDir; // holds Ding.wav

private slots:
    void unreadableRequestChangesNothing()
    {
        Session session;
        session.handleLine(R"({"call": "Offset", "args": [10000]})");
        // A fresh start and new settings that come with a bad argument are not applied.
        const auto reply = session.handleLine(
            R"({"new": true, "env": {"locale": "fr_BE", "screen": {"width": 1}},
                "set": {"Offset": 20000}, "call": "FilterNumeric", "args": [{"x": 1}]})");
        QCOMPARE(reply.outcome, Session::Outcome::Unreadable);
        QCOMPARE(reply.response.size(), 1);
        QCOMPARE(session.library().property("Offset").toInt(), 10000);
        QVERIFY(session.platform().regionalSettings().localeName != QLatin1String("fr_BE"));
        QVERIFY(session.platform().screen().width != 1);
    }

    // The response to the last of the lines, as written: the id first, the result with its
    // Variant subtype, the arguments as the method left them (host controls whole), the
    // properties unless "props" is false, what was shown and asked of the machine, the error.
    // A request that cannot be carried out gets only its id (when it has one) and its error.
    void responses_data()
    {
        QTest::addColumn<QByteArray>("requests");
        QTest::addColumn<QByteArray>("responseStart");
        QFile sound(soundDir.filePath(QStringLiteral("Ding.wav")));
        QVERIFY(sound.open(QIODevice::WriteOnly));
        const QByteArray folder = soundDir.path().toUtf8() + '/';
        // clang-format off
        QTest::newRow("a Variant property keeps its value") << QByteArray(R"({"set": {"FlowCTL": [1, "a", null, {"$empty": true}, {"$date": "2004-05-20T08:30:00"}]}, "call": "FlowCTL", "props": false})") << QByteArray(R"({"result":[1,"a",null,{"$empty":true},{"$date":"2004-05-20T08:30:00"}],"resultType":"Array","args":[],"shown":[]})");
        QTest::newRow("a number by reference comes back as text") << QByteArray(R"({"call": "FilterNumeric", "args": [1234]})") << QByteArray(R"({"result":"1234","resultType":"String","args":["1234"],"argTypes":["String"])");
        QTest::newRow("a missing argument stays missing") << QByteArray(R"({"call": "SetEuro", "args": [2, {"$missing": true}], "env": {"locale": "en_US"}})") << QByteArray(R"({"result":"2.00","args":[2,{"$missing":true}])");
        QTest::newRow("properties set before the call") << QByteArray(R"({"set": {"BtwTar1": 2100, "msg": "hallo"}, "call": "LLGenLib", "args": [11028]})" "\n" R"({"call": "msg", "props": false})") << QByteArray(R"({"result":"hallo","args":[],"shown":[]})");
        QTest::newRow("a host object the library holds outlives its request") << QByteArray(R"({"call": "HoldSysData", "args": [{"$object": "Application", "ProductName": "Kassa", "Major": 3}]})" "\n" R"({"call": "SCase", "args": ["x"]})" "\n" R"({"call": "HoldSysData", "props": false})") << QByteArray(R"({"result":{"$object":"Application","PrevInstance":false,"ProductName":"Kassa","EXEName":"","Path":"","Major":3,"Minor":0,"Revision":0,"$calls":[]},"resultType":"Object","args":[],"shown":[]})");
        QTest::newRow("a run-time error with the arguments as left") << QByteArray(R"({"call": "SetEuro", "args": [1e40], "props": false})") << QByteArray(R"({"args":[1e+40],"shown":[],"error":{"number":6,"description":"Overflow"}})");
        QTest::newRow("a run-time error with the properties") << QByteArray(R"({"call": "SetEuro", "args": [1e40]})") << QByteArray(R"({"args":[1e+40],"props":{)");
        QTest::newRow("number id, properties left out") << QByteArray(R"({"id": 7, "call": "FilterNumeric", "args": ["a1b2"], "props": false})") << QByteArray(R"({"id":7,"result":"12","resultType":"String","args":["a1b2"],"argTypes":["String"],"shown":[]})");
        QTest::newRow("id given last") << QByteArray(R"({"call": "SCase", "args": ["x"], "props": false, "id": "x-1"})") << QByteArray(R"({"id":"x-1","result":"X","args":["x"],"shown":[]})");
        QTest::newRow("properties by default, all, in the order of the type information") << QByteArray(R"({"call": "Offset"})") << QByteArray(R"({"result":0,"args":[],"props":{"msg":"","SQL":"","FlowCTL":{"$empty":true},"UserCancel":false,"FrmAct":false,"AnEd":false,"HoldSysData":{"$empty":true},"HoldErr":0,"HoldErrDes":"","vbCr2":"\r\r","vbSplit":")" "\xc2\xad\xc2\xad" R"(","vbRequery":true,"vbSee":false,"Offset":0,"FieldExt":"NL","DataCH":false,"KlantPC":true,"BtwTar1":0,"BtwTar2":0,"NbrDec":0,"NbrDecFmt":""},"shown":[]})");
        QTest::newRow("a message box answered as asked, then its sound") << QByteArray(R"({"call": "ControleerBankNr", "args": ["123"], "answers": [2, 2], "props": false})") << QByteArray(R"({"result":"","args":["123"],"shown":[{"kind":"MsgBoxE","prompt":"Ongeldig Bankrekeningnummer :\r\rSchrijfwijze  000000000000  of  000-0000000-00","buttons":48,"title":"Fout !","caption":"Fout !","type":"Exclamation","answer":2,"buttonsShown":[{"caption":"OK","name":"cmdOK"}]},{"kind":"MsgBox","prompt":"Cannot Find Sound :\r\r\\MultiMedia\\Exclamation.wav\r\rNeem contact op met Velantis Help-Desk.","buttons":16,"title":"qorSoft General Library","answer":1}]})");
        QTest::newRow("a program started, only by this request") << QByteArray(R"({"call": "ShutDownPC"})" "\n" R"({"call": "ShellAndWait", "args": ["true", 6], "props": false})") << QByteArray(R"({"result":0,"args":["true",6],"shown":[],"actions":[{"command":"true","kind":"start","windowStyle":6}]})");
        QTest::newRow("a key sent: one record, its codes and each event") << QByteArray(R"({"call": "SendAKey", "args": [13], "props": false})") << QByteArray(R"({"args":[13],"shown":[],"actions":[{"codes":[13],"events":[{"flags":0,"scanCode":28,"virtualKey":13},{"flags":2,"scanCode":28,"virtualKey":13}],"kind":"keys"}]})");
        QTest::newRow("an input box cancelled, each record whole") << QByteArray(R"({"call": "InputBoxE", "args": ["Naam ?", "Klant", "Jan", 8], "answers": [{"cancel": true}], "props": false})") << QByteArray(R"({"result":"-9999","args":["Naam ?","Klant","Jan",8],"shown":[{"kind":"InputBoxE","prompt":"Naam ?","title":"Klant","default":"Jan","maxLength":8,"answer":{"cancel":true}},)");
        QTest::newRow("the calculator cancelled") << QByteArray(R"({"call": "ShowCalculator", "args": [12], "answers": [{"cancel": true}], "props": false})") << QByteArray(R"({"result":12.0,"args":[12],"shown":[{"kind":"Calculator","start":12.0,"answer":{"cancel":true}}]})");
        QTest::newRow("the help card of the calculator, its lines a list") << QByteArray(R"({"call": "ShowCalculator", "args": [12], "answers": [{"keys": "{Help}{Enter}"}], "props": false})") << QByteArray(R"({"result":12.0,"args":[12],"shown":[{"kind":"CalculatorHelp","title":"  Help bij Velantis Calculator","lines":)" "[\"U kan de Calculator vanuit ");
        QTest::newRow("the VAT note after a digit and %") << QByteArray(R"({"set": {"BtwTar1": 2100}, "call": "KeyEuro", "args": [{"$object": "TextBox", "Text": "100"}, 49]})" "\n" R"({"call": "KeyEuro", "args": [{"$object": "TextBox", "Text": "100"}, 37], "props": false})") << QByteArray(R"({"result":0,"resultType":"Integer","args":[{"$object":"TextBox","Text":"121","SelStart":3,"SelLength":0,"MaxLength":0,"Enabled":true,"Left":0.0,"Top":0.0,"Width":0.0,"Height":0.0,"$calls":[]},0],"shown":[{"kind":"Note","text":" + 21 % BTW toevoegen "}]})");
        QTest::newRow("a looping sound") << QByteArray(R"({"call": "PlaySound", "args": ["Ding.wav", true, ")" + folder + R"("], "props": false})") << QByteArray(R"({"args":[")" + folder + R"(\\Ding.wav",true,")" + folder + R"("],"shown":[{"kind":"sound","file":")" + folder + R"(\\Ding.wav","continuous":true}]})");
        QTest::newRow("a form kept on top") << QByteArray(R"({"call": "FormOnTop", "args": [{"$object": "Form"}], "props": false})") << QByteArray(R"({"result":{"$empty":true},"resultType":"Empty","args":[{"$object":"Form","Tag":"","Caption":"","Left":0.0,"Top":0.0,"Width":0.0,"Height":0.0,"Controls":[],"hWnd":0,"$calls":[]}],"shown":[],"actions":[{"kind":"onTop","object":{"$object":"Form","Tag":"","Caption":"","Left":0.0,"Top":0.0,"Width":0.0,"Height":0.0,"Controls":[],"hWnd":0,"$calls":[]}}]})");
        QTest::newRow("no actions, no field") << QByteArray(R"({"call": "PathRS", "args": ["C:\\x\\"], "props": false})") << QByteArray(R"({"result":"C:\\x","args":["C:\\x\\"],"shown":[]})");
        QTest::newRow("the invoice class, named in any case, keeps its object") << QByteArray(R"({"object": "clsqoreinvoice", "call": "AddLine", "args": ["Koffie", 3, "0.335", 6]})" "\n" R"({"object": "clsqorEInvoice", "call": "TotalInclVAT", "props": false})") << QByteArray(R"({"result":1.07,)");
        QTest::newRow("a class that does not exist") << QByteArray(R"({"object": "clsqorNone", "call": "x"})") << QByteArray(R"({"error":{"number":429,)");
        QTest::newRow("no id in JSON that cannot be read") << QByteArray(R"({"id": 5, "call": )") << QByteArray(R"({"error":{"number":5,)");
        QTest::newRow("not an object") << QByteArray("[1, 2]") << QByteArray(R"({"error":{"number":5,)");
        QTest::newRow("args not an array") << QByteArray(R"({"call": "FilterNumeric", "args": "1"})") << QByteArray(R"({"error":{"number":5,)");
        QTest::newRow("args without call") << QByteArray(R"({"args": [1]})") << QByteArray(R"({"error":{"number":5,)");
        QTest::newRow("unknown field") << QByteArray(R"({"call": "FilterNumeric", "args": ["1"], "x": 1})") << QByteArray(R"({"error":{"number":5,)");
        QTest::newRow("props that is not a flag") << QByteArray(R"({"id": 4, "call": "Offset", "props": 0})") << QByteArray(R"({"id":4,"error":{"number":5,)");
        QTest::newRow("unknown method") << QByteArray(R"({"id": 3, "call": "NoSuchMethod"})") << QByteArray(R"({"id":3,"error":{"number":438,)");
        QTest::newRow("unknown property to set") << QByteArray(R"({"set": {"Nope": 1}})") << QByteArray(R"({"error":{"number":438,)");
        QTest::newRow("answers not an array") << QByteArray(R"({"answers": 6})") << QByteArray(R"({"error":{"number":5,)");
        QTest::newRow("cancel that is false") << QByteArray(R"({"answers": [{"cancel": false}]})") << QByteArray(R"({"error":{"number":5,)");
        QTest::newRow("unknown locale") << QByteArray(R"({"env": {"locale": "xx_QQ"}})") << QByteArray(R"({"error":{"number":5,)");
        QTest::newRow("unknown environment field") << QByteArray(R"({"env": {"timezone": "CET"}})") << QByteArray(R"({"error":{"number":5,)");
        QTest::newRow("twips of zero") << QByteArray(R"({"env": {"screen": {"twipsPerPixelX": 0}}})") << QByteArray(R"({"error":{"number":5,)");
        QTest::newRow("taskbar without bottom") << QByteArray(R"({"env": {"screen": {"taskbar": {"left": 0, "top": 0, "right": 1, "x": 2}}}})") << QByteArray(R"({"error":{"number":5,)");
        QTest::newRow("height far below, refused by name") << QByteArray(R"({"env": {"screen": {"height": -1e300}}})") << QByteArray("{\"error\":{\"number\":5,\"description\":\"env.screen.height: ");
        QTest::newRow("width one past the largest int, refused by name") << QByteArray(R"({"env": {"screen": {"width": 2147483648}}})") << QByteArray("{\"error\":{\"number\":5,\"description\":\"env.screen.width: ");
        QTest::newRow("cursor beyond every integer, refused by name") << QByteArray(R"({"env": {"screen": {"cursor": [1e300, 0]}}})") << QByteArray("{\"error\":{\"number\":5,\"description\":\"env.screen.cursor: ");
        QTest::newRow("taskbar from the smallest to the largest int, refused by name") << QByteArray(R"({"env": {"screen": {"taskbar": {"left": -2147483648, "top": 0, "right": 2147483647, "bottom": 30}}}})") << QByteArray("{\"error\":{\"number\":5,\"description\":\"env.screen.taskbar.right: ");
        QTest::newRow("taskbar upside down, refused by name") << QByteArray(R"({"env": {"screen": {"taskbar": {"left": 0, "top": 600, "right": 800, "bottom": 570}}}})") << QByteArray("{\"error\":{\"number\":5,\"description\":\"env.screen.taskbar.bottom: ");
        QTest::newRow("taskbar edge beyond every integer, refused by name") << QByteArray(R"({"env": {"screen": {"taskbar": {"left": 0, "top": -1e300, "right": 800, "bottom": 600}}}})") << QByteArray("{\"error\":{\"number\":5,\"description\":\"env.screen.taskbar.top: ");
        // clang-format on
    }
    void responses()
    {
        QFETCH(QByteArray, requests);
        QFETCH(QByteArray, responseStart);
        Session session;
        Session::Reply reply;
        for (const QByteArray &line : requests.split('\n'))
            reply = session.handleLine(line);
        const QByteArray written = JsonWriter::compact(reply.response);
        QVERIFY2(written.startsWith(responseStart), written.constData());
        const bool unreadable = reply.outcome == Session::Outcome::Unreadable;
        QCOMPARE(unreadable, !reply.response.member(u"args"));
        if (unreadable)
            QCOMPARE(reply.response.size(), reply.response.member(u"id") ? 2 : 1);
        if (const JsonValue *error = reply.response.member(u"error"))
            QVERIFY(!error->member(u"description")->toString().isEmpty());
    }

    // Dialog answers belong to one request.
    void answersAreHandedToThePlatformPerRequest()
    {
        Session session;
        session.handleLine(
            R"({"call": "FilterNumeric", "args": ["1"], "answers": ["J", 6, {"scan": "%[OK]"},
                          {"cancel": true}, {"keys": "12+"}]})");
        QCOMPARE(session.platform().pendingAnswers(),
            (QVariantList { "J", 6, QVariantMap { { "scan", "%[OK]" } },
                QVariantMap { { "cancel", true } }, QVariantMap { { "keys", "12+" } } }));
    }

    // The screen the requests see: a field given keeps the others as they were.
    void screenFieldsKeepTheirValue()
    {
        Session session;
        session.handleLine(R"({"env": {"screen": {"width": 800, "height": 600, "cursor": [5, 6],
                           "taskbar": {"left": 0, "top": 570, "right": 800, "bottom": 600}}}})");
        session.handleLine(R"({"env": {"screen": {"width": 1280}}})");
        const ScreenInfo screen = session.platform().screen();
        QCOMPARE(screen.width, 1280);
        QCOMPARE(screen.height, 600);
        QCOMPARE(screen.taskbar, std::optional<QRect>(QRect(0, 570, 800, 30)));
        QCOMPARE(screen.cursor, QPoint(5, 6));
        session.handleLine(R"({"env": {"screen": {"taskbar": null}}})");
        QVERIFY(!session.platform().screen().taskbar);
    }

    void soundGoesOutOnlyWhenAskedFor()
    {
        Session session;
        int played = 0;
        session.setSoundOutput([&](const QString &, bool) { ++played; }, [] {});
        session.platform().playSound(QStringLiteral("a.wav"), false);
        session.handleLine(R"({"env": {"sound": false}})");
        session.platform().playSound(QStringLiteral("a.wav"), false);
        QCOMPARE(played, 1);
        session.handleLine(R"({"env": {"sound": true}})");
        session.platform().playSound(QStringLiteral("a.wav"), false);
        QCOMPARE(played, 2);
    }

    // One library object for the session, fresh on request.
    void newStartsFromAFreshObjectAndState()
    {
        Session session;
        session.handleLine(R"({"env": {"locale": "nl_BE"}, "set": {"Offset": 10000, "msg": "x"}})");
        modGenLib().msgBoxResult = 6;
        session.handleLine(R"({"new": true, "call": "Offset"})");
        QCOMPARE(modGenLib().msgBoxResult, 0);
        QCOMPARE(session.platform().regionalSettings().decimalSeparator, QChar(u','));
    }

    void freshObjectSeesTheRequestedPlatform()
    {
        // The station flag is read when the object is made: from the system folder of this request.
        QTemporaryDir folder;
        QFile marker(folder.filePath(QStringLiteral("QorVelChip.dll")));
        QVERIFY(marker.open(QIODevice::WriteOnly));
        marker.close();
        Session session;
        const auto reply = session.handleLine(R"({"new": true, "env": {"systemDir": ")"
            + folder.path().toUtf8() + R"("}, "call": "KlantPC"})");
        QCOMPARE(JsonWriter::compact(*reply.response.member(u"result")), QByteArray("false"));
    }
};

QTEST_GUILESS_MAIN(TestSession)
#include "tst_session.moc"
