#include "validate/vatnumber.h"

#include "identifiercheck.h"

#include <QTest>

using namespace qor;

class TestVatNumber : public QObject
{
    Q_OBJECT

private slots:
    void checksAndCleans_data()
    {
        QTest::addColumn<QString>("input");
        QTest::addColumn<QString>("landCode");
        QTest::addColumn<QString>("cleaned");
        QTest::addColumn<QString>("display");
        QTest::addColumn<QString>("landAfter");
        // 1234567 modulo 97 is 48, so its check digits are 49; 4031707 needs 01, whatever follows.
        const QString mega = "04031707" + QString(1 << 20, '9') + "01";
        // clang-format off
        QTest::newRow("prefix and points") << "BE 0123.456.749" << "BE" << "0123456749" << "0123.456.749" << "BE";
        QTest::newRow("empty land code means BE") << "0123456749" << "" << "0123456749" << "0123.456.749" << "BE";
        QTest::newRow("no length test") << "040317070101" << "BE" << "040317070101" << "040317.070.101" << "BE";
        QTest::newRow("nine digits read wrongly") << "123456749" << "BE" << "123456749" << "" << "BE";
        QTest::newRow("a megabyte: the first eight digits count") << mega << "" << mega << mega.left(mega.size() - 6) + "." + mega.mid(mega.size() - 6, 3) + "." + mega.right(3) << "BE";
        QTest::newRow("00 is not the 0 shortcut") << "00" << "BE" << "00" << "" << "BE";
        QTest::newRow("blank before 0 is not the shortcut") << " 0" << "BE" << "0" << "" << "BE";
        QTest::newRow("zero shortcut skips the check") << "0" << "BE" << "0" << "0000.000.000" << "BE";
        QTest::newRow("foreign number unchecked") << "NL 8043.64.789.B01" << "NL" << "NL 8043.64.789.B01" << "NL 8043.64.789.B01" << "NL";
        QTest::newRow("land code is case-sensitive") << "0123.456.748" << "be" << "0123.456.748" << "0123.456.748" << "be";
        QTest::newRow("blanks leave even the land code alone") << "   " << "" << "   " << "" << "";
        // clang-format on
    }
    void checksAndCleans()
    {
        QFETCH(QString, input);
        QFETCH(QString, landCode);
        QFETCH(QString, cleaned);
        test::compareCheck(
            input, cleaned, [&](QString &n, QString &d) { return checkVatNumber(n, landCode, d); });
        QTEST(landCode, "landAfter");
    }
};

QTEST_APPLESS_MAIN(TestVatNumber)
#include "tst_vatnumber.moc"
