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
    void dateSerialRollsOver_data()
    {
        QTest::addColumn<int>("year");
        QTest::addColumn<int>("month");
        QTest::addColumn<int>("day");
        QTest::addColumn<QDate>("expected"); // invalid: error 5
        const int huge = std::numeric_limits<int>::max();
        // clang-format off
        QTest::newRow("plain date") << 2005 << 5 << 15 << QDate(2005, 5, 15);
        QTest::newRow("day 0 is the last day of the month before") << 2000 << 12 << 0 << QDate(2000, 11, 30);
        QTest::newRow("day 0 of March in a leap year") << 2000 << 3 << 0 << QDate(2000, 2, 29);
        QTest::newRow("month 0 is December of the year before") << 2000 << 0 << 1 << QDate(1999, 12, 1);
        QTest::newRow("month 13 is January of the next year") << 2004 << 13 << 1 << QDate(2005, 1, 1);
        QTest::newRow("negative month") << 2004 << -1 << 10 << QDate(2003, 11, 10);
        QTest::newRow("day 400") << 2005 << 1 << 400 << QDate(2006, 2, 4);
        QTest::newRow("negative day") << 2005 << 3 << -1 << QDate(2005, 2, 27);
        QTest::newRow("year 29 is 2029") << 29 << 6 << 1 << QDate(2029, 6, 1);
        QTest::newRow("year 30 is 1930") << 30 << 6 << 1 << QDate(1930, 6, 1);
        QTest::newRow("first date") << 100 << 1 << 1 << QDate(100, 1, 1);
        QTest::newRow("last date") << 9999 << 12 << 31 << QDate(9999, 12, 31);
        QTest::newRow("after 9999") << 9999 << 12 << 32 << QDate();
        QTest::newRow("year 10000") << 10000 << 1 << 1 << QDate();
        QTest::newRow("before year 100") << 100 << 1 << 0 << QDate();
        QTest::newRow("negative year") << -5 << 1 << 1 << QDate();
        QTest::newRow("huge month") << 2000 << huge << 1 << QDate();
        QTest::newRow("huge negative day") << 2000 << 1 << -huge - 1 << QDate();
        // clang-format on
    }
    void dateSerialRollsOver()
    {
        QFETCH(int, year);
        QFETCH(int, month);
        QFETCH(int, day);
        QFETCH(QDate, expected);
        if (expected.isValid())
            QCOMPARE(qor::dateSerial(year, month, day), expected);
        else
            QCOMPARE(errorNumber([&] { qor::dateSerial(year, month, day); }), 5);
    }

    void timeSerialRollsOver_data()
    {
        QTest::addColumn<int>("hour");
        QTest::addColumn<int>("minute");
        QTest::addColumn<int>("second");
        QTest::addColumn<QTime>("expected");

        // clang-format off
        QTest::newRow("plain time") << 8 << 30 << 0 << QTime(8, 30);
        QTest::newRow("seconds roll into minutes") << 8 << 59 << 75 << QTime(9, 0, 15);
        QTest::newRow("minutes roll into hours") << 0 << 61 << 0 << QTime(1, 1);
        QTest::newRow("hours past midnight") << 25 << 0 << 0 << QTime(1, 0);
        QTest::newRow("one second before midnight") << 0 << 0 << -1 << QTime(23, 59, 59);
        QTest::newRow("large values") << 0 << 0 << std::numeric_limits<int>::max() << QTime(3, 14, 7);
        // clang-format on
    }
    void timeSerialRollsOver()
    {
        QFETCH(int, hour);
        QFETCH(int, minute);
        QFETCH(int, second);
        QTEST(qor::timeSerial(hour, minute, second), "expected");
    }

    void serialNumbers_data()
    {
        QTest::addColumn<QDateTime>("dateTime"); // invalid: error 6 for the serial
        QTest::addColumn<double>("serial");
        const auto at = [](QDate d, QTime t) { return QDateTime(d, t, Qt::UTC); };
        const double inf = std::numeric_limits<double>::infinity();
        // clang-format off
        QTest::newRow("the zero date") << at(QDate(1899, 12, 30), QTime(0, 0)) << 0.0;
        QTest::newRow("1 January 1900 noon") << at(QDate(1900, 1, 1), QTime(12, 0)) << 2.5;
        QTest::newRow("1 January 2000") << at(QDate(2000, 1, 1), QTime(0, 0)) << 36526.0;
        QTest::newRow("before the zero date the time still counts forward") << at(QDate(1899, 12, 29), QTime(6, 0)) << -1.25;
        QTest::newRow("first date") << at(QDate(100, 1, 1), QTime(0, 0)) << -657434.0;
        QTest::newRow("last date") << at(QDate(9999, 12, 31), QTime(0, 0)) << 2958465.0;
        QTest::newRow("before year 100") << QDateTime() << -657435.0;
        QTest::newRow("after 9999") << QDateTime() << 2958466.0;
        QTest::newRow("1E+300") << QDateTime() << 1e300;
        QTest::newRow("NaN") << QDateTime() << std::numeric_limits<double>::quiet_NaN();
        QTest::newRow("infinity") << QDateTime() << -inf;
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
        QCOMPARE(qor::dateToSerial(dateTime), serial);
        QCOMPARE(qor::serialToDate(serial), dateTime);
    }

    void serialRoundsToTheSecond()
    {
        const double almostMidnight = 1.0 - 0.1 / 86400.0;
        QCOMPARE(qor::serialToDate(almostMidnight),
            QDateTime(QDate(1899, 12, 31), QTime(0, 0), Qt::UTC));
        QCOMPARE(qor::serialToDate(-1.0 - 0.1 / 86400.0),
            QDateTime(QDate(1899, 12, 29), QTime(0, 0), Qt::UTC));
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
        QTest::newRow("a word") << "nl_BE" << "morgen" << QDateTime();
        QTest::newRow("a date literal with hashes") << "nl_BE" << "#08:30#" << QDateTime();
        QTest::newRow("empty") << "nl_BE" << "" << QDateTime();
        QTest::newRow("year 99 written in four digits") << "nl_BE" << "1/1/0099" << QDateTime();
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

    void readDateOfAHugeTextEndsAtOnce()
    {
        const QString huge(1 << 20, QLatin1Char('1'));
        QVERIFY(!qor::readDate(huge, RegionalSettings::fromLocale("nl_BE")));
        QVERIFY(!qor::readDate(QString(1 << 20, QLatin1Char('/')), RegionalSettings()));
    }
};

QTEST_APPLESS_MAIN(TestDates)
#include "tst_dates.moc"
