#include "tests/validate/identifiercheck.h"

#include <QTest>

using namespace qor;
using test::cr2;
using test::messageBox;

// The payment methods of the library object, called by name as a host calls
// them: the result, the caller's variable afterwards and the message shown.
class TestPaymentMethods : public QObject
{
    Q_OBJECT

    const QVariantMap french { { QStringLiteral("Offset"), 10000 } };
    const QVariantMap english { { QStringLiteral("Offset"), 20000 } };

private slots:
    void controleerIBAN_data()
    {
        test::addMethodCallColumns();

        const QVariantMap wrong = messageBox("Ongeldig IBAN-rekeningnummer :" + cr2
                + "Schrijfwijze  BE00 0000 0000 0000  of  BE00000000000000",
            48, "Fout !");
        // clang-format off
        QTest::newRow("typed in groups: electronic form kept") << QVariantMap() << QVariantList { "be71 0961 2345 6769" } << "BE71 0961 2345 6769" << QVariantList { "BE71096123456769" } << QVariantMap();
        QTest::newRow("the old account notation is no IBAN") << QVariantMap() << QVariantList { "BE71 0961 2345 6769x" } << "" << QVariantList { "BE71096123456769X" } << wrong;
        QTest::newRow("IBAN right, Belgian account check wrong") << QVariantMap() << QVariantList { "BE82096123456770" } << "" << QVariantList { "BE82096123456770" } << wrong;
        QTest::newRow("another registry country") << QVariantMap() << QVariantList { "DE89 3704 0044 0532 0130 00" } << "DE89 3704 0044 0532 0130 00" << QVariantList { "DE89370400440532013000" } << QVariantMap();
        QTest::newRow("wrong without MBox: no message") << QVariantMap() << QVariantList { "BE72096123456769", false } << "" << QVariantList { "BE72096123456769", false } << QVariantMap();
        QTest::newRow("blank: left as it is, no message") << QVariantMap() << QVariantList { "   " } << "" << QVariantList { "   " } << QVariantMap();
        QTest::newRow("wrong in French") << french << QVariantList { "BE72096123456769" } << "" << QVariantList { "BE72096123456769" } << messageBox("Num\u00E9ro de compte IBAN non valable :" + cr2 + "Notation  BE00 0000 0000 0000  ou  BE00000000000000", 48, "Erreur !");
        QTest::newRow("lone surrogate") << QVariantMap() << QVariantList { QString(QChar(0xDC00)), false } << "" << QVariantList { QString(QChar(0xDC00)), false } << QVariantMap();
        // clang-format on
    }
    void controleerIBAN() { test::compareMethodCall(QStringLiteral("ControleerIBAN")); }

    void controleerBIC_data()
    {
        test::addMethodCallColumns();
        // clang-format off
        QTest::newRow("lower case with blanks") << QVariantMap() << QVariantList { "gkcc be bb" } << "GKCCBEBB" << QVariantList { "GKCCBEBB" } << QVariantMap();
        QTest::newRow("wrong in English") << english << QVariantList { "GKCCQQBB" } << "" << QVariantList { "GKCCQQBB" } << messageBox("Invalid BIC Code :" + cr2 + "Notation  AAAABBCC  or  AAAABBCCDDD", 48, "Error !");
        // clang-format on
    }
    void controleerBIC() { test::compareMethodCall(QStringLiteral("ControleerBIC")); }

    void controleerRF_data()
    {
        test::addMethodCallColumns();
        // clang-format off
        QTest::newRow("electronic form kept, print form returned") << QVariantMap() << QVariantList { "rf18539007547034" } << "RF18 5390 0754 7034" << QVariantList { "RF18539007547034" } << QVariantMap();
        QTest::newRow("wrong check digits") << QVariantMap() << QVariantList { "RF19 5390 0754 7034" } << "" << QVariantList { "RF19539007547034" } << messageBox("Ongeldige gestructureerde referentie (RF) :" + cr2 + "Schrijfwijze  RF00 0000 0000  of  RF0000000000", 48, "Fout !");
        // clang-format on
    }
    void controleerRF() { test::compareMethodCall(QStringLiteral("ControleerRF")); }

    void conversions_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QVariantList>("args");
        QTest::addColumn<QString>("result");
        // clang-format off
        QTest::newRow("GetIBAN of the old notation") << "GetIBAN" << QVariantList { "096-1234567-69" } << "BE71 0961 2345 6769";
        QTest::newRow("GetIBAN of a wrong account") << "GetIBAN" << QVariantList { "096-1234567-68" } << "";
        QTest::newRow("GetBBAN of a Belgian IBAN") << "GetBBAN" << QVariantList { "BE71 0961 2345 6769" } << "096-1234567-69";
        QTest::newRow("GetBBAN of another country") << "GetBBAN" << QVariantList { "DE89370400440532013000" } << "";
        QTest::newRow("GetBIC of an IBAN") << "GetBIC" << QVariantList { "BE71096123456769" } << "GKCCBEBB";
        QTest::newRow("GetBIC of the old notation") << "GetBIC" << QVariantList { "096-1234567-69" } << "GKCCBEBB";
        QTest::newRow("GetBIC of a bank without a BIC") << "GetBIC" << QVariantList { "175-0000000-11" } << "";
        QTest::newRow("GetRF of an invoice number") << "GetRF" << QVariantList { "2024 0017" } << "RF85 2024 0017";
        QTest::newRow("GetRF of a text too long") << "GetRF" << QVariantList { QString(22, u'1') } << "";
        QTest::newRow("GetEPCQR with the optional arguments left out") << "GetEPCQR" << QVariantList { "Qorsoft BV", "BE71096123456769", 12.5 } << "BCD\n002\n1\nSCT\n\nQorsoft BV\nBE71096123456769\nEUR12.50";
        QTest::newRow("GetEPCQR with a name of 10,000 characters") << "GetEPCQR" << QVariantList { QString(10000, u'n'), "BE71096123456769", 12.5 } << "";
        // clang-format on
    }
    void conversions()
    {
        QFETCH(QString, method);
        QFETCH(QVariantList, args);
        const auto machine = test::installRecordingPlatform(QStringLiteral("nl_BE"));
        clsqorGenLib lib;
        QTEST(lib.Invoke(method, args).toString(), "result");
        QVERIFY(machine->shown().isEmpty());
    }
};

QTEST_MAIN(TestPaymentMethods)
#include "tst_paymentmethods.moc"
