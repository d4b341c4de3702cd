#include "runtime/dates.h"
#include "runtime/runtimeerror.h"

#include "tests/common/errornumber.h"

#include <QTest>
#include <cmath>
#include <limits>

using qor::test::errorNumber;

using qor::RegionalSettings;

class TestDates : public QObject
{
    Q_OBJECT

private slots:
    // DateSerial and TimeSerial roll every part over into the next; a date outside the
    // years 100 to 9999 is error 5 (the "expected" column invalid).
    void serialsRollOver_data()
    {
        QTest::addColumn<QString>("function");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        QTest::addColumn<int>("third");
        QTest::addColumn<QVariant>("expected");
        // clang-format off
        QTest::newRow("DateSerial: day 0 of March in a leap year") << "DateSerial" << 2000 << 3 << 0 << QVariant(QDate(2000, 2, 29));
        QTest::newRow("DateSerial: month 0 is December of the year before") << "DateSerial" << 2000 << 0 << 1 << QVariant(QDate(1999, 12, 1));
        QTest::newRow("DateSerial: month 13 is January of the next year") << "DateSerial" << 2004 << 13 << 1 << QVariant(QDate(2005, 1, 1));
        QTest::newRow("DateSerial: year 29 is 2029") << "DateSerial" << 29 << 6 << 1 << QVariant(QDate(2029, 6, 1));
        QTest::newRow("DateSerial: first date") << "DateSerial" << 100 << 1 << 1 << QVariant(QDate(100, 1, 1));
        QTest::newRow("DateSerial: last date") << "DateSerial" << 9999 << 12 << 31 << QVariant(QDate(9999, 12, 31));
        QTest::newRow("DateSerial: after 9999") << "DateSerial" << 9999 << 12 << 32 << QVariant();
        QTest::newRow("DateSerial: before year 100") << "DateSerial" << 100 << 1 << 0 << QVariant();
        QTest::newRow("DateSerial: huge month") << "DateSerial" << 2000 << std::numeric_limits<int>::max() << 1 << QVariant();
        QTest::newRow("TimeSerial: seconds roll into minutes") << "TimeSerial" << 8 << 59 << 75 << QVariant(QTime(9, 0, 15));
        QTest::newRow("TimeSerial: one second before midnight") << "TimeSerial" << 0 << 0 << -1 << QVariant(QTime(23, 59, 59));
        QTest::newRow("TimeSerial: large values") << "TimeSerial" << 0 << 0 << std::numeric_limits<int>::max() << QVariant(QTime(3, 14, 7));
        // clang-format on
    }
    void serialsRollOver()
    {
        QFETCH(QString, function);
        QFETCH(int, first);
        QFETCH(int, second);
        QFETCH(int, third);
        QFETCH(QVariant, expected);
        QVariant actual;
        QCOMPARE(errorNumber([&] {
            actual = function == QLatin1String("DateSerial")
                ? QVariant(qor::dateSerial(first, second, third))
                : QVariant(qor::timeSerial(first, second, third));
        }),
            expected.isValid() ? 0 : 5);
        QCOMPARE(actual, expected);
    }

    void serialNumbers_data()
    {
        QTest::addColumn<QDateTime>("dateTime"); // invalid: error 6 for the serial
        QTest::addColumn<double>("serial");
        const auto at = [](QDate d, QTime t) { return QDateTime(d, t, Qt::UTC); };
        // clang-format off
        QTest::newRow("the zero date") << at(QDate(1899, 12, 30), QTime(0, 0)) << 0.0;
        QTest::newRow("1 January 1900 noon") << at(QDate(1900, 1, 1), QTime(12, 0)) << 2.5;
        QTest::newRow("before the zero date the time still counts forward") << at(QDate(1899, 12, 29), QTime(6, 0)) << -1.25;
        QTest::newRow("first date") << at(QDate(100, 1, 1), QTime(0, 0)) << -657434.0;
        QTest::newRow("last date") << at(QDate(9999, 12, 31), QTime(0, 0)) << 2958465.0;
        QTest::newRow("a tenth of a second before midnight rounds up") << at(QDate(1899, 12, 31), QTime(0, 0)) << 1.0 - 0.1 / 86400.0;
        QTest::newRow("and so it does before the zero date") << at(QDate(1899, 12, 29), QTime(0, 0)) << -1.0 - 0.1 / 86400.0;
        QTest::newRow("before year 100") << QDateTime() << -657435.0;
        QTest::newRow("after 9999") << QDateTime() << 2958466.0;
        QTest::newRow("NaN") << QDateTime() << std::numeric_limits<double>::quiet_NaN();
        // clang-format on
    }
    void serialNumbers()
    {
        QFETCH(QDateTime, dateTime);
        QFETCH(double, serial);
        if (!dateTime.isValid()) {
            QCOMPARE(errorNumber([&] { qor::serialToDate(serial); }), 6);
            return;
        }
        // A serial rounds to the second; the date's own serial is that second's.
        QCOMPARE(qor::serialToDate(serial), dateTime);
        QCOMPARE(qor::serialToDate(qor::dateToSerial(dateTime)), dateTime);
    }

