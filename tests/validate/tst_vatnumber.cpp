#include "validate/vatnumber.h"

#include "identifiermethod.h"

#include <QTest>

using namespace qor;
using test::cr2;
using test::messageBox;

class TestVatNumber : public QObject
{
    Q_OBJECT

private slots:
    void belgianNumbers_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("landCode");
        QTest::addColumn<QString>("cleaned");
        QTest::addColumn<QString>("display");
        // 1234567 modulo 97 is 48, so its check digits are 49; 4031707 needs 01.
        // clang-format off
        QTest::newRow("prefix and points") << "BE 0123.456.749" << "BE" << "0123456749" << "0123.456.749";
        QTest::newRow("empty land code means BE") << "0123456749" << "" << "0123456749" << "0123.456.749";
        QTest::newRow("multiple of 97 needs 97") << "0000.009.797" << "BE" << "0000009797" << "0000.009.797";
        QTest::newRow("no length test") << "040317070101" << "BE" << "040317070101" << "040317.070.101";
        QTest::newRow("nine digits read wrongly") << "123456749" << "BE" << "123456749" << "";
        QTest::newRow("wrong check digits") << "0123.456.748" << "BE" << "0123456748" << "";
        QTest::newRow("00 is not the 0 shortcut") << "00" << "BE" << "00" << "";
        QTest::newRow("blank before 0 is not the shortcut") << " 0" << "BE" << "0" << "";
        QTest::newRow("letters only") << "BTW" << "BE" << "" << "";
        // clang-format on
    }
    void belgianNumbers()
    {
        QFETCH(QString, input);
        QFETCH(QString, landCode);
        QFETCH(QString, cleaned);
        QFETCH(QString, display);
        QString vatNr = input;
        QString land = landCode;
        const CheckResult check = checkVatNumber(vatNr, land);
        QCOMPARE(land, QStringLiteral("BE"));
        QCOMPARE(vatNr, cleaned);
        QCOMPARE(check.display, display);
        QCOMPARE(check.refused, display.isEmpty());
    }

    void passedThrough_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("landCode");
        QTest::addColumn<QString>("display");
        // clang-format off
        QTest::newRow("zero shortcut skips the check") << "0" << "BE" << "0000.000.000";
        QTest::newRow("foreign number unchecked") << "NL 8043.64.789.B01" << "NL" << "NL 8043.64.789.B01";
        QTest::newRow("land code is case-sensitive") << "0123.456.748" << "be" << "0123.456.748";
        // clang-format on
    }
    void passedThrough()
    {
        QFETCH(QString, input);
        QFETCH(QString, landCode);
        QFETCH(QString, display);
        QString vatNr = input;
        QString land = landCode;
        const CheckResult check = checkVatNumber(vatNr, land);
        QCOMPARE(vatNr, input);
        QCOMPARE(land, landCode.isEmpty() ? QStringLiteral("BE") : landCode);
        QCOMPARE(check.display, display);
        QVERIFY(!check.refused);
    }

    void blankLeavesEverythingAlone()
    {
        for (const QString &input : { QString(), QStringLiteral("   ") }) {
            QString vatNr = input;
            QString land;
            const CheckResult check = checkVatNumber(vatNr, land);
            QCOMPARE(vatNr, input);
            QVERIFY(land.isEmpty());
            QVERIFY(check.display.isEmpty());
            QVERIFY(!check.refused);
        }
    }

    void megabyteOfDigitsReadsFirstEightOnly()
    {
        // The first eight digits 04031707 need 01, whatever lies between.
        QString vatNr = QStringLiteral("04031707") + QString(1 << 20, QLatin1Char('9'))
            + QStringLiteral("01");
        QString land;
        const CheckResult check = checkVatNumber(vatNr, land);
        QVERIFY(!check.refused);
        QVERIFY(check.display.endsWith(QLatin1String("999.901")));
        QCOMPARE(check.display.size(), vatNr.size() + 2);
    }

    void throughTheLibrary_data()
    {
        test::addMethodCallColumns();
        const QVariantMap german { { "Offset", 30000 } };
        // clang-format off
        QTest::newRow("land code written back") << QVariantMap() << QVariantList { "0123 456 749", false, "" } << "0123.456.749" << QVariantList { "0123456749", false, "BE" } << QVariantMap();
        QTest::newRow("wrong: silent by default") << QVariantMap() << QVariantList { "0123.456.748" } << "" << QVariantList { "0123456748" } << QVariantMap();
        QTest::newRow("wrong, MBox True: the message") << QVariantMap() << QVariantList { "0123.456.748", true } << "" << QVariantList { "0123456748", true } << messageBox("Ongeldig Ondernemingsnummer :" + cr2 + "Schrijfwijze  0000000000  of  0000.000.000", 48, "Fout !");
        QTest::newRow("wrong: markers of the missing German texts") << german << QVariantList { "123456749", true } << "" << QVariantList { "123456749", true } << messageBox(" [LL 31010 ?] " + cr2 + " [LL 31011 ?] ", 48, " [LL 31031 ?] ");
        // clang-format on
    }
    void throughTheLibrary() { test::compareMethodCall(QStringLiteral("ControleerVAT")); }

    void directCallIsSilentByDefault()
    {
        const auto machine = test::installRecordingPlatform();
        QString vatNr = QStringLiteral("0123.456.748");
        QCOMPARE(clsqorGenLib().ControleerVAT(vatNr), QString());
        QVERIFY(machine->shown().isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestVatNumber)
#include "tst_vatnumber.moc"
