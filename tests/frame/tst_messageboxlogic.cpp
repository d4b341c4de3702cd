#include "lib/frame/messageboxlogic.h"

#include "tests/common/recordingmachine.h"

#include <QTest>

using namespace qor;

namespace {

QStringList captionsOf(const QList<DialogButton> &buttons)
{
    QStringList captions;
    for (const auto &button : buttons)
        captions << button.caption;
    return captions;
}

} // namespace

class TestMessageBoxLogic : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> machine;

private slots:
    void init() { machine = test::installRecordingPlatform(); }

    void styleChoosesTypeAndButtons_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QStringList>("captions");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("offset"); // the language
        // clang-format off
        QTest::newRow("plain") << 0 << "Message" << QStringList { "OK" } << "Bericht :" << 0;
        QTest::newRow("question yes no") << 36 << "Question" << QStringList { "Ja", "Nee" } << "Vraag ?" << 0;
        QTest::newRow("critical ok cancel") << 17 << "Critical" << QStringList { "OK", "Annuleren" } << "Fout !" << 0;
        QTest::newRow("exclamation") << 48 << "Exclamation" << QStringList { "OK" } << "Opgelet !" << 0;
        QTest::newRow("information") << 64 << "Information" << QStringList { "OK" } << "Ter Info :" << 0;
        QTest::newRow("critical wins over information") << 80 << "Critical" << QStringList { "OK" } << "Fout !" << 0;
        // Question and critical together warn; only -1 is the identity-number box.
        QTest::newRow("negative style: question and critical") << -2 << "Exclamation" << QStringList { "Ja", "Nee" } << "Opgelet !" << 0;
        QTest::newRow("yes no cancel shows ok cancel") << 3 << "Message" << QStringList { "OK", "Annuleren" } << "Bericht :" << 0;
        QTest::newRow("retry cancel shows yes no") << 5 << "Message" << QStringList { "Ja", "Nee" } << "Bericht :" << 0;
        QTest::newRow("abort retry ignore shows ok") << 2 << "Message" << QStringList { "OK" } << "Bericht :" << 0;
        QTest::newRow("French") << 20 << "Critical" << QStringList { "Oui", "Non" } << "Erreur !" << 10000;
        QTest::newRow("identity-number box") << -1 << "Exclamation" << QStringList { "Vreemd", "TypeFout" } << "Controle Nummer Identiteitskaart" << 0;
        QTest::newRow("German title missing: its marker") << 48 << "Exclamation" << QStringList { "OK" } << " [LL 31032 ?] " << 30000;
        // clang-format on
    }
    void styleChoosesTypeAndButtons()
    {
        QFETCH(int, style);
        QFETCH(int, offset);
        modGenLib().languageOffset = offset;
        const MessageBoxERequest request
            = MessageBoxLogic::prepare(QStringLiteral("p"), style, QStringLiteral("   "));
        QTEST(request.typeName, "type");
        QTEST(captionsOf(request.buttons), "captions");
        QTEST(request.caption, "caption");
    }

    // A key, or a scanner code "%[...]", chooses a visible button or nothing (0).
    void keysChooseVisibleButtons_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<QString>("key");
        QTest::addColumn<int>("result");
        // clang-format off
        QTest::newRow("ok: enter") << 0 << "Enter" << 1;
        QTest::newRow("ok: escape") << 0 << "Escape" << 1;
        QTest::newRow("ok: letter o") << 0 << "o" << 1;
        QTest::newRow("ok: no cancel button") << 0 << "A" << 0;
        QTest::newRow("yes no: j") << 36 << "J" << 6;
        QTest::newRow("yes no: y") << 36 << "y" << 6;
        QTest::newRow("yes no: enter") << 36 << "Enter" << 6;
        QTest::newRow("yes no: n") << 36 << "N" << 7;
        QTest::newRow("yes no: escape") << 36 << "Escape" << 7;
        QTest::newRow("yes no: o chooses nothing") << 36 << "O" << 0;
        QTest::newRow("ok cancel: a") << 17 << "A" << 2;
        QTest::newRow("ok cancel: c") << 17 << "c" << 2;
        QTest::newRow("ok cancel: escape") << 17 << "Escape" << 2;
        QTest::newRow("identity: v is a foreign card") << -1 << "v" << 1;
        QTest::newRow("identity: t is a typing error") << -1 << "T" << 2;
        QTest::newRow("identity: enter is a typing error") << -1 << "Enter" << 2;
        QTest::newRow("identity: escape is a typing error") << -1 << "Escape" << 2;
        QTest::newRow("identity: o chooses nothing") << -1 << "O" << 0;
        QTest::newRow("identity: a chooses nothing") << -1 << "A" << 0;
        QTest::newRow("scan, ok on yes no") << 36 << "%[OK]" << 6;
        QTest::newRow("scan, ok on ok") << 0 << "%[OK]" << 1;
        QTest::newRow("scan, ann on yes no") << 36 << "%[ANN]" << 7;
        QTest::newRow("scan, ann on ok cancel") << 1 << "%[ANN]" << 2;
        QTest::newRow("scan, ann with ok alone") << 0 << "%[ANN]" << 0;
        QTest::newRow("scan, other code") << 0 << "%[123]" << 0;
        QTest::newRow("scan, ok on the identity box") << -1 << "%[OK]" << 1;
        QTest::newRow("scan, ann on the identity box") << -1 << "%[ANN]" << 2;
        // clang-format on
    }
    void keysChooseVisibleButtons()
    {
        QFETCH(int, style);
        QFETCH(QString, key);
        const MessageBoxERequest request
            = MessageBoxLogic::prepare(QStringLiteral("p"), style, QString());
        QTEST(key.startsWith(QLatin1String("%[")) ? request.resultForScan(key)
                                                  : request.resultForKey(key),
            "result");
    }

    // The identity-number box words its own text around the number.
    void identityNumberText()
    {
        const MessageBoxERequest request = MessageBoxLogic::prepare(
            QStringLiteral("591234567890"), MessageBoxStyle::IdentityNumber, QString());
        QCOMPARE(request.text,
            QStringLiteral("Ongeldig Ident-Nr :  591234567890\r\rU heeft een typefout gemaakt "
                           "of het betreft een vreemde nationaliteit."));
        QCOMPARE(request.prompt, QStringLiteral("591234567890"));
    }

    void shownThroughThePlatformAndKept()
    {
        machine->setAnswers({ QStringLiteral("X"), QStringLiteral("N") });
        QCOMPARE(
            showMessageBoxE(QStringLiteral("Doorgaan ?"), 36, QStringLiteral("Mijn titel")), 7);
        QCOMPARE(modGenLib().msgBoxResult, 7);
        const auto *shown = std::get_if<MessageBoxEShown>(&machine->shown().at(0));
        QVERIFY(shown);
        QCOMPARE(shown->caption, QStringLiteral("Mijn titel"));
        QCOMPARE(shown->type, QStringLiteral("Question"));
        QCOMPARE(shown->answer, 7);
        QCOMPARE(
            shown->buttonsShown, (QList<ShownButton> { { "cmdYes", "Ja" }, { "cmdNo", "Nee" } }));
        QVERIFY(machine->pendingAnswers().isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestMessageBoxLogic)
#include "tst_messageboxlogic.moc"
