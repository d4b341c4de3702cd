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

    const QVariantMap english { { QStringLiteral("Offset"), 20000 } };

private slots:
    void methods_data()
    {
        QTest::addColumn<QString>("method");
        test::addMethodCallColumns();
        // clang-format off
        QTest::newRow("IBAN typed in groups: electronic form kept") << "ControleerIBAN" << QVariantMap() << QVariantList { "be71 0961 2345 6769" } << "BE71 0961 2345 6769" << QVariantList { "BE71096123456769" } << QVariantMap();
        QTest::newRow("IBAN right, Belgian account check wrong") << "ControleerIBAN" << QVariantMap() << QVariantList { "BE82096123456770" } << "" << QVariantList { "BE82096123456770" } << messageBox("Ongeldig IBAN-rekeningnummer :" + cr2 + "Schrijfwijze  BE00 0000 0000 0000  of  BE00000000000000", 48, "Fout !");
        QTest::newRow("IBAN wrong without MBox: no message") << "ControleerIBAN" << QVariantMap() << QVariantList { "BE72096123456769", false } << "" << QVariantList { "BE72096123456769", false } << QVariantMap();
        QTest::newRow("IBAN blank: left as it is, no message") << "ControleerIBAN" << QVariantMap() << QVariantList { "   " } << "" << QVariantList { "   " } << QVariantMap();
        QTest::newRow("BIC in lower case with blanks") << "ControleerBIC" << QVariantMap() << QVariantList { "gkcc be bb" } << "GKCCBEBB" << QVariantList { "GKCCBEBB" } << QVariantMap();
        QTest::newRow("BIC wrong in English") << "ControleerBIC" << english << QVariantList { "GKCCQQBB" } << "" << QVariantList { "GKCCQQBB" } << messageBox("Invalid BIC Code :" + cr2 + "Notation  AAAABBCC  or  AAAABBCCDDD", 48, "Error !");
        QTest::newRow("RF: electronic form kept, print form returned") << "ControleerRF" << QVariantMap() << QVariantList { "rf18539007547034" } << "RF18 5390 0754 7034" << QVariantList { "RF18539007547034" } << QVariantMap();
        QTest::newRow("RF with wrong check digits") << "ControleerRF" << QVariantMap() << QVariantList { "RF19 5390 0754 7034" } << "" << QVariantList { "RF19539007547034" } << messageBox("Ongeldige gestructureerde referentie (RF) :" + cr2 + "Schrijfwijze  RF00 0000 0000  of  RF0000000000", 48, "Fout !");
        QTest::newRow("GetIBAN of the old notation") << "GetIBAN" << QVariantMap() << QVariantList { "096-1234567-69" } << "BE71 0961 2345 6769" << QVariantList { "096-1234567-69" } << QVariantMap();
        QTest::newRow("GetBBAN of a Belgian IBAN") << "GetBBAN" << QVariantMap() << QVariantList { "BE71 0961 2345 6769" } << "096-1234567-69" << QVariantList { "BE71 0961 2345 6769" } << QVariantMap();
        QTest::newRow("GetBIC of the old notation") << "GetBIC" << QVariantMap() << QVariantList { "096-1234567-69" } << "GKCCBEBB" << QVariantList { "096-1234567-69" } << QVariantMap();
        QTest::newRow("GetRF of an invoice number") << "GetRF" << QVariantMap() << QVariantList { "2024 0017" } << "RF85 2024 0017" << QVariantList { "2024 0017" } << QVariantMap();
        QTest::newRow("GetEPCQR with the optional arguments left out") << "GetEPCQR" << QVariantMap() << QVariantList { "Qorsoft BV", "BE71096123456769", 12.5 } << "BCD\n002\n1\nSCT\n\nQorsoft BV\nBE71096123456769\nEUR12.50" << QVariantList { "Qorsoft BV", "BE71096123456769", 12.5 } << QVariantMap();
        // clang-format on
    }
    void methods()
    {
        QFETCH(QString, method);
        test::compareMethodCall(method);
    }
};

QTEST_MAIN(TestPaymentMethods)
#include "tst_paymentmethods.moc"
