#include "einvoice/decimal.h"

#include <QTest>

using qor::einvoice::Decimal;

class TestDecimal : public QObject
{
    Q_OBJECT

private slots:
    void parse_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("value"); // empty: refused
        // clang-format off
        QTest::newRow("decimals kept as written") << "12.50" << "12.50";
        QTest::newRow("sign and blanks") << " -0.335 " << "-0.335";
        QTest::newRow("plus sign") << "+7" << "7";
        QTest::newRow("eighteen digits fit") << "999999999999999999" << "999999999999999999";
        QTest::newRow("leading zeros are not significant") << "0000000000000000000001.5" << "1.5";
        QTest::newRow("nineteen digits refused") << "1000000000000000000" << "";
        QTest::newRow("exponent refused") << "1.5E3" << "";
        QTest::newRow("thirteen decimals refused") << "0.0000000000001" << "";
        QTest::newRow("point without digits") << "5." << "";
        QTest::newRow("sign alone") << "-" << "";
        QTest::newRow("two points") << "1.2.3" << "";
        // clang-format on
    }
    void parse()
    {
        QFETCH(QString, text);
        QFETCH(QString, value);
        const Decimal parsed = Decimal::parse(text);
        QCOMPARE(parsed.isValid(), !value.isEmpty());
        QCOMPARE(Decimal::parseError(text).isEmpty(), !value.isEmpty());
        if (!value.isEmpty())
            QCOMPARE(parsed.toString(), value);
    }

    void arithmetic_data()
    {
        QTest::addColumn<QString>("result");
        QTest::addColumn<QString>("expected");
        auto d = [](const char *text) { return Decimal::parse(QString::fromLatin1(text)); };
        const qint64 max = std::numeric_limits<qint64>::max();
        // clang-format off
        QTest::newRow("half rounds away from zero") << d("1.005").rounded(2).toString() << "1.01";
        QTest::newRow("negative half rounds away from zero") << d("-1.005").rounded(2).toString() << "-1.01";
        QTest::newRow("below half rounds down") << d("0.2149").rounded(2).toString() << "0.21";
        QTest::newRow("rounding to more decimals pads") << d("3").rounded(2).toString() << "3.00";
        QTest::newRow("sum aligns the scales") << (d("0.1") + d("0.25")).toString() << "0.35";
        QTest::newRow("product is exact") << (d("3") * d("0.335")).toString() << "1.005";
        QTest::newRow("division rounds the quotient") << d("2").dividedBy(d("3"), 2).toString() << "0.67";
        QTest::newRow("division by a negative") << d("1").dividedBy(d("-8"), 2).toString() << "-0.13";
        QTest::newRow("division by zero is invalid") << d("1").dividedBy(d("0"), 2).toString() << "NaN";
        QTest::newRow("overflowing sum is invalid") << (Decimal(max, 0) + d("1")).toString() << "NaN";
        QTest::newRow("overflowing product is invalid") << (Decimal(max, 0) * d("2")).toString() << "NaN";
        QTest::newRow("invalid spreads") << (Decimal::invalid() - d("1")).toString() << "NaN";
        QTest::newRow("smallest value prints") << Decimal(std::numeric_limits<qint64>::min(), 2).toString() << "-92233720368547758.08";
        QTest::newRow("small fraction gets its zeros") << Decimal(-5, 3).toString() << "-0.005";
        QTest::newRow("normalized drops trailing zeros") << d("21.000").normalized().toString() << "21";
        QTest::newRow("equal at another scale") << QString::number(d("1.5") == d("1.50")) << "1";
        QTest::newRow("negative below zero") << QString::number(d("-0.01") < d("0")) << "1";
        QTest::newRow("invalid differs from zero") << QString::number(Decimal::invalid() != d("0")) << "1";
        // clang-format on
    }
    void arithmetic()
    {
        QFETCH(QString, result);
        QTEST(result, "expected");
    }
};

QTEST_APPLESS_MAIN(TestDecimal)
#include "tst_decimal.moc"
