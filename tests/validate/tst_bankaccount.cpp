#include "validate/bankaccount.h"

#include "identifiercheck.h"

#include <QTest>

using namespace qor;

class TestBankAccount : public QObject
{
    Q_OBJECT

private slots:
    void checksAndCleans_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("cleaned");
        QTest::addColumn<QString>("display");
        // 1234567890 modulo 97 is 2; 5390075470 modulo 97 is 34; ten zeros give 97.
        const QString mega(1 << 20, '0');
        // clang-format off
        QTest::newRow("dashes") << "123-4567890-02" << "123456789002" << "123-4567890-02";
        QTest::newRow("remainder 0 counts as 97") << "000-0000000-97" << "000000000097" << "000-0000000-97";
        QTest::newRow("thirteen digits put the surplus in front") << "1234567890102" << "1234567890102" << "1234-5678901-02";
        QTest::newRow("a megabyte of digits") << mega + "97" << mega + "97" << QString((1 << 20) - 7, '0') + "-0000000-97";
        QTest::newRow("wrong check digits") << "123-4567890-12" << "123456789012" << "";
        QTest::newRow("check digits 00 never pass") << "000-0000000-00" << "000000000000" << "";
        QTest::newRow("letters only compare 0 with 97") << "abcdef" << "" << "";
        QTest::newRow("tab is not blank") << "\t" << "" << "";
        QTest::newRow("blanks are not checked") << "     " << "     " << "";
        // clang-format on
    }
    void checksAndCleans()
    {
        QFETCH(QString, input);
        QFETCH(QString, cleaned);
        test::compareCheck(
            input, cleaned, [](QString &n, QString &d) { return checkBankAccount(n, d); });
    }
};

QTEST_APPLESS_MAIN(TestBankAccount)
#include "tst_bankaccount.moc"
