#include "runtime/regionalsettings.h"

#include <QTest>

using qor::RegionalSettings;

class TestRegionalSettings : public QObject
{
    Q_OBJECT

private slots:
    void separatorsAndPatterns_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QChar>("decimal");
        QTest::addColumn<QChar>("group");
        QTest::addColumn<QChar>("dateSeparator");
        QTest::addColumn<QChar>("timeSeparator");
        QTest::addColumn<QString>("shortDate");
        QTest::addColumn<QString>("time");

        // clang-format off
        QTest::newRow("Belgian Dutch: comma decimals, day first") << "nl_BE" << QChar(',') << QChar('.') << QChar('/') << QChar(':') << "d/MM/yyyy" << "HH:mm:ss";
        QTest::newRow("US English: point decimals, month first, 12-hour clock") << "en_US" << QChar('.') << QChar(',') << QChar('/') << QChar(':') << "M/d/yyyy" << "h:mm:ss AP";
        QTest::newRow("Belgian French: blank grouping, no words in the time") << "fr_BE" << QChar(',') << QChar(' ') << QChar('/') << QChar(':') << "d/MM/yyyy" << "HH:mm:ss";
        QTest::newRow("German: point date separator, two-digit year widened") << "de_DE" << QChar(',') << QChar('.') << QChar('.') << QChar(':') << "dd.MM.yyyy" << "HH:mm:ss";
        // clang-format on
    }
    void separatorsAndPatterns()
    {
        QFETCH(QString, locale);
        const RegionalSettings rs = RegionalSettings::fromLocale(locale);
        QTEST(rs.decimalSeparator, "decimal");
        QTEST(rs.groupSeparator, "group");
        QTEST(rs.dateSeparator, "dateSeparator");
        QTEST(rs.timeSeparator, "timeSeparator");
        QTEST(rs.shortDatePattern, "shortDate");
        QTEST(rs.timePattern, "time");
    }

    void expandYear_data()
    {
        QTest::addColumn<int>("windowEnd");
        QTest::addColumn<int>("typed");
        QTest::addColumn<int>("expected");

        // clang-format off
        QTest::newRow("three digits are kept") << 2029 << 100 << 100;
        QTest::newRow("a moved window: 49 stays in 2049") << 2049 << 49 << 2049;
        QTest::newRow("a moved window: 50 goes to 1950") << 2049 << 50 << 1950;
        // clang-format on
    }
    void expandYear()
    {
        QFETCH(int, windowEnd);
        QFETCH(int, typed);
        RegionalSettings rs;
        rs.twoDigitYearMax = windowEnd;
        QTEST(rs.expandYear(typed), "expected");
    }
};

QTEST_APPLESS_MAIN(TestRegionalSettings)
#include "tst_regionalsettings.moc"
