#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include "tests/common/errornumber.h"
#include "tests/common/everysubtype.h"

#include <QTest>
#include <cmath>
#include <limits>

using qor::test::errorNumber;

using qor::RegionalSettings;

namespace {

RegionalSettings settings(const QString &locale)
{
    return RegionalSettings::fromLocale(locale);
}

const double notANumber = std::numeric_limits<double>::quiet_NaN();

QVariant anObject()
{
    static QObject object;
    return QVariant::fromValue(&object);
}

} // namespace

class TestConversion : public QObject
{
    Q_OBJECT

private slots:
    // CStr
    void textForm_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("nl");
        QTest::addColumn<QString>("us");

        // clang-format off
        QTest::newRow("Empty") << QVariant() << "" << "";
        QTest::newRow("True") << QVariant(true) << "True" << "True";
        QTest::newRow("Integer") << qor::integerVariant(-32768) << "-32768" << "-32768";
        QTest::newRow("64-bit whole number") << QVariant(qlonglong(-9223372036854775807LL)) << "-9223372036854775807" << "-9223372036854775807";
        QTest::newRow("Double shows 15 digits") << QVariant(0.1 + 0.2) << "0,3" << "0.3";
        QTest::newRow("1E15 in exponent form") << QVariant(1e15) << "1E+15" << "1E+15";
        QTest::newRow("15 digits still plain") << QVariant(999999999999999.0) << "999999999999999" << "999999999999999";
        QTest::newRow("small number in exponent form") << QVariant(0.00001) << "1E-05" << "1E-05";
        QTest::newRow("0.0001 stays plain") << QVariant(0.0001) << "0,0001" << "0.0001";
        QTest::newRow("negative zero") << QVariant(-0.0) << "0" << "0";
        QTest::newRow("Single shows 7 digits") << QVariant(0.1f) << "0,1" << "0.1";
        QTest::newRow("NaN does not crash") << QVariant(notANumber) << "1.#QNAN" << "1.#QNAN";
        QTest::newRow("date at midnight") << QVariant(QDate(2024, 3, 5)) << "5/03/2024" << "3/5/2024";
        QTest::newRow("date and time") << QVariant(QDateTime(QDate(2024, 3, 5), QTime(14, 5, 9))) << "5/03/2024 14:05:09" << "3/5/2024 2:05:09 PM";
        QTest::newRow("time alone") << QVariant(QTime(8, 30)) << "08:30:00" << "8:30:00 AM";
        QTest::newRow("text unchanged") << QVariant(QStringLiteral(" 12,5 ")) << " 12,5 " << " 12,5 ";
        QTest::newRow("bytes read as windows-1252") << QVariant(QByteArray("\x80")) << "\u20AC" << "\u20AC";
        // clang-format on
    }
    void textForm()
    {
        QFETCH(QVariant, value);
        QTEST(qor::toText(value, settings("nl_BE")), "nl");
        QTEST(qor::toText(value, settings("en_US")), "us");
        if (value.typeId() == QMetaType::Double && std::isfinite(value.toDouble()))
            QCOMPARE(qor::numberText(value.toDouble(), settings("nl_BE")),
                qor::toText(value, settings("nl_BE")));
    }

    // CDbl, with the Variant subtypes a host can pass
    void toDouble_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<double>("expected");

        // clang-format off
        QTest::newRow("Empty is 0") << "nl_BE" << QVariant() << 0.0;
        QTest::newRow("True is -1") << "nl_BE" << QVariant(true) << -1.0;
        QTest::newRow("Single") << "nl_BE" << QVariant(1.5f) << 1.5;
        QTest::newRow("date is its serial") << "nl_BE" << QVariant(QDate(2000, 1, 1)) << 36526.0;
        QTest::newRow("nl: comma decimal") << "nl_BE" << QVariant("12,5") << 12.5;
        QTest::newRow("nl: point groups") << "nl_BE" << QVariant("12.5") << 125.0;
        QTest::newRow("nl: grouped amount") << "nl_BE" << QVariant("-1.234,56") << -1234.56;
        QTest::newRow("us: comma groups") << "en_US" << QVariant("1,234.5") << 1234.5;
        QTest::newRow("fr: blank groups") << "fr_BE" << QVariant("1 234,5") << 1234.5;
        QTest::newRow("blanks around, plus sign") << "nl_BE" << QVariant("  +7  ") << 7.0;
        QTest::newRow("decimals only") << "nl_BE" << QVariant(",5") << 0.5;
        QTest::newRow("exponent") << "en_US" << QVariant("1.5E3") << 1500.0;
        QTest::newRow("hexadecimal Integer") << "nl_BE" << QVariant("&HFFFF") << -1.0;
        QTest::newRow("hexadecimal Long") << "nl_BE" << QVariant("&H10000") << 65536.0;
        QTest::newRow("octal") << "nl_BE" << QVariant("&O17") << 15.0;
        QTest::newRow("tiny value underflows to 0") << "en_US" << QVariant("1E-400") << 0.0;
        // clang-format on
    }
    void toDouble()
    {
        QFETCH(QString, locale);
        QFETCH(QVariant, value);
        QTEST(qor::toDouble(value, settings(locale)), "expected");
    }

    // The run-time error of each conversion; CDbl stands for CLng too, and
    // IsNumeric is False wherever they fail.
    void errors_data()
    {
        QTest::addColumn<QString>("function");
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("error");
        // clang-format off
        QTest::newRow("CDbl: Null") << "CDbl" << "nl_BE" << qor::nullVariant() << 94;
        QTest::newRow("CDbl: empty text") << "CDbl" << "nl_BE" << QVariant("") << 13;
        QTest::newRow("CDbl: number followed by text") << "CDbl" << "nl_BE" << QVariant("12 EUR") << 13;
        QTest::newRow("CDbl us: Belgian notation") << "CDbl" << "en_US" << QVariant("1.234,5") << 13;
        QTest::newRow("CDbl nl: two decimal separators") << "CDbl" << "nl_BE" << QVariant("1,2,3") << 13;
        QTest::newRow("CDbl: sign alone") << "CDbl" << "nl_BE" << QVariant("-") << 13;
        QTest::newRow("CDbl: exponent without digits") << "CDbl" << "nl_BE" << QVariant("1E") << 13;
        QTest::newRow("CDbl: date text") << "CDbl" << "nl_BE" << QVariant("31/12/2000") << 13;
        QTest::newRow("CDbl: beyond the Double range") << "CDbl" << "en_US" << QVariant("1E400") << 6;
        QTest::newRow("CDbl: array") << "CDbl" << "nl_BE" << QVariant(QVariantList { 1, 2 }) << 13;
        QTest::newRow("CDbl: null date") << "CDbl" << "nl_BE" << QVariant(QDate()) << 13;
        QTest::newRow("CDbl: date before year 100") << "CDbl" << "nl_BE" << QVariant(QDate(50, 1, 1)) << 6;
        QTest::newRow("CStr: Null") << "CStr" << "nl_BE" << qor::nullVariant() << 94;
        QTest::newRow("CStr: array") << "CStr" << "nl_BE" << QVariant(QVariantList { 1 }) << 13;
        QTest::newRow("CStr: object") << "CStr" << "nl_BE" << anObject() << 13;
        QTest::newRow("CStr: null date") << "CStr" << "nl_BE" << QVariant(QDate()) << 13;
        QTest::newRow("CBool: text that is no flag") << "CBool" << "nl_BE" << QVariant("ja") << 13;
        QTest::newRow("CBool: Null") << "CBool" << "nl_BE" << qor::nullVariant() << 94;
        QTest::newRow("CDate: text that is no date") << "CDate" << "nl_BE" << QVariant("geen datum") << 13;
        QTest::newRow("CDate: Null") << "CDate" << "nl_BE" << qor::nullVariant() << 94;
        QTest::newRow("CDate: serial beyond the dates") << "CDate" << "nl_BE" << QVariant(1e300) << 6;
        QTest::newRow("CDate: object") << "CDate" << "nl_BE" << anObject() << 13;
        QTest::newRow("CDate: after the year 9999") << "CDate" << "nl_BE" << QVariant(QDate(10000, 1, 1)) << 6;
        // clang-format on
    }
    void errors()
    {
        QFETCH(QString, function);
        QFETCH(QString, locale);
        QFETCH(QVariant, value);
        const RegionalSettings rs = settings(locale);
        const QMap<QString, std::function<void()>> conversions = {
            { "CDbl", [&] { qor::toDouble(value, rs); } },
            { "CStr", [&] { qor::toText(value, rs); } },
            { "CBool", [&] { qor::toBoolean(value, rs); } },
            { "CDate", [&] { qor::toDate(value, rs); } },
        };
        QTEST(errorNumber(conversions.value(function)), "error");
        if (function == QLatin1String("CDbl")) {
            QTEST(errorNumber([&] { qor::toLong(value, rs); }), "error");
            QVERIFY(!qor::isNumeric(value, rs));
        }
    }

    // CLng / CInt
    void bankersRounding_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("expected");

        // clang-format off
        QTest::newRow("2.5 to even 2") << QVariant(2.5) << 2;
        QTest::newRow("3.5 to even 4") << QVariant(3.5) << 4;
        QTest::newRow("-2.5 to even -2") << QVariant(-2.5) << -2;
        QTest::newRow("2.5000001 up") << QVariant(2.5000001) << 3;
        QTest::newRow("-0.4 to 0") << QVariant(-0.4) << 0;
        QTest::newRow("text with comma decimal") << QVariant("6,5") << 6;
        QTest::newRow("True") << QVariant(true) << -1;
        QTest::newRow("Empty") << QVariant() << 0;
        // clang-format on
    }
    void bankersRounding()
    {
        QFETCH(QVariant, value);
        QFETCH(int, expected);
        QCOMPARE(qor::toLong(value, settings("nl_BE")), expected);
        QCOMPARE(int(qor::toInteger(value, settings("nl_BE"))), expected);
    }

    void rangeLimits_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<int>("longError");
        QTest::addColumn<int>("integerError");

        // clang-format off
        QTest::newRow("CLng(2147483647.5) rounds past the top") << 2147483647.5 << 6 << 6;
        QTest::newRow("-2147483648.5 rounds to even, in range") << -2147483648.5 << 0 << 6;
        QTest::newRow("CInt(32767.5) rounds past the top") << 32767.5 << 0 << 6;
        QTest::newRow("-32768.5 rounds to even, in range") << -32768.5 << 0 << 0;
        QTest::newRow("32767.4 fits both") << 32767.4 << 0 << 0;
        QTest::newRow("1E+300") << 1e300 << 6 << 6;
        QTest::newRow("NaN") << notANumber << 6 << 6;
        QTest::newRow("infinity") << -std::numeric_limits<double>::infinity() << 6 << 6;
        // clang-format on
    }
    void rangeLimits()
    {
        QFETCH(double, value);
        QTEST(errorNumber([&] { qor::roundToLong(value); }), "longError");
        QTEST(errorNumber([&] { qor::roundToInteger(value); }), "integerError");
        QTEST(errorNumber([&] { qor::toLong(value, settings("en_US")); }), "longError");
    }

    // CBool
    void toBoolean_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("expected");
        // clang-format off
        QTest::newRow("Empty") << QVariant() << false;
        QTest::newRow("non-zero number") << QVariant(-0.5) << true;
        QTest::newRow("zero") << QVariant(0) << false;
        QTest::newRow("text True in any case") << QVariant(" tRUE ") << true;
        QTest::newRow("text False") << QVariant("False") << false;
        QTest::newRow("numeric text") << QVariant("0,0") << false;
        // clang-format on
    }
    void toBoolean()
    {
        QFETCH(QVariant, value);
        QTEST(qor::toBoolean(value, settings("nl_BE")), "expected");
    }

    // IsNumeric beyond the cases that CDbl refuses
    void isNumeric_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<bool>("expected");
        // clang-format off
        QTest::newRow("Empty") << "nl_BE" << QVariant() << true;
        QTest::newRow("Boolean") << "nl_BE" << QVariant(false) << true;
        QTest::newRow("nl: grouped amount") << "nl_BE" << QVariant(" 1.234,5 ") << true;
        QTest::newRow("us: grouped amount") << "en_US" << QVariant("1,234.5") << true;
        QTest::newRow("hexadecimal") << "en_US" << QVariant("&H1F") << true;
        QTest::newRow("date") << "nl_BE" << QVariant(QDate(2000, 1, 1)) << false;
        QTest::newRow("blank text") << "nl_BE" << QVariant("   ") << false;
        // clang-format on
    }
    void isNumeric()
    {
        QFETCH(QString, locale);
        QFETCH(QVariant, value);
        QTEST(qor::isNumeric(value, settings(locale)), "expected");
    }

    // CDate / IsDate
    void toDate_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QDateTime>("expected");
        const auto at = [](QDate d, QTime t = QTime(0, 0)) { return QDateTime(d, t, Qt::UTC); };
        // clang-format off
        QTest::newRow("Empty is the zero date") << QVariant() << at(QDate(1899, 12, 30));
        QTest::newRow("serial number") << QVariant(36526.5) << at(QDate(2000, 1, 1), QTime(12, 0));
        QTest::newRow("date text") << QVariant("31/12/2000") << at(QDate(2000, 12, 31));
        QTest::newRow("numeric text is a serial") << QVariant("36526") << at(QDate(2000, 1, 1));
        QTest::newRow("point-separated figures are no date") << QVariant("8.30") << QDateTime();
        QTest::newRow("QDate") << QVariant(QDate(2004, 2, 29)) << at(QDate(2004, 2, 29));
        QTest::newRow("IsDate: a number is no date") << QVariant(36526) << QDateTime();
        QTest::newRow("IsDate: Null is no date") << qor::nullVariant() << QDateTime();
        // clang-format on
    }
    void toDate()
    {
        QFETCH(QVariant, value);
        QFETCH(QDateTime, expected);
        const RegionalSettings nl = settings("nl_BE");
        if (!expected.isValid()) {
            QVERIFY(!qor::isDate(value, nl));
            return;
        }
        QCOMPARE(qor::toDate(value, nl), expected);
    }

    // Val
    void val_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("expected");
        // clang-format off
        QTest::newRow("blanks anywhere") << " 1 2 3 " << 123.0;
        QTest::newRow("tabs and line feeds skipped") << "\t4\n5" << 45.0;
        QTest::newRow("stops at a letter") << "12abc34" << 12.0;
        QTest::newRow("point is the only decimal") << "12.5" << 12.5;
        QTest::newRow("comma stops") << "12,5" << 12.0;
        QTest::newRow("second point stops") << "1.2.3" << 1.2;
        QTest::newRow("sign") << " - 7.5" << -7.5;
        QTest::newRow("exponent") << "1.5e3x" << 1500.0;
        QTest::newRow("D exponent") << "2D2" << 200.0;
        QTest::newRow("exponent without digits is ignored") << "7E" << 7.0;
        QTest::newRow("not a number") << "abc" << 0.0;
        QTest::newRow("&HFFFF is the Integer -1") << "&HFFFF" << -1.0;
        QTest::newRow("&HFFFF& is a Long") << "&HFFFF&" << 65535.0;
        QTest::newRow("&HFFFFFFFF is the Long -1") << "&HFFFFFFFF" << -1.0;
        QTest::newRow("octal") << "&O777" << 511.0;
        QTest::newRow("ampersand alone") << "&" << 0.0;
        QTest::newRow("beyond Double stays finite") << "1E999" << std::numeric_limits<double>::max();
        QTest::newRow("carriage return stops") << "1\r2" << 1.0;
        // clang-format on
    }
    void val()
    {
        QFETCH(QString, text);
        QTEST(qor::val(text), "expected");
    }

    // Int, Fix, Mod, \.
    void wholeParts_data()
    {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("intPart");
        QTest::addColumn<double>("fixPart");
        // clang-format off
        QTest::newRow("positive") << 2.7 << 2.0 << 2.0;
        QTest::newRow("negative") << -2.3 << -3.0 << -2.0;
        QTest::newRow("whole") << -4.0 << -4.0 << -4.0;
        // clang-format on
    }
    void wholeParts()
    {
        QFETCH(double, value);
        QTEST(qor::vbInt(value), "intPart");
        QTEST(qor::vbFix(value), "fixPart");
    }

    void modAndIntegerDivision_data()
    {
        QTest::addColumn<double>("dividend");
        QTest::addColumn<double>("divisor");
        QTest::addColumn<int>("mod");
        QTest::addColumn<int>("quotient");
        // clang-format off
        QTest::newRow("grid rows: 1710 Mod 225") << 1710.0 << 225.0 << 135 << 7;
        QTest::newRow("sign follows the dividend") << -7.0 << 3.0 << -1 << -2;
        QTest::newRow("negative divisor") << 7.0 << -3.0 << 1 << -2;
        QTest::newRow("operands rounded first, half to even") << 10.5 << 2.5 << 0 << 5;
        QTest::newRow("smallest Long by -1") << -2147483648.0 << -1.0 << 0 << 0;
        // clang-format on
    }
    void modAndIntegerDivision()
    {
        QFETCH(double, dividend);
        QFETCH(double, divisor);
        QTEST(qor::vbMod(dividend, divisor), "mod");
        if (dividend != -2147483648.0)
            QTEST(qor::vbIntDiv(dividend, divisor), "quotient");
    }

    void modAndIntegerDivisionErrors()
    {
        QCOMPARE(errorNumber([] { qor::vbMod(5, 0.4); }), 11);
        QCOMPARE(errorNumber([] { qor::vbIntDiv(5, 0); }), 11);
        QCOMPARE(errorNumber([] { qor::vbMod(3e9, 7); }), 6);
        QCOMPARE(errorNumber([] { qor::vbIntDiv(-2147483648.0, -1); }), 6);
    }

    // Every function gives a result or a RuntimeError for every subtype; any
    // other exception (or a crash) is a fault.
    void everySubtypeIsHandled_data() { qor::test::addEverySubtypeRows(); }
    void everySubtypeIsHandled()
    {
        QFETCH(QVariant, value);
        const RegionalSettings nl = settings("nl_BE");
        const auto handled = [](auto f) {
            try {
                f();
            } catch (const qor::RuntimeError &) {
            } catch (...) {
                return false;
            }
            return true;
        };
        QVERIFY(handled([&] { qor::toText(value, nl); }));
        QVERIFY(handled([&] { qor::toDouble(value, nl); }));
        QVERIFY(handled([&] { qor::toLong(value, nl); }));
        QVERIFY(handled([&] { qor::toInteger(value, nl); }));
        QVERIFY(handled([&] { qor::toBoolean(value, nl); }));
        QVERIFY(handled([&] { qor::toDate(value, nl); }));
        QVERIFY(handled([&] { qor::isNumeric(value, nl); }));
        QVERIFY(handled([&] { qor::isDate(value, nl); }));
    }

    void megabyteTextsEndAtOnce()
    {
        const RegionalSettings nl = settings("nl_BE");
        const QString digits(1 << 20, QLatin1Char('9'));
        QCOMPARE(qor::val(digits), std::numeric_limits<double>::max());
        QCOMPARE(errorNumber([&] { qor::toDouble(QVariant(digits), nl); }), 6);
        QCOMPARE(qor::val(QStringLiteral("0,") + digits), 0.0);
        QCOMPARE(qor::toDouble(QVariant(QStringLiteral("0,") + digits), nl), 1.0);
        QCOMPARE(
            qor::toDouble(QVariant(QStringLiteral("0,") + QString(1 << 20, '0') + '5'), nl), 0.0);
        QVERIFY(!qor::isNumeric(QVariant(digits + QLatin1Char('x')), nl));
        QVERIFY(!qor::isDate(QVariant(digits), nl));
    }
};

QTEST_APPLESS_MAIN(TestConversion)
#include "tst_conversion.moc"
