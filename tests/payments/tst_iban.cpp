#include "payments/iban.h"

#include <QTest>

using namespace qor;

Q_DECLARE_METATYPE(qor::PaymentCheck)

class TestIban : public QObject
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
        QTest::newRow("Belgian IBAN in print form") << "BE71 0961 2345 6769" << Valid << "BE71 0961 2345 6769";
        QTest::newRow("lower case, dashes and dots") << "be71-0961.2345 6769" << Valid << "BE71 0961 2345 6769";
        QTest::newRow("no-break space between groups") << "BE71\u00A00961 2345 6769" << Valid << "BE71 0961 2345 6769";
        QTest::newRow("a slash is no separator") << "BE71/0961/2345/6769" << InvalidFormat << "";
        QTest::newRow("a tab is no blank") << "BE71\t096123456769" << InvalidFormat << "";
        QTest::newRow("accented letter") << "BE71096123456769\u00E9" << InvalidFormat << "";
        QTest::newRow("one digit changed") << "BE71096123456768" << InvalidChecksum << "";
        QTest::newRow("country alone") << "BE" << InvalidChecksum << "";
        QTest::newRow("one digit passing the check digits") << "1" << InvalidComponent << "";
        QTest::newRow("country outside the registry") << "QQ5412345" << InvalidComponent << "";
        QTest::newRow("letter where a digit belongs") << "BE79A96123456769" << InvalidFormat << "";
        QTest::newRow("digit where a letter belongs") << "GB93WES112345698765432" << InvalidFormat << "";
        // clang-format on
    }
    void validity()
    {
        QFETCH(QString, typed);
        QFETCH(PaymentCheck, expected);
        QCOMPARE(checkIban(typed), expected);
        const QString electronic = ibanElectronicForm(typed);
        if (expected == PaymentCheck::Valid)
            QTEST(ibanPrintForm(electronic), "printForm");
    }

    void belgian_data()
    {
        QTest::addColumn<QString>("iban");
        QTest::addColumn<PaymentCheck>("expected");
        QTest::addColumn<QString>("account");
        using enum PaymentCheck;
        // clang-format off
        QTest::newRow("Belgian account") << "BE71 0961 2345 6769" << Valid << "096-1234567-69";
        QTest::newRow("BBAN remainder 0 written 97") << "BE54000000009797" << Valid << "000-0000097-97";
        QTest::newRow("BBAN remainder 0 written 00") << "BE54000000000000" << InvalidChecksum << "";
        QTest::newRow("IBAN right, BBAN check wrong") << "BE82096123456770" << InvalidChecksum << "";
        QTest::newRow("another country") << "DE89370400440532013000" << InvalidComponent << "";
        // clang-format on
    }
    void belgian()
    {
        QFETCH(QString, iban);
        QTEST(belgianIbanValidity(ibanElectronicForm(iban)), "expected");
        QTEST(belgianAccountFromIban(iban), "account");
    }

    void fromAccount_data()
    {
        QTest::addColumn<QString>("account");
        QTest::addColumn<QString>("iban");
        // clang-format off
        QTest::newRow("old notation") << "096-1234567-69" << "BE71096123456769";
        QTest::newRow("blanks, dots and slashes") << "096 1234567.69/" << "BE71096123456769";
        QTest::newRow("IBAN check digits 02") << "000000586040" << "BE02000000586040";
        QTest::newRow("check digits wrong") << "096-1234567-68" << "";
        QTest::newRow("eleven digits") << "09612345676" << "";
        QTest::newRow("thirteen digits that add up the old way") << "0961234567069" << "";
        QTest::newRow("a letter") << "096-1234567-6A" << "";
        // clang-format on
    }
    void fromAccount()
    {
        QFETCH(QString, account);
        QTEST(ibanFromBelgianAccount(account), "iban");
    }
};

QTEST_APPLESS_MAIN(TestIban)
#include "tst_iban.moc"
