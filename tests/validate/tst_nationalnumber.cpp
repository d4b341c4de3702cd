#include "validate/nationalnumber.h"

#include "identifiercheck.h"

#include <QTest>

using namespace qor;

class TestNationalNumber : public QObject
{
    Q_OBJECT

private slots:
    void checksAndCleans_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("landCode");
        QTest::addColumn<QString>("cleaned");
        QTest::addColumn<QString>("display");
        // 850730033 modulo 97 is 69: check 28 before 2000, 57 from 2000 on.
        const QString mega = "850730033" + QString(1 << 20, '7') + "28";
        // clang-format off
        QTest::newRow("born before 2000, dots and dash") << "85.07.30-033.28" << "BE" << "85073003328" << "850730.033.28";
        QTest::newRow("no land is Belgium") << "85.07.30-033.29" << "" << "85073003329" << "";
        QTest::newRow("rule of 2000 also accepted for 1985") << "85073003357" << "BE" << "85073003357" << "850730.033.57";
        QTest::newRow("length not enforced") << "97" << "BE" << "97" << "..97";
        QTest::newRow("a megabyte of digits") << mega << "BE" << mega << mega.left(mega.size() - 5) + "." + mega.mid(mega.size() - 5, 3) + "." + mega.right(2);
        QTest::newRow("another land: a Dutch number") << "1234.56.789" << "NL" << "1234.56.789" << "1234.56.789";
        QTest::newRow("lower-case be is another land") << "85.07.30-033.29" << "be" << "85.07.30-033.29" << "85.07.30-033.29";
        QTest::newRow("blanks are not checked") << "  " << "BE" << "  " << "";
        // clang-format on
    }
    void checksAndCleans()
    {
        QFETCH(QString, input);
        QFETCH(QString, landCode);
        QFETCH(QString, cleaned);
        test::compareCheck(input, cleaned,
            [&](QString &n, QString &d) { return checkNationalNumber(n, landCode, d); });
    }
};

QTEST_APPLESS_MAIN(TestNationalNumber)
#include "tst_nationalnumber.moc"