    void readDate_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDateTime>("expected"); // invalid: not a date

        const auto at = [](QDate d, QTime t = QTime(0, 0)) { return QDateTime(d, t, Qt::UTC); };
        const QDate zero(1899, 12, 30);
        // clang-format off
        QTest::newRow("nl: day first") << "nl_BE" << "1/2/2003" << at(QDate(2003, 2, 1));
        QTest::newRow("us: month first") << "en_US" << "1/2/2003" << at(QDate(2003, 1, 2));
        QTest::newRow("nl: impossible month read the other way") << "nl_BE" << "12/31/2000" << at(QDate(2000, 12, 31));
        QTest::newRow("nl: two-digit year in the window") << "nl_BE" << "31-12-99" << at(QDate(1999, 12, 31));
        QTest::newRow("year first") << "nl_BE" << "2024-03-05" << at(QDate(2024, 3, 5));
        QTest::newRow("nl: Dutch month name") << "nl_BE" << "5 maart 2024" << at(QDate(2024, 3, 5));
        QTest::newRow("us: month name first") << "en_US" << "Mar 5 2024" << at(QDate(2024, 3, 5));
        QTest::newRow("date and time") << "nl_BE" << " 31/12/2000 14:30 " << at(QDate(2000, 12, 31), QTime(14, 30));
        QTest::newRow("time alone lies on the zero date") << "nl_BE" << "8:30" << at(zero, QTime(8, 30));
        QTest::newRow("us: PM") << "en_US" << "2:30 PM" << at(zero, QTime(14, 30));
        QTest::newRow("us: 12 AM is midnight") << "en_US" << "12:00 AM" << at(zero, QTime(0, 0));
        QTest::newRow("29 February of a common year") << "nl_BE" << "29/02/2001" << QDateTime();
        QTest::newRow("hour 24") << "nl_BE" << "24:00" << QDateTime();
        QTest::newRow("minute 60") << "nl_BE" << "8:60" << QDateTime();
        QTest::newRow("13 PM") << "en_US" << "13:00 PM" << QDateTime();
        QTest::newRow("day and month without a year") << "nl_BE" << "15/05" << QDateTime();
        QTest::newRow("four fields") << "nl_BE" << "1/2/3/4" << QDateTime();
        QTest::newRow("a plain number") << "nl_BE" << "36526" << QDateTime();
        QTest::newRow("a date literal with hashes") << "nl_BE" << "#08:30#" << QDateTime();
        QTest::newRow("empty") << "nl_BE" << "" << QDateTime();
        QTest::newRow("year 99 written in four digits") << "nl_BE" << "1/1/0099" << QDateTime();
        QTest::newRow("a megabyte of digits ends at once") << "nl_BE" << QString(1 << 20, '1') << QDateTime();
        QTest::newRow("a megabyte of slashes ends at once") << "en_US" << QString(1 << 20, '/') << QDateTime();
        // clang-format on
    }
    void readDate()
    {
        QFETCH(QString, locale);
        QFETCH(QString, text);
        QFETCH(QDateTime, expected);
        const auto result = qor::readDate(text, RegionalSettings::fromLocale(locale));
        QCOMPARE(result.has_value(), expected.isValid());
        if (result)
            QCOMPARE(*result, expected);
    }
};

QTEST_APPLESS_MAIN(TestDates)
#include "tst_dates.moc"
