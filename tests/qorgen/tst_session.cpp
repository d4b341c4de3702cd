#include "lib/clsqorgenlib.h"
#include "lib/modgenlib.h"
#include "lib/typelibrary.h"
#include "platform/recordingplatform.h"
#include "tools/qorgen/jsonreader.h"
#include "tools/qorgen/jsonwriter.h"
#include "tools/qorgen/session.h"

#include <QTemporaryDir>
#include <QTest>

using namespace qor;

namespace {

Session::Reply send(Session &session, const QByteArray &line)
{
    return session.handleLine(line);
}

QByteArray field(const Session::Reply &reply, const char16_t *name)
{
    const JsonValue *value = reply.response.member(name);
    return value ? JsonWriter::compact(*value) : QByteArray();
}

QByteArray prop(const Session::Reply &reply, const char16_t *name)
{
    return JsonWriter::compact(*reply.response.member(u"props")->member(name));
}

} // namespace

class TestSession : public QObject
{
    Q_OBJECT

private slots:
    void outcomes_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<int>("outcome");
        // clang-format off
        QTest::newRow("a call that runs") << QByteArray(R"({"call": "FilterNumeric", "args": ["a1"]})") << int(Session::Outcome::Ran);
        QTest::newRow("nothing to call") << QByteArray(R"({"set": {"Offset": 10000}})") << int(Session::Outcome::Ran);
        QTest::newRow("a run-time error") << QByteArray(R"({"call": "SetEuro", "args": ["x"]})") << int(Session::Outcome::RuntimeError);
        QTest::newRow("bad JSON") << QByteArray("{") << int(Session::Outcome::Unreadable);
        QTest::newRow("unknown method") << QByteArray(R"({"call": "Nope"})") << int(Session::Outcome::Unreadable);
        QTest::newRow("unknown property in set") << QByteArray(R"({"set": {"Nope": 1}})") << int(Session::Outcome::Unreadable);
        QTest::newRow("args without call") << QByteArray(R"({"args": [1]})") << int(Session::Outcome::Unreadable);
        // clang-format on
    }
    void outcomes()
    {
        Session session;
        QFETCH(QByteArray, line);
        QTEST(int(send(session, line).outcome), "outcome");
    }

    void unreadableRequestChangesNothing()
    {
        Session session;
        send(session, R"({"call": "Offset", "args": [10000]})");
        // A fresh start and new settings that come with a bad argument are not applied.
        const auto reply
            = send(session, R"({"new": true, "env": {"locale": "fr_BE"}, "set": {"Offset": 20000},
                                             "call": "FilterNumeric", "args": [{"x": 1}]})");
        QCOMPARE(reply.outcome, Session::Outcome::Unreadable);
        QCOMPARE(reply.response.size(), 1);
        QCOMPARE(session.library().property("Offset").toInt(), 10000);
        QVERIFY(session.platform().regionalSettings().localeName != QLatin1String("fr_BE"));
    }

    // Dialog answers belong to one request.
    void answersAreHandedToThePlatformPerRequest()
    {
        Session session;
        send(session,
            R"({"call": "FilterNumeric", "args": ["1"], "answers": ["J", 6, {"scan": "%[OK]"},
                          {"cancel": true}, {"keys": "12+"}]})");
        const QVariantList pending = session.platform().pendingAnswers();
        QCOMPARE(pending.size(), 5);
        QCOMPARE(pending.at(0).toString(), QStringLiteral("J"));
        QCOMPARE(pending.at(1).toInt(), 6);
        QCOMPARE(pending.at(2).toMap().value("scan").toString(), QStringLiteral("%[OK]"));
        QVERIFY(pending.at(3).toMap().value("cancel").toBool());
        QCOMPARE(pending.at(4).toMap().value("keys").toString(), QStringLiteral("12+"));
        send(session, R"({"call": "FilterNumeric", "args": ["1"]})");
        QVERIFY(session.platform().pendingAnswers().isEmpty());
    }

    void badAnswersAreUnreadable_data()
    {
        QTest::addColumn<QByteArray>("answers");
        // clang-format off
        QTest::newRow("not an array") << QByteArray("6");
        QTest::newRow("null") << QByteArray("[null]");
        QTest::newRow("cancel that is false") << QByteArray(R"([{"cancel": false}])");
        QTest::newRow("scan that is no text") << QByteArray(R"([{"scan": 1}])");
        QTest::newRow("unknown answer") << QByteArray(R"([{"press": "J"}])");
        // clang-format on
    }
    void badAnswersAreUnreadable()
    {
        Session session;
        QFETCH(QByteArray, answers);
        const auto reply = send(
            session, R"({"call": "FilterNumeric", "args": ["1"], "answers": )" + answers + "}");
        QCOMPARE(reply.outcome, Session::Outcome::Unreadable);
    }

    void shownHoldsWhatThisRequestShowed()
    {
        Session session;
        session.platform().beep(); // left over from before the request
        const auto quiet = send(session, R"({"call": "FilterNumeric", "args": ["1"]})");
        QCOMPARE(field(quiet, u"shown"), QByteArray("[]"));
        const auto shown = send(
            session, R"({"call": "ControleerBankNr", "args": ["123"], "answers": ["Escape"]})");
        const JsonValue &box = shown.response.member(u"shown")->toArray().at(0);
        QCOMPARE(box.toObject().at(0).first, QStringLiteral("kind"));
        QCOMPARE(box.member(u"kind")->toString(), QStringLiteral("MsgBoxE"));
        QCOMPARE(box.member(u"buttons")->toInteger(), 48);
        QCOMPARE(box.member(u"type")->toString(), QStringLiteral("Exclamation"));
    }

    // The platform the requests see.
    void environmentFieldsKeepTheirValue()
    {
        Session session;
        send(session,
            R"({"env": {"locale": "nl_BE", "now": "2004-05-20T08:30:00", "systemDir": "/tmp/sys",
                                  "screen": {"width": 800, "height": 600, "taskbar": {"left": 0, "top": 570,
                                             "right": 800, "bottom": 600}, "cursor": [5, 6]}}})");
        send(session, R"({"env": {"screen": {"width": 1280}}})");
        RecordingPlatform &platform = session.platform();
        QCOMPARE(platform.regionalSettings().decimalSeparator, QChar(u','));
        QCOMPARE(platform.now(), QDateTime(QDate(2004, 5, 20), QTime(8, 30), Qt::UTC));
        QCOMPARE(platform.systemDirectory(), QStringLiteral("/tmp/sys"));
        QCOMPARE(platform.screen().width, 1280);
        QCOMPARE(platform.screen().height, 600);
        QCOMPARE(platform.screen().taskbar, std::optional<QRect>(QRect(0, 570, 800, 30)));
        QCOMPARE(platform.screen().cursor, QPoint(5, 6));
        send(session, R"({"env": {"screen": {"taskbar": null}}})");
        QVERIFY(!platform.screen().taskbar);
    }

    void badEnvironmentIsUnreadable_data()
    {
        QTest::addColumn<QByteArray>("env");
        // clang-format off
        QTest::newRow("unknown locale") << QByteArray(R"({"locale": "xx_QQ"})");
        QTest::newRow("clock that is no date") << QByteArray(R"({"now": "tomorrow"})");
        QTest::newRow("sound that is no flag") << QByteArray(R"({"sound": "off"})");
        QTest::newRow("unknown field") << QByteArray(R"({"timezone": "CET"})");
        QTest::newRow("twips of zero") << QByteArray(R"({"screen": {"twipsPerPixelX": 0}})");
        QTest::newRow("cursor with one number") << QByteArray(R"({"screen": {"cursor": [1]}})");
        QTest::newRow("taskbar without bottom") << QByteArray(R"({"screen": {"taskbar": {"left": 0, "top": 0, "right": 1, "x": 2}}})");
        // clang-format on
    }
    void badEnvironmentIsUnreadable()
    {
        Session session;
        QFETCH(QByteArray, env);
        QCOMPARE(send(session, R"({"env": )" + env + "}").outcome, Session::Outcome::Unreadable);
    }

    void soundGoesOutOnlyWhenAskedFor()
    {
        Session session;
        int played = 0;
        session.setSoundOutput([&](const QString &, bool) { ++played; }, [] {});
        session.platform().playSound(QStringLiteral("a.wav"), false);
        send(session, R"({"env": {"sound": false}})");
        session.platform().playSound(QStringLiteral("a.wav"), false);
        QCOMPARE(played, 1);
        send(session, R"({"env": {"sound": true}})");
        session.platform().playSound(QStringLiteral("a.wav"), false);
        QCOMPARE(played, 2);
    }

    // One library object for the session, fresh on request.
    void newStartsFromAFreshObjectAndState()
    {
        Session session;
        send(session, R"({"env": {"locale": "nl_BE"}, "set": {"Offset": 10000, "msg": "x"}})");
        modGenLib().msgBoxResult = 6;
        const auto reply = send(session, R"({"new": true, "call": "Offset"})");
        QCOMPARE(field(reply, u"result"), QByteArray("0"));
        QCOMPARE(prop(reply, u"msg"), QByteArray("\"\""));
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
        const auto reply = send(session,
            R"({"new": true, "env": {"systemDir": ")" + folder.path().toUtf8()
                + R"("}, "call": "KlantPC"})");
        QCOMPARE(field(reply, u"result"), QByteArray("false"));
    }

    void objectsTheLibraryHoldsOutliveTheirRequest()
    {
        Session session;
        send(session, R"({"set": {"FlowCTL": {"$object": "TextBox", "Text": "kept"}}})");
        send(session, R"({"call": "SCase", "args": ["x"]})");
        const auto reply = send(session, R"({"call": "FlowCTL"})");
        QCOMPARE(
            reply.response.member(u"result")->member(u"Text")->toString(), QStringLiteral("kept"));
        QCOMPARE(field(reply, u"resultType"), QByteArray("\"Object\""));
        const auto fresh = send(session, R"({"new": true, "call": "FlowCTL"})");
        QCOMPARE(field(fresh, u"result"), QByteArray(R"({"$empty":true})"));
    }

    void propsListEveryPublishedProperty()
    {
        Session session;
        const auto reply = send(session, R"({"call": "GetKlantPC"})");
        const JsonValue &props = *reply.response.member(u"props");
        const auto &published = clsqorGenLib::typeLibrary().properties();
        QCOMPARE(props.size(), published.size());
        for (qsizetype i = 0; i < published.size(); ++i)
            QCOMPARE(props.toObject().at(size_t(i)).first, published.at(i).name);
    }
};

QTEST_GUILESS_MAIN(TestSession)
#include "tst_session.moc"
