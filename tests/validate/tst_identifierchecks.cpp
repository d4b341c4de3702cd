#include "identifiercheck.h"

#include <QTest>

using namespace qor;
using test::cr2;
using test::messageBox;

// The identifier methods of the library object, called by name as a host calls
// them: the result, the caller's variables afterwards and the one message shown,
// in the language of the object.
class TestIdentifierChecks : public QObject
{
    Q_OBJECT

private slots:
    void methods_data()
    {
        QTest::addColumn<QString>("method");
        test::addMethodCallColumns();
        const QVariantMap german { { "Offset", 30000 } };
        const QString title = QStringLiteral("OstGenLib / Get OGM");
        const QString dutch = QStringLiteral(
            "ReferentieNummer 12345678901 bij bepalen van OGM overschrijdt 9 tekens !");
        const QString helpDesk = QStringLiteral("Neem contact op met Velantis Help-Desk.");
        const QVariantList tooLong { "1234567890-1" };
        const QVariantList lastTen { "2345678901" };
        // clang-format off
        QTest::newRow("bank account, valid: display notation, cleaned argument") << "ControleerBankNr" << QVariantMap() << QVariantList { "539 0075470 34" } << "539-0075470-34" << QVariantList { "539007547034" } << QVariantMap();
        QTest::newRow("bank account, wrong: markers of the missing German texts") << "ControleerBankNr" << german << QVariantList { "abc" } << "" << QVariantList { "" } << messageBox(" [LL 31002 ?] " + cr2 + " [LL 31001 ?] ", 48, " [LL 31031 ?] ");
        QTest::newRow("bank account, wrong, MBox False: silent") << "ControleerBankNr" << QVariantMap() << QVariantList { "123-4567890-12", false } << "" << QVariantList { "123456789012", false } << QVariantMap();
        QTest::newRow("VAT number, land code written back") << "ControleerVAT" << QVariantMap() << QVariantList { "0123 456 749", false, "" } << "0123.456.749" << QVariantList { "0123456749", false, "BE" } << QVariantMap();
        QTest::newRow("VAT number, wrong: silent by default") << "ControleerVAT" << QVariantMap() << QVariantList { "0123.456.748" } << "" << QVariantList { "0123456748" } << QVariantMap();
        QTest::newRow("VAT number, wrong: markers of the missing German texts") << "ControleerVAT" << german << QVariantList { "123456749", true } << "" << QVariantList { "123456749", true } << messageBox(" [LL 31010 ?] " + cr2 + " [LL 31011 ?] ", 48, " [LL 31031 ?] ");
        QTest::newRow("national number, another land: untouched") << "ControleerNatNr" << QVariantMap() << QVariantList { "85.07.30-033.29", true, "NL" } << "85.07.30-033.29" << QVariantList { "85.07.30-033.29", true, "NL" } << QVariantMap();
        QTest::newRow("national number, wrong: markers of the missing German texts") << "ControleerNatNr" << german << QVariantList { "x" } << "" << QVariantList { "" } << messageBox(" [LL 31026 ?] " + cr2 + " [LL 31027 ?] ", 48, " [LL 31031 ?] ");
        QTest::newRow("identity card, valid after the rewrite") << "ControleerIdentNr" << QVariantMap() << QVariantList { "000000009797" } << "000000009700" << QVariantList { "000000009700" } << QVariantMap();
        QTest::newRow("identity card, refused: the rewritten number is the prompt") << "ControleerIdentNr" << QVariantMap() << QVariantList { "123456789097" } << "" << QVariantList { "123456789000" } << messageBox("123456789000", -1, "Controle Nummer Identiteitskaart");
        QTest::newRow("identity card, refused: marker of the missing German title") << "ControleerIdentNr" << german << QVariantList { "591-2345678-29" } << "" << QVariantList { "591-2345678-29" } << messageBox("591-2345678-29", -1, " [LL 31040 ?] ");
        QTest::newRow("identity card, refused, MBox False: silent") << "ControleerIdentNr" << QVariantMap() << QVariantList { "591234567828", false } << "" << QVariantList { "591234567828", false } << QVariantMap();
        QTest::newRow("payment reference, valid") << "ControleerOGM" << QVariantMap() << QVariantList { "***000/0000/01919***" } << "000/0000/01919" << QVariantList { "000000001919" } << QVariantMap();
        QTest::newRow("payment reference, wrong: the typed text in the message") << "ControleerOGM" << QVariantMap() << QVariantList { "+++000/0000/09797+++" } << "" << QVariantList { "" } << messageBox("+++000/0000/09797+++ is een ongeldige OGM...", 48, "Fout !");
        QTest::newRow("payment reference, wrong: marker of the missing German text") << "ControleerOGM" << german << QVariantList { "12" } << "" << QVariantList { "" } << messageBox("12 [LL 31012 ?] ", 48, " [LL 31031 ?] ");
        QTest::newRow("payment reference, wrong, MBox False: silent") << "ControleerOGM" << QVariantMap() << QVariantList { "000/0000/09797", false } << "" << QVariantList { "", false } << QVariantMap();
        QTest::newRow("payment reference made: cleaned reference written back") << "GetOGM" << QVariantMap() << QVariantList { "F19" } << "000/0000/01919" << QVariantList { "19" } << QVariantMap();
        QTest::newRow("payment reference made too long: the host's paragraph break") << "GetOGM" << QVariantMap { { "vbCr2", "\r\n" } } << tooLong << "234/5678/90169" << lastTen << messageBox(dutch + "\r\n" + helpDesk, 16, title);
        QTest::newRow("payment reference made too long: markers of the missing German texts") << "GetOGM" << german << tooLong << "234/5678/90169" << lastTen << messageBox(" [LL 31221 ?] 12345678901 [LL 31222 ?] " + cr2 + " [LL 39700 ?] ", 16, title);
        // clang-format on
    }
    void methods()
    {
        QFETCH(QString, method);
        test::compareMethodCall(method);
    }

    void userAcceptsARefusedNumberAsForeign()
    {
        const auto machine = test::installRecordingPlatform(QStringLiteral("nl_BE"));
        machine->setAnswers({ 1 });
        QString identNr = QStringLiteral("591-2345678-29");
        QCOMPARE(clsqorGenLib().ControleerIdentNr(identNr), QStringLiteral("591-2345678-29"));
        QCOMPARE(machine->shown().size(), 1);
    }
};

QTEST_APPLESS_MAIN(TestIdentifierChecks)
#include "tst_identifierchecks.moc"
