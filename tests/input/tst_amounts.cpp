#include "input/amounts.h"
#include "lib/clsqorgenlib.h"
#include "runtime/variant.h"

#include "tests/common/recordingmachine.h"

#include <QTest>

using namespace qor;

class TestAmounts : public QObject
{
    Q_OBJECT

private slots:
    void cGetal_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QVariant>("input");
        QTest::addColumn<QString>("type");
        QTest::addColumn<double>("expected");
        // clang-format off
        QTest::newRow("null") << "nl_BE" << nullVariant() << "Integer" << 0.0;
        QTest::newRow("word") << "nl_BE" << QVariant("abc") << "Integer" << 0.0;
        QTest::newRow("comma decimals with grouping") << "nl_BE" << QVariant("1.234,5") << "Double" << 1234.5;
        QTest::newRow("point decimals") << "en_US" << QVariant("12.5") << "Double" << 12.5;
        QTest::newRow("point decimals read by Val stop at the comma") << "en_US" << QVariant("1,234.5") << "Double" << 1.0;
        QTest::newRow("point system integer") << "en_US" << QVariant::fromValue<short>(7) << "Double" << 7.0;
        // clang-format on
    }
    void cGetal()
    {
        QFETCH(QString, locale);
        QFETCH(QVariant, input);
        const QVariant result = qor::cGetal(input, RegionalSettings::fromLocale(locale));
        QTEST(varTypeName(result), "type");
        QTEST(result.toDouble(), "expected");
    }

    void setEuro_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<float>("value");
        QTest::addColumn<int>("symbol");
        QTest::addColumn<QString>("expected");
        // clang-format off
        QTest::newRow("negative with EUR") << "nl_BE" << -1234.5f << 1 << "- 1.234,50 EUR";
        QTest::newRow("euro sign") << "nl_BE" << 1234.5f << 2 << QStringLiteral("1.234,50 \u20AC");
        QTest::newRow("no symbol") << "nl_BE" << 0.0f << 0 << "0,00";
        QTest::newRow("point decimals") << "en_US" << 1234.25f << 1 << "1,234.25 EUR";
        // A Single's text form keeps seven digits, and Val reads that text.
        QTest::newRow("single text form on a point system") << "en_US" << 1234567.25f << 1 << "1,234,567.00 EUR";
        QTest::newRow("comma system converts the value itself") << "nl_BE" << 1234567.25f << 0 << "1.234.567,25";
        // clang-format on
    }
    void setEuro()
    {
        QFETCH(QString, locale);
        QFETCH(float, value);
        QFETCH(int, symbol);
        test::installRecordingPlatform(locale);
        QTEST(clsqorGenLib().SetEuro(value, qorGenLib::OstSymbolType(symbol)), "expected");
    }
};

QTEST_GUILESS_MAIN(TestAmounts)
#include "tst_amounts.moc"
