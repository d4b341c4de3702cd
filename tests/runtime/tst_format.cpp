#include "runtime/format.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include "tests/common/errornumber.h"
#include "tests/common/everysubtype.h"

#include <QTest>
#include <limits>

using qor::test::errorNumber;

using qor::RegionalSettings;

namespace {

RegionalSettings settings(const QString &locale)
{
    return RegionalSettings::fromLocale(locale);
}

const QString bankMask = QStringLiteral("&&&\\-&&&&&&&\\-&&");
const QString referenceMask = QStringLiteral("000\\/0000\\/000");
const QString amountPattern = QStringLiteral("#,##0.00;- #,##0.00");

} // namespace

class TestFormat : public QObject
{
    Q_OBJECT

private slots:
    void format_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QString>("nl");
        QTest::addColumn<QString>("us");
        QTest::addColumn<int>("error"); // raised in both settings, the texts then empty
        // Text masks.
        // clang-format off
        QTest::newRow("bank account") << QVariant("123456789012") << bankMask << "123-4567890-12" << "123-4567890-12" << 0;
        QTest::newRow("short text leaves the first places empty") << QVariant("12345") << bankMask << "-123-45" << "-123-45" << 0;
        QTest::newRow("long text puts its surplus in front") << QVariant("99123456789012") << bankMask << "99123-4567890-12" << "99123-4567890-12" << 0;
        QTest::newRow("empty text keeps the literals") << QVariant("") << bankMask << "--" << "--" << 0;
        QTest::newRow("@ shows a blank") << QVariant("ab") << "(@@@@)" << "(  ab)" << "(  ab)" << 0;
        QTest::newRow("! fills from the left") << QVariant("abc") << "!&&\\-&&" << "ab-c" << "ab-c" << 0;
        QTest::newRow("> upper case") << QVariant("abc") << ">&&&" << "ABC" << "ABC" << 0;
        QTest::newRow("second section for empty text") << QVariant("") << "&&;\\-" << "-" << "-" << 0;
        QTest::newRow("quoted literal") << QVariant("12") << "\"nr \"&&" << "nr 12" << "nr 12" << 0;
        // Number patterns.
        QTest::newRow("structured reference") << QVariant(12345) << referenceMask << "000/0012/345" << "000/0012/345" << 0;
        QTest::newRow("line number and blank") << QVariant(42) << "000000 " << "000042 " << "000042 " << 0;
        QTest::newRow("hours #00, three digits") << QVariant(123) << "#00" << "123" << "123" << 0;
        QTest::newRow("hours #0 of zero") << QVariant(0) << "#0" << "0" << "0" << 0;
        QTest::newRow("amount") << QVariant(1234.5) << amountPattern << "1.234,50" << "1,234.50" << 0;
        QTest::newRow("amount, negative section") << QVariant(-1234.5) << amountPattern << "- 1.234,50" << "- 1,234.50" << 0;
        QTest::newRow("amount, below one") << QVariant(0.5) << amountPattern << "0,50" << "0.50" << 0;
        QTest::newRow("VAT caption") << QVariant(21.0) << "0.0\\ \\%" << "21,0 %" << "21.0 %" << 0;
        QTest::newRow("percent multiplies") << QVariant(0.215) << "0.0%" << "21,5%" << "21.5%" << 0;
        QTest::newRow("grouping without decimals") << QVariant(-1234567) << "#,##0" << "-1.234.567" << "-1,234,567" << 0;
        QTest::newRow("trailing comma divides by 1000") << QVariant(1234567) << "#,##0," << "1.235" << "1,235" << 0;
        QTest::newRow("# decimals drop trailing zeros") << QVariant(1.5) << "0.0#" << "1,5" << "1.5" << 0;
        QTest::newRow("# whole part of a fraction") << QVariant(0.5) << "#.##" << ",5" << ".5" << 0;
        QTest::newRow("scientific") << QVariant(12345.678) << "0.00E+00" << "1,23E+04" << "1.23E+04" << 0;
        QTest::newRow("scientific, small") << QVariant(0.000123) << "0.0E-00" << "1,2E-04" << "1.2E-04" << 0;
        QTest::newRow("zero section") << QVariant(0) << "0;-0;\"nihil\"" << "nihil" << "nihil" << 0;
        QTest::newRow("single section puts a minus in front") << QVariant(-5) << "\\[0\\]" << "-[5]" << "-[5]" << 0;
        // Format rounds the digits a Double shows (15 significant), half away from
        // zero: 2.675 is 2.67499999... in binary but displays and rounds as 2.675.
        QTest::newRow("2.675 to 2.68") << QVariant(2.675) << "0.00" << "2,68" << "2.68" << 0;
        QTest::newRow("0.125 to 0.13, not to even") << QVariant(0.125) << "0.00" << "0,13" << "0.13" << 0;
        QTest::newRow("9.995 carries into the whole part") << QVariant(9.995) << "0.00" << "10,00" << "10.00" << 0;
        QTest::newRow("999.999 carries into a group") << QVariant(999.999) << amountPattern << "1.000,00" << "1,000.00" << 0;
        QTest::newRow("a tiny negative keeps its sign") << QVariant(-0.001) << "0.00" << "-0,00" << "-0.00" << 0;
        QTest::newRow("a half below the first digit rounds up") << QVariant(0.5) << "0" << "1" << "1" << 0;
        QTest::newRow("just under a half below the first digit") << QVariant(0.49) << "0" << "0" << "0" << 0;
        QTest::newRow("a carry makes a new first digit") << QVariant(0.95) << "0.0" << "1,0" << "1.0" << 0;
        QTest::newRow("a Single rounds on its 7 digits") << QVariant(2.675f) << "0.00" << "2,68" << "2.68" << 0;
        QTest::newRow("64-bit whole numbers stay exact") << QVariant(qlonglong(9007199254740993LL)) << "#,##0" << "9.007.199.254.740.993" << "9,007,199,254,740,993" << 0;
        // Values of other kinds.
        QTest::newRow("date and time serial") << QVariant(QDateTime(QDate(2000, 1, 1), QTime(18, 0))) << "0.00" << "36526,75" << "36526.75" << 0;
        QTest::newRow("numeric text is read with the regional separators") << QVariant("1.234,5") << "0.00" << "1234,50" << "1.234,5" << 0;
        QTest::newRow("text that is not numeric comes back unchanged") << QVariant("abc") << "0.00" << "abc" << "abc" << 0;
        QTest::newRow("Empty") << QVariant() << "0.00" << "" << "" << 0;
        QTest::newRow("Null") << qor::nullVariant() << amountPattern << "" << "" << 0;
        QTest::newRow("no pattern: the plain text form") << QVariant(1234.5) << "" << "1234,5" << "1234.5" << 0;
        QTest::newRow("a number through a text mask") << QVariant(1234.5) << "&&&&&&" << "1234,5" << "1234.5" << 0;
        // Date and time patterns.
        const QDateTime afternoon(QDate(2024, 3, 5), QTime(14, 7, 9));
        QTest::newRow("hh:mm is 24-hour too") << QVariant(afternoon) << "hh:mm" << "14:07" << "14:07" << 0;
        QTest::newRow("mm before ss is minutes") << QVariant(afternoon) << "mm:ss" << "07:09" << "07:09" << 0;
        QTest::newRow("dd/mm/yyyy: mm is the month") << QVariant(afternoon) << "dd/mm/yyyy" << "05/03/2024" << "05/03/2024" << 0;
        QTest::newRow("d/m/yy") << QVariant(QDate(2009, 7, 4)) << "d/m/yy" << "4/7/09" << "4/7/09" << 0;
        QTest::newRow("dddd") << QVariant(QDate(2024, 3, 4)) << "dddd" << "maandag" << "Monday" << 0;
        QTest::newRow("mmmm") << QVariant(QDate(2024, 3, 5)) << "mmmm" << "maart" << "March" << 0;
        QTest::newRow("AM/PM makes a 12-hour clock") << QVariant(afternoon) << "h:nn AM/PM" << "2:07 PM" << "2:07 PM" << 0;
        QTest::newRow("am/pm at midnight") << QVariant(QTime(0, 15)) << "hh:nn am/pm" << "12:15 am" << "12:15 am" << 0;
        QTest::newRow("quarter, weekday, day of year") << QVariant(QDate(2024, 3, 5)) << "q w y" << "1 3 65" << "1 3 65" << 0;
        QTest::newRow("week of the year") << QVariant(QDate(2024, 1, 7)) << "ww" << "2" << "2" << 0;
        QTest::newRow("short date") << QVariant(QDate(2024, 3, 5)) << "ddddd" << "5/03/2024" << "3/5/2024" << 0;
        QTest::newRow("escaped letters are literal") << QVariant(QDate(2024, 3, 5)) << "\\d\\a\\y d" << "day 5" << "day 5" << 0;
        QTest::newRow("serial number as a date") << QVariant(36526.5) << "dd/mm/yyyy hh:nn" << "01/01/2000 12:00" << "01/01/2000 12:00" << 0;
        QTest::newRow("date text") << QVariant("31/12/2000") << "yyyy-mm-dd" << "2000-12-31" << "2000-12-31" << 0;
        QTest::newRow("a time literal with hashes stays as it is") << QVariant("#08:30#") << "HH:mm" << "#08:30#" << "#08:30#" << 0;
        // Numbers beyond the usual.
        QTest::newRow("largest Double") << QVariant(std::numeric_limits<double>::max()) << "0" << "179769313486232" + QString(294, '0') << "179769313486232" + QString(294, '0') << 0;
        QTest::newRow("NaN") << QVariant(std::numeric_limits<double>::quiet_NaN()) << amountPattern << "1.#QNAN" << "1.#QNAN" << 0;
        QTest::newRow("minus infinity") << QVariant(-std::numeric_limits<double>::infinity()) << referenceMask << "-1.#INF" << "-1.#INF" << 0;
        QTest::newRow("smallest Double rounds to zero") << QVariant(std::numeric_limits<double>::denorm_min()) << "0.00" << "0,00" << "0.00" << 0;
        // Values no pattern takes.
        static QObject object;
        QTest::newRow("array") << QVariant(QVariantList { 1 }) << "0.00" << "" << "" << 13;
        QTest::newRow("array, no pattern") << QVariant(QVariantList { 1 }) << "" << "" << "" << 13;
        QTest::newRow("object") << QVariant::fromValue(&object) << bankMask << "" << "" << 13;
        QTest::newRow("date pattern on 1E+300") << QVariant(1e300) << "dd/mm/yyyy" << "" << "" << 6;
        QTest::newRow("date pattern on NaN") << QVariant(std::numeric_limits<double>::quiet_NaN()) << "HH:mm" << "" << "" << 6;
        // A megabyte of text or pattern ends at once.
        const QString sevens(1 << 20, QLatin1Char('7'));
        const QString maskedSevens = QString((1 << 20) - 12, QLatin1Char('7')) + "777-7777777-77";
        const QString zeros(1 << 20, QLatin1Char('0'));
        QTest::newRow("a megabyte through a mask") << QVariant(sevens) << bankMask << maskedSevens << maskedSevens << 0;
        QTest::newRow("a megabyte of digits is no number, so no date") << QVariant(sevens) << "dd/mm/yyyy" << sevens << sevens << 0;
        QTest::newRow("a megabyte of decimal places") << QVariant(0.5) << "0." + zeros << "0,5" + zeros.mid(1) << "0.5" + zeros.mid(1) << 0;
        // clang-format on
    }
    void format()
    {
        QFETCH(QVariant, value);
        QFETCH(QString, pattern);
        QString nl;
        QString us;
        QTEST(errorNumber([&] { nl = qor::format(value, pattern, settings("nl_BE")); }), "error");
        QTEST(errorNumber([&] { us = qor::format(value, pattern, settings("en_US")); }), "error");
        QTEST(nl, "nl");
        QTEST(us, "us");
    }

    void dateSeparatorsOfOtherSettings()
    {
        const QDate date(2024, 3, 5);
        QCOMPARE(qor::format(date, QStringLiteral("dd/mm/yyyy"), settings("de_DE")),
            QStringLiteral("05.03.2024"));
        RegionalSettings dotted = settings("nl_BE");
        dotted.timeSeparator = QLatin1Char('.');
        QCOMPARE(
            qor::format(QTime(8, 30), QStringLiteral("HH:mm"), dotted), QStringLiteral("08.30"));
    }

    // Every pattern kind gives a text or a RuntimeError for every subtype.
    void everySubtypeIsHandled_data() { qor::test::addEverySubtypeRows(); }
    void everySubtypeIsHandled()
    {
        QFETCH(QVariant, value);
        const QStringList patterns = { bankMask, referenceMask, amountPattern, "0.0\\ \\%", "0.0%",
            "0.00E+00", "#,##0,", "HH:mm", "dddd d mmmm yyyy", "c", "ttttt", "", ";;", "\\", "\"",
            "&;", "E+", "am/pm h" };
        for (const QString &pattern : patterns) {
            for (const char *locale : { "nl_BE", "en_US" }) {
                try {
                    qor::format(value, pattern, settings(QString::fromLatin1(locale)));
                } catch (const qor::RuntimeError &) {
                } catch (...) {
                    QFAIL(qPrintable(QStringLiteral("pattern ") + pattern));
                }
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestFormat)
#include "tst_format.moc"
