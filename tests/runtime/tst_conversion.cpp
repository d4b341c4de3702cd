#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include "tests/common/errornumber.h"
#include "tests/common/everysubtype.h"

#include <QHash>
#include <QTest>
#include <limits>

using qor::test::errorNumber;

using qor::RegionalSettings;

namespace {

RegionalSettings settings(const QString &locale)
{
    return RegionalSettings::fromLocale(locale);
}

const double notANumber = std::numeric_limits<double>::quiet_NaN();

// A conversion by its classic name; Mod and integer division take their operands as a list.
QVariant convert(const QString &function, const QVariant &value, const RegionalSettings &rs)
{
    const QVariantList pair = value.toList();
    const QHash<QString, std::function<QVariant()>> functions {
        { "CStr", [&] { return qor::toText(value, rs); } },
        { "CDbl", [&] { return qor::toDouble(value, rs); } },
        { "CLng", [&] { return qor::toLong(value, rs); } },
        { "CInt", [&] { return int(qor::toInteger(value, rs)); } },
        { "CBool", [&] { return qor::toBoolean(value, rs); } },
        { "CDate", [&] { return qor::toDate(value, rs); } },
        { "IsDate", [&] { return qor::isDate(value, rs); } },
        { "IsNumeric", [&] { return qor::isNumeric(value, rs); } },
        { "Val", [&] { return qor::val(value.toString()); } },
        { "Int", [&] { return qor::vbInt(value.toDouble()); } },
        { "Fix", [&] { return qor::vbFix(value.toDouble()); } },
        { "RoundLong", [&] { return qor::roundToLong(value.toDouble()); } },
        { "RoundInt", [&] { return int(qor::roundToInteger(value.toDouble())); } },
        { "Mod", [&] { return qor::vbMod(pair.value(0).toDouble(), pair.value(1).toDouble()); } },
        { "\\", [&] { return qor::vbIntDiv(pair.value(0).toDouble(), pair.value(1).toDouble()); } },
    };
    if (!functions.contains(function))
        qFatal("no conversion %s", qPrintable(function));
    return functions.value(function)();
}

} // namespace

class TestConversion : public QObject
{
    Q_OBJECT

private slots:
    void textForm_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("nl");
        QTest::addColumn<QString>("us");

