#include "payments/bic.h"

#include <QTest>

using namespace qor;

Q_DECLARE_METATYPE(qor::PaymentCheck)

class TestBic : public QObject
{
    Q_OBJECT

private slots:
    void validity_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<PaymentCheck>("expected");
        QTest::addColumn<QString>("electronic");
        using enum PaymentCheck;
        // clang-format off
        QTest::newRow("eight characters") << "GKCCBEBB" << Valid << "GKCCBEBB";
        QTest::newRow("lower case, blanks and dashes") << "gkcc be-bb" << Valid << "GKCCBEBB";
        QTest::newRow("Kosovo as banks write it") << "RBKOXKPR" << Valid << "RBKOXKPR";
        QTest::newRow("a dot is no separator") << "GKCCBE.BB" << InvalidLength << "";
        QTest::newRow("country ISO 3166 does not assign") << "GKCCQQBB" << InvalidComponent << "";
        QTest::newRow("first country code") << "ABCDADBB" << Valid << "ABCDADBB";
        QTest::newRow("last country code") << "ABCDZWBB" << Valid << "ABCDZWBB";
        // clang-format on
    }
    void validity()
    {
        QFETCH(QString, typed);
        QFETCH(PaymentCheck, expected);
        QCOMPARE(checkBic(typed), expected);
        if (expected == PaymentCheck::Valid)
            QTEST(bicElectronicForm(typed), "electronic");
    }
};

QTEST_APPLESS_MAIN(TestBic)
#include "tst_bic.moc"
