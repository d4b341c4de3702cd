#include "payments/creditorreference.h"

#include <QTest>

using namespace qor;

Q_DECLARE_METATYPE(qor::PaymentCheck)

class TestCreditorReference : public QObject
{
    Q_OBJECT

private slots:
    void validity_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<PaymentCheck>("expected");
        QTest::addColumn<QString>("printForm");
        using enum PaymentCheck;
        // clang-format off
        QTest::newRow("print form") << "RF18 5390 0754 7034" << Valid << "RF18 5390 0754 7034";
        QTest::newRow("lower case without blanks") << "rf18539007547034" << Valid << "RF18 5390 0754 7034";
        QTest::newRow("check digits 02") << "RF0236" << Valid << "RF02 36";
        QTest::newRow("check digits 98") << "RF9854" << Valid << "RF98 54";
        QTest::newRow("shortest") << "RF25A" << Valid << "RF25 A";
        QTest::newRow("longest") << "RF40123456789012345678901" << Valid << "RF40 1234 5678 9012 3456 7890 1";
        QTest::newRow("four characters") << "RF02" << InvalidLength << "";
        QTest::newRow("twenty-six characters") << "RF401234567890123456789012" << InvalidLength << "";
        QTest::newRow("not RF") << "RX18539007547034" << InvalidFormat << "";
        QTest::newRow("dashes and dots as separators") << "RF18-5390.0754 7034" << Valid << "RF18 5390 0754 7034";
        QTest::newRow("a slash") << "RF18/5390/0754/7034" << InvalidFormat << "";
        QTest::newRow("accented letter") << "RF18539007547034\u00E9" << InvalidFormat << "";
        QTest::newRow("one digit changed") << "RF18539007547035" << InvalidChecksum << "";
        // clang-format on
    }
    void validity()
    {
        QFETCH(QString, typed);
        QFETCH(PaymentCheck, expected);
        QCOMPARE(checkCreditorReference(typed), expected);
        if (expected == PaymentCheck::Valid)
            QTEST(creditorReferencePrintForm(creditorReferenceElectronicForm(typed)), "printForm");
    }

    void make_data()
    {
        QTest::addColumn<QString>("reference");
        QTest::addColumn<QString>("made");
        // clang-format off
        QTest::newRow("invoice number") << "2024 0017" << "RF8520240017";
        QTest::newRow("lower-case letters") << "inv2024a" << "RF06INV2024A";
        QTest::newRow("check digits 02") << "36" << "RF0236";
        QTest::newRow("one letter") << "a" << "RF25A";
        QTest::newRow("twenty-one characters") << "123456789012345678901" << "RF40123456789012345678901";
        QTest::newRow("twenty-two characters") << "1234567890123456789012" << "";
        QTest::newRow("dash ignored") << "2024-0017" << "RF8520240017";
        QTest::newRow("a slash") << "2024/0017" << "";
        QTest::newRow("blanks only") << "   " << "";
        // clang-format on
    }
    void make()
    {
        QFETCH(QString, reference);
        QTEST(makeCreditorReference(reference), "made");
    }
};

QTEST_APPLESS_MAIN(TestCreditorReference)
#include "tst_creditorreference.moc"