        // clang-format off
        QTest::newRow("Empty") << QVariant() << "" << "";
        QTest::newRow("True") << QVariant(true) << "True" << "True";
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
        QTest::newRow("bytes read as windows-1252") << QVariant(QByteArray("\x80")) << "\u20AC" << "\u20AC";
        // clang-format on
    }
    void textForm()
    {
        QFETCH(QVariant, value);
        QTEST(qor::toText(value, settings("nl_BE")), "nl");
        QTEST(qor::toText(value, settings("en_US")), "us");
    }

    // Each conversion by its classic name, with the Variant subtypes a host can pass:
    // its result, or the run-time error it raises (the "expected" column invalid).
    void conversions_data()
    {
        QTest::addColumn<QString>("functions"); // comma-separated, each with the same outcome
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QVariant>("expected");
        QTest::addColumn<int>("error");
        const auto at = [](QDate d, QTime t = QTime(0, 0)) { return QDateTime(d, t, Qt::UTC); };
        static QObject object;
        // clang-format off
        QTest::newRow("CDbl: Empty is 0") << "CDbl" << "nl_BE" << QVariant() << QVariant(0.0) << 0;
        QTest::newRow("CDbl: True is -1") << "CDbl" << "nl_BE" << QVariant(true) << QVariant(-1.0) << 0;
        QTest::newRow("CDbl: date is its serial") << "CDbl" << "nl_BE" << QVariant(QDate(2000, 1, 1)) << QVariant(36526.0) << 0;
        QTest::newRow("CDbl: nl: comma decimal") << "CDbl" << "nl_BE" << QVariant("12,5") << QVariant(12.5) << 0;
        QTest::newRow("CDbl: nl: point groups") << "CDbl" << "nl_BE" << QVariant("12.5") << QVariant(125.0) << 0;
        QTest::newRow("CDbl: us: comma groups") << "CDbl" << "en_US" << QVariant("1,234.5") << QVariant(1234.5) << 0;
        QTest::newRow("CDbl: fr: blank groups") << "CDbl" << "fr_BE" << QVariant("1 234,5") << QVariant(1234.5) << 0;
        QTest::newRow("CDbl: blanks around, plus sign") << "CDbl" << "nl_BE" << QVariant("  +7  ") << QVariant(7.0) << 0;
        QTest::newRow("CDbl: decimals only") << "CDbl" << "nl_BE" << QVariant(",5") << QVariant(0.5) << 0;
        QTest::newRow("CDbl: exponent") << "CDbl" << "en_US" << QVariant("1.5E3") << QVariant(1500.0) << 0;
        QTest::newRow("CDbl: hexadecimal Integer") << "CDbl" << "nl_BE" << QVariant("&HFFFF") << QVariant(-1.0) << 0;
        QTest::newRow("CDbl: hexadecimal Long") << "CDbl" << "nl_BE" << QVariant("&H10000") << QVariant(65536.0) << 0;
        QTest::newRow("CDbl: octal") << "CDbl" << "nl_BE" << QVariant("&O17") << QVariant(15.0) << 0;
        QTest::newRow("CDbl: tiny value underflows to 0") << "CDbl" << "en_US" << QVariant("1E-400") << QVariant(0.0) << 0;
        QTest::newRow("CLng, CInt: 2.5 to even 2") << "CLng,CInt" << "nl_BE" << QVariant(2.5) << QVariant(2) << 0;
        QTest::newRow("CLng, CInt: 2.5000001 up") << "CLng,CInt" << "nl_BE" << QVariant(2.5000001) << QVariant(3) << 0;
        QTest::newRow("CLng, CInt: -0.4 to 0") << "CLng,CInt" << "nl_BE" << QVariant(-0.4) << QVariant(0) << 0;
        QTest::newRow("CBool: non-zero number") << "CBool" << "nl_BE" << QVariant(-0.5) << QVariant(true) << 0;
        QTest::newRow("CBool: text True in any case") << "CBool" << "nl_BE" << QVariant(" tRUE ") << QVariant(true) << 0;
        QTest::newRow("CBool: numeric text") << "CBool" << "nl_BE" << QVariant("0,0") << QVariant(false) << 0;
        QTest::newRow("IsNumeric: Empty") << "IsNumeric" << "nl_BE" << QVariant() << QVariant(true) << 0;
        QTest::newRow("IsNumeric: Boolean") << "IsNumeric" << "nl_BE" << QVariant(false) << QVariant(true) << 0;
        QTest::newRow("IsNumeric: nl: grouped amount") << "IsNumeric" << "nl_BE" << QVariant(" 1.234,5 ") << QVariant(true) << 0;
        QTest::newRow("IsNumeric: date") << "IsNumeric" << "nl_BE" << QVariant(QDate(2000, 1, 1)) << QVariant(false) << 0;
        QTest::newRow("CDate: Empty is the zero date") << "CDate" << "nl_BE" << QVariant() << QVariant(at(QDate(1899, 12, 30))) << 0;
        QTest::newRow("CDate: serial number") << "CDate" << "nl_BE" << QVariant(36526.5) << QVariant(at(QDate(2000, 1, 1), QTime(12, 0))) << 0;
        QTest::newRow("CDate: date text") << "CDate" << "nl_BE" << QVariant("31/12/2000") << QVariant(at(QDate(2000, 12, 31))) << 0;
        QTest::newRow("CDate: numeric text is a serial") << "CDate" << "nl_BE" << QVariant("36526") << QVariant(at(QDate(2000, 1, 1))) << 0;
        QTest::newRow("IsDate: point-separated figures are no date") << "IsDate" << "nl_BE" << QVariant("8.30") << QVariant(false) << 0;
        QTest::newRow("CDate: QDate") << "CDate" << "nl_BE" << QVariant(QDate(2004, 2, 29)) << QVariant(at(QDate(2004, 2, 29))) << 0;
        QTest::newRow("IsDate: a number is no date") << "IsDate" << "nl_BE" << QVariant(36526) << QVariant(false) << 0;
        QTest::newRow("Val: blanks anywhere") << "Val" << "nl_BE" << QVariant(" 1 2 3 ") << QVariant(123.0) << 0;
        QTest::newRow("Val: stops at a letter") << "Val" << "nl_BE" << QVariant("12abc34") << QVariant(12.0) << 0;
        QTest::newRow("Val: point is the only decimal") << "Val" << "nl_BE" << QVariant("12.5") << QVariant(12.5) << 0;
        QTest::newRow("Val: second point stops") << "Val" << "nl_BE" << QVariant("1.2.3") << QVariant(1.2) << 0;
        QTest::newRow("Val: sign") << "Val" << "nl_BE" << QVariant(" - 7.5") << QVariant(-7.5) << 0;
        QTest::newRow("Val: exponent") << "Val" << "nl_BE" << QVariant("1.5e3x") << QVariant(1500.0) << 0;
        QTest::newRow("Val: D exponent") << "Val" << "nl_BE" << QVariant("2D2") << QVariant(200.0) << 0;
        QTest::newRow("Val: exponent without digits is ignored") << "Val" << "nl_BE" << QVariant("7E") << QVariant(7.0) << 0;
        QTest::newRow("Val: &HFFFF& is a Long") << "Val" << "nl_BE" << QVariant("&HFFFF&") << QVariant(65535.0) << 0;
        QTest::newRow("Val: &HFFFFFFFF is the Long -1") << "Val" << "nl_BE" << QVariant("&HFFFFFFFF") << QVariant(-1.0) << 0;
        QTest::newRow("Val: ampersand alone") << "Val" << "nl_BE" << QVariant("&") << QVariant(0.0) << 0;
        QTest::newRow("Val: beyond Double stays finite") << "Val" << "nl_BE" << QVariant("1E999") << QVariant(std::numeric_limits<double>::max()) << 0;
        QTest::newRow("Val: carriage return stops") << "Val" << "nl_BE" << QVariant("1\r2") << QVariant(1.0) << 0;
        QTest::newRow("Int, Fix: positive") << "Int,Fix" << "nl_BE" << QVariant(2.7) << QVariant(2.0) << 0;
        QTest::newRow("Int: negative") << "Int" << "nl_BE" << QVariant(-2.3) << QVariant(-3.0) << 0;
        QTest::newRow("Fix: negative") << "Fix" << "nl_BE" << QVariant(-2.3) << QVariant(-2.0) << 0;
        QTest::newRow("Mod: sign follows the dividend") << "Mod" << "nl_BE" << QVariant(QVariantList { -7.0, 3.0 }) << QVariant(-1) << 0;
        QTest::newRow("\\: sign follows the dividend") << "\\" << "nl_BE" << QVariant(QVariantList { -7.0, 3.0 }) << QVariant(-2) << 0;
        QTest::newRow("Mod: negative divisor") << "Mod" << "nl_BE" << QVariant(QVariantList { 7.0, -3.0 }) << QVariant(1) << 0;
        QTest::newRow("Mod: operands rounded first, half to even") << "Mod" << "nl_BE" << QVariant(QVariantList { 10.5, 2.5 }) << QVariant(0) << 0;
        QTest::newRow("Mod: smallest Long by -1") << "Mod" << "nl_BE" << QVariant(QVariantList { -2147483648.0, -1.0 }) << QVariant(0) << 0;
        QTest::newRow("CDbl: Null") << "CDbl,CLng" << "nl_BE" << qor::nullVariant() << QVariant() << 94;
        QTest::newRow("CDbl: empty text") << "CDbl,CLng" << "nl_BE" << QVariant("") << QVariant() << 13;
        QTest::newRow("CDbl: number followed by text") << "CDbl,CLng" << "nl_BE" << QVariant("12 EUR") << QVariant() << 13;
        QTest::newRow("CDbl us: Belgian notation") << "CDbl,CLng" << "en_US" << QVariant("1.234,5") << QVariant() << 13;
        QTest::newRow("CDbl nl: two decimal separators") << "CDbl,CLng" << "nl_BE" << QVariant("1,2,3") << QVariant() << 13;
        QTest::newRow("CDbl: exponent without digits") << "CDbl,CLng" << "nl_BE" << QVariant("1E") << QVariant() << 13;
        QTest::newRow("CDbl: date text") << "CDbl,CLng" << "nl_BE" << QVariant("31/12/2000") << QVariant() << 13;
        QTest::newRow("CDbl: beyond the Double range") << "CDbl,CLng" << "en_US" << QVariant("1E400") << QVariant() << 6;
        QTest::newRow("CDbl: null date") << "CDbl,CLng" << "nl_BE" << QVariant(QDate()) << QVariant() << 13;
        QTest::newRow("CDbl: date before year 100") << "CDbl,CLng" << "nl_BE" << QVariant(QDate(50, 1, 1)) << QVariant() << 6;
        QTest::newRow("CStr: Null") << "CStr" << "nl_BE" << qor::nullVariant() << QVariant() << 94;
        QTest::newRow("CStr: object") << "CStr" << "nl_BE" << QVariant::fromValue(&object) << QVariant() << 13;
        QTest::newRow("CBool: text that is no flag") << "CBool" << "nl_BE" << QVariant("ja") << QVariant() << 13;
        QTest::newRow("CDate: text that is no date") << "CDate" << "nl_BE" << QVariant("geen datum") << QVariant() << 13;
        QTest::newRow("CDate: after the year 9999") << "CDate" << "nl_BE" << QVariant(QDate(10000, 1, 1)) << QVariant() << 6;
        QTest::newRow("2147483647.5 rounds past the top of both") << "RoundLong,CLng,RoundInt" << "en_US" << QVariant(2147483647.5) << QVariant() << 6;
        QTest::newRow("-2147483648.5 rounds to an even Long") << "RoundLong,CLng" << "en_US" << QVariant(-2147483648.5) << QVariant(-2147483647 - 1) << 0;
        QTest::newRow("CInt(32767.5) rounds past the top") << "RoundInt" << "en_US" << QVariant(32767.5) << QVariant() << 6;
        QTest::newRow("CLng(32767.5) rounds to even") << "RoundLong,CLng" << "en_US" << QVariant(32767.5) << QVariant(32768) << 0;
        QTest::newRow("-32768.5 rounds to even, in range") << "RoundLong,CLng,RoundInt" << "en_US" << QVariant(-32768.5) << QVariant(-32768) << 0;
        QTest::newRow("32767.4 fits both") << "RoundLong,CLng,RoundInt" << "en_US" << QVariant(32767.4) << QVariant(32767) << 0;
        QTest::newRow("NaN fits neither") << "RoundLong,CLng,RoundInt" << "en_US" << QVariant(notANumber) << QVariant() << 6;
        QTest::newRow("Mod: division by a divisor rounded to 0") << "Mod" << "nl_BE" << QVariant(QVariantList { 5, 0.4 }) << QVariant() << 11;
        QTest::newRow("\\: division by 0") << "\\" << "nl_BE" << QVariant(QVariantList { 5, 0 }) << QVariant() << 11;
        QTest::newRow("Mod: dividend beyond a Long") << "Mod" << "nl_BE" << QVariant(QVariantList { 3e9, 7 }) << QVariant() << 6;
        QTest::newRow("\\: smallest Long by -1") << "\\" << "nl_BE" << QVariant(QVariantList { -2147483648.0, -1 }) << QVariant() << 6;
        // A megabyte of text ends at once.
        const QString digits(1 << 20, QLatin1Char('9'));
        QTest::newRow("Val: a megabyte of digits stays finite") << "Val" << "nl_BE" << QVariant(digits) << QVariant(std::numeric_limits<double>::max()) << 0;
        QTest::newRow("CDbl: a megabyte of digits overflows") << "CDbl" << "nl_BE" << QVariant(digits) << QVariant() << 6;
        QTest::newRow("Val: a megabyte after a comma") << "Val" << "nl_BE" << QVariant("0," + digits) << QVariant(0.0) << 0;
        QTest::newRow("CDbl: a megabyte of decimal nines is 1") << "CDbl" << "nl_BE" << QVariant("0," + digits) << QVariant(1.0) << 0;
        QTest::newRow("CDbl: a 5 a megabyte of decimals down is 0") << "CDbl" << "nl_BE" << QVariant("0," + QString(1 << 20, '0') + '5') << QVariant(0.0) << 0;
        QTest::newRow("IsNumeric: a megabyte of digits and a letter") << "IsNumeric" << "nl_BE" << QVariant(digits + 'x') << QVariant(false) << 0;
        QTest::newRow("IsDate: a megabyte of digits") << "IsDate" << "nl_BE" << QVariant(digits) << QVariant(false) << 0;
        // clang-format on
    }
    void conversions()
    {
        QFETCH(QString, functions);
        QFETCH(QString, locale);
        QFETCH(QVariant, value);
        QFETCH(QVariant, expected);
        QFETCH(int, error);
        const RegionalSettings rs = settings(locale);
        for (const QString &function : functions.split(QLatin1Char(','))) {
            QVariant actual;
            QCOMPARE(errorNumber([&] { actual = convert(function, value, rs); }), error);
            QCOMPARE(actual.metaType(), expected.metaType());
            if (expected.typeId() == QMetaType::Double)
                QCOMPARE(actual.toDouble(), expected.toDouble());
            else
                QCOMPARE(actual, expected);
        }
        // IsNumeric is False wherever CDbl fails.
        if (functions.startsWith(QLatin1String("CDbl")) && error != 0)
            QVERIFY(!qor::isNumeric(value, rs));
    }

    // Every function gives a result or a RuntimeError for every subtype; any
    // other exception (or a crash) is a fault.
    void everySubtypeIsHandled_data() { qor::test::addEverySubtypeRows(); }
    void everySubtypeIsHandled()
    {
        QFETCH(QVariant, value);
        const RegionalSettings nl = settings("nl_BE");
        for (const char *function :
            { "CStr", "CDbl", "CLng", "CInt", "CBool", "CDate", "IsNumeric", "IsDate" }) {
            try {
                convert(QLatin1String(function), value, nl);
            } catch (const qor::RuntimeError &) {
            } catch (...) {
                QFAIL(function);
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestConversion)
#include "tst_conversion.moc"
