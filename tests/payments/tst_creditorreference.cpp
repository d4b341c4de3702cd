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
        QTest::newRow("dashes and dots as separators") << "RF18-5390.0754 7034" << Valid << "RF18 5390 0754 7034";
        QTest::newRow("a slash") << "RF18/5390/0754/7034" << InvalidFormat << "";
        QTest::newRow("accented letter") << "RF18539007547034\u00E9" << InvalidFormat << "";
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
