#include "lib/clsqorgenlib.h"
#include "lib/modgenlib.h"
#include "lib/typelibrary.h"
#include "platform/recordingplatform.h"
#include "runtime/runtimeerror.h"

#include <QTest>

using namespace qor;

namespace {

const QString cr2 = QString(2, QChar(13));

QVariantMap messageBox(const QString &prompt, int buttons, const QString &title)
{
    return { { QStringLiteral("prompt"), prompt }, { QStringLiteral("buttons"), buttons },
        { QStringLiteral("title"), title }, { QStringLiteral("caption"), title } };
}

} // namespace

class TestIdentifierMethods : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> machine;

    // The one message box shown, reduced to what the user reads.
    QVariantMap onlyMessage() const
    {
        const QVariantList shown = machine->shown();
        if (shown.size() != 1)
            return { { QStringLiteral("count"), shown.size() } };
        QVariantMap box = shown.first().toMap();
        for (const QString &key :
            { QStringLiteral("kind"), QStringLiteral("type"), QStringLiteral("answer") })
            box.remove(key);
        return box;
    }

private slots:
    void init()
    {
        ModGenLib::reset();
        machine = std::make_shared<RecordingPlatform>();
        machine->setLocale(QStringLiteral("nl_BE"));
        Platform::install(machine);
    }

    // Every check with MBox reports a wrong number in the language of Offset.
    void wrongNumberMessages_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QString>("input");
        QTest::addColumn<int>("offset");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QVariantMap>("message");
        const QString fout = QStringLiteral("Fout !");
        const QString lang = QStringLiteral(" [LL 31031 ?] ");
        // clang-format off
        QTest::newRow("bank, dutch") << "ControleerBankNr" << "123-4567890-12" << 0 << "123456789012" << messageBox("Ongeldig Bankrekeningnummer :" + cr2 + "Schrijfwijze  000000000000  of  000-0000000-00", 48, fout);
        QTest::newRow("bank, german markers") << "ControleerBankNr" << "abc" << 30000 << "" << messageBox(" [LL 31002 ?] " + cr2 + " [LL 31001 ?] ", 48, lang);
        QTest::newRow("vat, dutch") << "ControleerVAT" << "0123.456.748" << 0 << "0123456748" << messageBox("Ongeldig Ondernemingsnummer :" + cr2 + "Schrijfwijze  0000000000  of  0000.000.000", 48, fout);
        QTest::newRow("vat, german markers") << "ControleerVAT" << "123456749" << 30000 << "123456749" << messageBox(" [LL 31010 ?] " + cr2 + " [LL 31011 ?] ", 48, lang);
        QTest::newRow("national number, dutch") << "ControleerNatNr" << "85.07.30-033.29" << 0 << "85073003329" << messageBox("Ongeldig Nationaal Nummer :" + cr2 + "Schrijfwijze  00000000000  of  000000.000.00", 48, fout);
        QTest::newRow("national number, german markers") << "ControleerNatNr" << "x" << 30000 << "" << messageBox(" [LL 31026 ?] " + cr2 + " [LL 31027 ?] ", 48, lang);
        QTest::newRow("identity card, rewritten number as prompt") << "ControleerIdentNr" << "123456789097" << 0 << "123456789000" << messageBox("123456789000", -1, "Controle Nummer Identiteitskaart");
        QTest::newRow("identity card, german marker title") << "ControleerIdentNr" << "591-2345678-29" << 30000 << "591-2345678-29" << messageBox("591-2345678-29", -1, " [LL 31040 ?] ");
        QTest::newRow("payment reference, typed text in prompt") << "ControleerOGM" << "+++000/0000/09797+++" << 0 << "" << messageBox("+++000/0000/09797+++ is een ongeldige OGM...", 48, fout);
        QTest::newRow("payment reference, german markers") << "ControleerOGM" << "12" << 30000 << "" << messageBox("12 [LL 31012 ?] ", 48, lang);
        // clang-format on
    }
    void wrongNumberMessages()
    {
        QFETCH(QString, method);
        QFETCH(QString, input);
        QFETCH(int, offset);
        QFETCH(QString, after);
        QFETCH(QVariantMap, message);
        clsqorGenLib lib;
        lib.setProperty("Offset", offset);
        QString number = input;
        QString result;
        if (method == QLatin1String("ControleerBankNr"))
            result = lib.ControleerBankNr(number);
        else if (method == QLatin1String("ControleerVAT"))
            result = lib.ControleerVAT(number, true);
        else if (method == QLatin1String("ControleerNatNr"))
            result = lib.ControleerNatNr(number);
        else if (method == QLatin1String("ControleerIdentNr"))
            result = lib.ControleerIdentNr(number);
        else
            result = lib.ControleerOGM(number);
        QCOMPARE(result, QString());
        QCOMPARE(number, after);
        QCOMPARE(onlyMessage(), message);
        QCOMPARE(modGenLib().languageOffset, offset);
    }

    // Valid numbers come back in display notation without a message; wrong ones
    // with MBox False give the empty result silently.
    void noMessage_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QString>("input");
        QTest::addColumn<bool>("mbox");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("result");
        // clang-format off
        QTest::newRow("bank valid") << "ControleerBankNr" << "539 0075470 34" << true << "539007547034" << "539-0075470-34";
        QTest::newRow("bank wrong, MBox False") << "ControleerBankNr" << "123-4567890-12" << false << "123456789012" << "";
        QTest::newRow("bank blank untouched") << "ControleerBankNr" << "   " << true << "   " << "";
        QTest::newRow("vat valid") << "ControleerVAT" << "BE 0403.170.701" << true << "0403170701" << "0403.170.701";
        QTest::newRow("vat zero shortcut") << "ControleerVAT" << "0" << true << "0" << "0000.000.000";
        QTest::newRow("national number from 2000") << "ControleerNatNr" << "17.07.30-033.84" << true << "17073003384" << "170730.033.84";
        QTest::newRow("national number wrong, MBox False") << "ControleerNatNr" << "85073003329" << false << "85073003329" << "";
        QTest::newRow("identity card valid after rewrite") << "ControleerIdentNr" << "000000009797" << true << "000000009700" << "000000009700";
        QTest::newRow("identity card wrong, MBox False") << "ControleerIdentNr" << "591234567828" << false << "591234567828" << "";
        QTest::newRow("payment reference valid") << "ControleerOGM" << "***000/0000/01919***" << true << "000000001919" << "000/0000/01919";
        QTest::newRow("payment reference wrong, MBox False") << "ControleerOGM" << "000/0000/09797" << false << "" << "";
        QTest::newRow("payment reference blank untouched") << "ControleerOGM" << " " << true << " " << "";
        // clang-format on
    }
    void noMessage()
    {
        QFETCH(QString, method);
        QFETCH(QString, input);
        QFETCH(bool, mbox);
        QFETCH(QString, after);
        QFETCH(QString, result);
        clsqorGenLib lib;
        QVariantList args { input, mbox };
        QCOMPARE(lib.Invoke(method, args).toString(), result);
        QCOMPARE(args.first().toString(), after);
        QCOMPARE(machine->shown(), QVariantList());
    }

    void vatDefaultsToNoMessage()
    {
        clsqorGenLib lib;
        QString vatNr = QStringLiteral("0123.456.748");
        QCOMPARE(lib.ControleerVAT(vatNr), QString());
        QVariantList args { QStringLiteral("0123.456.748") };
        QCOMPARE(lib.Invoke(QStringLiteral("ControleerVAT"), args).toString(), QString());
        QCOMPARE(machine->shown(), QVariantList());
    }

    void vatLandCodeWrittenBack()
    {
        clsqorGenLib lib;
        QString vatNr = QStringLiteral("0123456749");
        QString landCode;
        QCOMPARE(lib.ControleerVAT(vatNr, false, landCode), QStringLiteral("0123.456.749"));
        QCOMPARE(landCode, QStringLiteral("BE"));

        QVariantList args { QStringLiteral("0123 456 749"), false, QString() };
        QCOMPARE(lib.Invoke(QStringLiteral("controleervat"), args).toString(),
            QStringLiteral("0123.456.749"));
        QCOMPARE(
            args, (QVariantList { QStringLiteral("0123456749"), false, QStringLiteral("BE") }));

        QVariantList foreign { QStringLiteral("DE 123456789"), true, QStringLiteral("DE") };
        QCOMPARE(lib.Invoke(QStringLiteral("ControleerVAT"), foreign).toString(),
            QStringLiteral("DE 123456789"));
        QCOMPARE(foreign.first().toString(), QStringLiteral("DE 123456789"));
        QCOMPARE(machine->shown(), QVariantList());
    }

    void nationalNumberOfAnotherLand()
    {
        clsqorGenLib lib;
        QString natNr;
        QCOMPARE(lib.ControleerNatNr(natNr, true, QStringLiteral("NL")), QString());
        QVariantList args { QStringLiteral("85.07.30-033.29"), true, QStringLiteral("NL") };
        QCOMPARE(lib.Invoke(QStringLiteral("ControleerNatNr"), args).toString(),
            QStringLiteral("85.07.30-033.29"));
        QCOMPARE(args.first().toString(), QStringLiteral("85.07.30-033.29"));
        QCOMPARE(machine->shown(), QVariantList());
    }

    void identityCardAcceptedAsForeign_data()
    {
        QTest::addColumn<QVariant>("answer");
        QTest::addColumn<QString>("result");
        // clang-format off
        QTest::newRow("answer 1 accepts the number") << QVariant(1) << "591-2345678-29";
        QTest::newRow("answer 2 keeps it refused") << QVariant(2) << "";
        QTest::newRow("enter chooses no acceptance") << QVariant(QStringLiteral("Enter")) << "";
        // clang-format on
    }
    void identityCardAcceptedAsForeign()
    {
        QFETCH(QVariant, answer);
        QFETCH(QString, result);
        machine->setAnswers({ answer });
        clsqorGenLib lib;
        QString identNr = QStringLiteral("591-2345678-29");
        QCOMPARE(lib.ControleerIdentNr(identNr), result);
        QCOMPARE(machine->shown().size(), 1);
    }

    void getOgm()
    {
        clsqorGenLib lib;
        QString reference = QStringLiteral("0000012345");
        QCOMPARE(lib.GetOGM(reference), QStringLiteral("000/0012/34526"));
        QCOMPARE(reference, QStringLiteral("12345"));
        QVariantList args { QStringLiteral("F19") };
        QCOMPARE(lib.Invoke(QStringLiteral("GetOGM"), args).toString(),
            QStringLiteral("000/0000/01919"));
        QCOMPARE(args.first().toString(), QStringLiteral("19"));
        QCOMPARE(machine->shown(), QVariantList());
    }

    void getOgmReportsAndGoesOn_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<QString>("vbCr2");
        QTest::addColumn<QString>("prompt");
        // clang-format off
        QTest::newRow("dutch") << 0 << cr2 << "ReferentieNummer 12345678901 bij bepalen van OGM overschrijdt 9 tekens !" + cr2 + "Neem contact op met Velantis Help-Desk.";
        QTest::newRow("german markers") << 30000 << cr2 << " [LL 31221 ?] 12345678901 [LL 31222 ?] " + cr2 + " [LL 39700 ?] ";
        QTest::newRow("host's paragraph break") << 0 << "\r\n" << "ReferentieNummer 12345678901 bij bepalen van OGM " "overschrijdt 9 tekens !\r\nNeem contact op met Velantis " "Help-Desk.";
        // clang-format on
    }
    void getOgmReportsAndGoesOn()
    {
        QFETCH(int, offset);
        QFETCH(QString, vbCr2);
        QFETCH(QString, prompt);
        clsqorGenLib lib;
        lib.setProperty("Offset", offset);
        lib.setProperty("vbCr2", vbCr2);
        QString reference = QStringLiteral("1234567890-1");
        QCOMPARE(lib.GetOGM(reference), QStringLiteral("234/5678/90169"));
        QCOMPARE(reference, QStringLiteral("2345678901"));
        QCOMPARE(onlyMessage(), messageBox(prompt, 16, QStringLiteral("OstGenLib / Get OGM")));
    }

    void overflowReachesTheCaller()
    {
        clsqorGenLib lib;
        QString ogm = QStringLiteral("+++300/0000/00000+++");
        try {
            lib.ControleerOGM(ogm);
            QFAIL("no overflow from the method");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 6);
        }
        QCOMPARE(ogm, QStringLiteral("300000000000"));

        QVariantList args { QStringLiteral("214/7483/64800"), false };
        try {
            lib.Invoke(QStringLiteral("ControleerOGM"), args);
            QFAIL("no overflow through Invoke");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 6);
        }
        QCOMPARE(machine->shown(), QVariantList());
    }

    void publishedOnceWithTheirDefaults_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QStringList>("parameters"); // name:optional default:byRef
        // clang-format off
        QTest::newRow("bank") << "ControleerBankNr" << QStringList { "BankNr::ref", "MBox:true:" };
        QTest::newRow("vat") << "ControleerVAT" << QStringList { "VATnr::ref", "MBox:false:", "LandCode::ref" };
        QTest::newRow("national") << "ControleerNatNr" << QStringList { "NatNr::ref", "MBox:true:", "LandCode::" };
        QTest::newRow("identity") << "ControleerIdentNr" << QStringList { "IdentNr::ref", "MBox:true:" };
        QTest::newRow("make reference") << "GetOGM" << QStringList { "ReferentieNummer::ref" };
        QTest::newRow("check reference") << "ControleerOGM" << QStringList { "OGM::ref", "MBox:true:" };
        // clang-format on
    }
    void publishedOnceWithTheirDefaults()
    {
        QFETCH(QString, method);
        QFETCH(QStringList, parameters);
        const auto &methods = clsqorGenLib::typeLibrary().methods();
        const auto count = std::count_if(
            methods.begin(), methods.end(), [&](const MethodInfo &m) { return m.name == method; });
        QCOMPARE(count, 1);
        const MethodInfo *info = clsqorGenLib::typeLibrary().findMethod(method);
        QCOMPARE(info->returnType, QStringLiteral("String"));
        QStringList published;
        for (const ParameterInfo &p : info->parameters) {
            QCOMPARE(
                p.optional, p.name == QLatin1String("MBox") || p.name == QLatin1String("LandCode"));
            QCOMPARE(p.defaultValue.isValid(), p.optional);
            published << p.name + QLatin1Char(':') + p.defaultValue.toString() + QLatin1Char(':')
                    + (p.byRef ? QStringLiteral("ref") : QString());
        }
        QCOMPARE(published, parameters);
    }
};

QTEST_APPLESS_MAIN(TestIdentifierMethods)
#include "tst_identifiermethods.moc"
