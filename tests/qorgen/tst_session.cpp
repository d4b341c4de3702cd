#include "lib/clsqorgenlib.h"
#include "lib/frame/modgenlib.h"
#include "platform/recordingplatform.h"
#include "tools/qorgen/jsonwriter.h"
#include "tools/qorgen/session.h"

#include <QTemporaryDir>
#include <QTest>

using namespace qor;

namespace {

QByteArray field(const Session::Reply &reply, const char16_t *name)
{
    const JsonValue *value = reply.response.member(name);
    return value ? JsonWriter::compact(*value) : QByteArray();
}

} // namespace

class TestSession : public QObject
{
    Q_OBJECT

private slots:
    void unreadableRequestChangesNothing()
    {
        Session session;
        session.handleLine(R"({"call": "Offset", "args": [10000]})");
        // A fresh start and new settings that come with a bad argument are not applied.
        const auto reply = session.handleLine(
            R"({"new": true, "env": {"locale": "fr_BE"}, "set": {"Offset": 20000},
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
        session.handleLine(
            R"({"call": "FilterNumeric", "args": ["1"], "answers": ["J", 6, {"scan": "%[OK]"},
                          {"cancel": true}, {"keys": "12+"}]})");
        QCOMPARE(session.platform().pendingAnswers(),
            (QVariantList { "J", 6, QVariantMap { { "scan", "%[OK]" } },
                QVariantMap { { "cancel", true } }, QVariantMap { { "keys", "12+" } } }));
    }

    void shownHoldsOnlyWhatThisRequestShowed()
    {
        Session session;
        session.platform().beep(); // left over from before the request
        const auto quiet = session.handleLine(R"({"call": "FilterNumeric", "args": ["1"]})");
        QCOMPARE(field(quiet, u"shown"), QByteArray("[]"));
    }

    // What a request asked the machine to do, and only that request.
    void actionsHoldWhatThisRequestAskedOfTheMachine()
    {
        Session session;
        const auto shutDown = session.handleLine(R"({"call": "ShutDownPC"})");
        QCOMPARE(field(shutDown, u"actions"), QByteArray(R"([{"kind":"shutdown"}])"));
        const auto start = session.handleLine(R"({"call": "ShellAndWait", "args": ["true", 6]})");
        QCOMPARE(field(start, u"result"), QByteArray("0"));
        QCOMPARE(field(start, u"actions"),
            QByteArray(R"([{"command":"true","kind":"start","windowStyle":6}])"));
        const auto onTop = session.handleLine(
            R"({"call": "FormOnTop", "args": [{"$object": "Form", "hWnd": 7}]})");
        QVERIFY(
            field(onTop, u"actions").startsWith(R"([{"kind":"onTop","object":{"$object":"Form")"));
        const auto quiet = session.handleLine(R"({"call": "PathRS", "args": ["C:\\x\\"]})");
        QCOMPARE(field(quiet, u"actions"), QByteArray());
    }

    // The platform the requests see.
    void environmentFieldsKeepTheirValue()
    {
        Session session;
        session.handleLine(
            R"({"env": {"locale": "nl_BE", "now": "2004-05-20T08:30:00", "systemDir": "/tmp/sys",
                                  "screen": {"width": 800, "height": 600, "taskbar": {"left": 0, "top": 570,
                                             "right": 800, "bottom": 600}, "cursor": [5, 6]}}})");
        session.handleLine(R"({"env": {"screen": {"width": 1280}}})");
        RecordingPlatform &platform = session.platform();
        QCOMPARE(platform.regionalSettings().decimalSeparator, QChar(u','));
        QCOMPARE(platform.now(), QDateTime(QDate(2004, 5, 20), QTime(8, 30), Qt::UTC));
        QCOMPARE(platform.systemDirectory(), QStringLiteral("/tmp/sys"));
        QCOMPARE(platform.screen().width, 1280);
        QCOMPARE(platform.screen().height, 600);
        QCOMPARE(platform.screen().taskbar, std::optional<QRect>(QRect(0, 570, 800, 30)));
        QCOMPARE(platform.screen().cursor, QPoint(5, 6));
        session.handleLine(R"({"env": {"screen": {"taskbar": null}}})");
        QVERIFY(!platform.screen().taskbar);
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
        QCOMPARE(field(reply, u"result"), QByteArray("false"));
    }
};

QTEST_GUILESS_MAIN(TestSession)
#include "tst_session.moc"
