#include "datetime/publicholidays.h"

#include <QTest>

using namespace qor;

namespace {

// Easter Sunday 2000-2030 from the published church tables, and in the first and
// the last year of the range.
// clang-format off
const QList<QDate> easterReference {
    { 1583, 4, 10 }, { 9999, 3, 28 },
    { 2000, 4, 23 }, { 2001, 4, 15 }, { 2002, 3, 31 }, { 2003, 4, 20 }, { 2004, 4, 11 }, { 2005, 3, 27 },
    { 2006, 4, 16 }, { 2007, 4, 8 }, { 2008, 3, 23 }, { 2009, 4, 12 }, { 2010, 4, 4 }, { 2011, 4, 24 },
    { 2012, 4, 8 }, { 2013, 3, 31 }, { 2014, 4, 20 }, { 2015, 4, 5 }, { 2016, 3, 27 }, { 2017, 4, 16 },
    { 2018, 4, 1 }, { 2019, 4, 21 }, { 2020, 4, 12 }, { 2021, 4, 4 }, { 2022, 4, 17 }, { 2023, 4, 9 },
    { 2024, 3, 31 }, { 2025, 4, 20 }, { 2026, 4, 5 }, { 2027, 3, 28 }, { 2028, 4, 16 }, { 2029, 4, 1 },
    { 2030, 4, 21 }
};
// clang-format on

QList<QDate> datesOf(const QList<PublicHoliday> &days)
{
    QList<QDate> dates;
    for (const PublicHoliday &day : days)
        dates.append(day.date);
    return dates;
}

} // namespace

class TestPublicHolidays : public QObject
{
    Q_OBJECT

private slots:
    void easterMatchesTheReference_data()
    {
        QTest::addColumn<QDate>("easter");
        for (const QDate &easter : easterReference)
            QTest::newRow(qPrintable(QString::number(easter.year()))) << easter;
    }
    void easterMatchesTheReference()
    {
        QFETCH(QDate, easter);
        const int year = easter.year();
        QCOMPARE(easterSunday(year), easter);

        // Belgium: seven fixed days and the three movable Mondays and Thursday.
        const QList<QDate> expectedBE { QDate(year, 1, 1), easter.addDays(1), QDate(year, 5, 1),
            easter.addDays(39), easter.addDays(50), QDate(year, 7, 21), QDate(year, 8, 15),
            QDate(year, 11, 1), QDate(year, 11, 11), QDate(year, 12, 25) };
        QList<QDate> sortedBE = expectedBE;
        std::sort(sortedBE.begin(), sortedBE.end());
        QCOMPARE(datesOf(publicHolidays(year, QStringLiteral("BE"))), sortedBE);

        QList<QDate> expectedLU { QDate(year, 1, 1), easter.addDays(1), QDate(year, 5, 1),
            easter.addDays(39), easter.addDays(50), QDate(year, 6, 23), QDate(year, 8, 15),
            QDate(year, 11, 1), QDate(year, 12, 25), QDate(year, 12, 26) };
        if (year >= 2019)
            expectedLU.append(QDate(year, 5, 9));
        std::sort(expectedLU.begin(), expectedLU.end());
        QCOMPARE(datesOf(publicHolidays(year, QStringLiteral("LU"))), expectedLU);
    }

    void communities_data()
    {
        QTest::addColumn<int>("community");
        QTest::addColumn<QList<QDate>>("extra");
        // clang-format off
        QTest::newRow("Flemish") << int(BelgianCommunity::Flemish) << QList<QDate> { QDate(2024, 7, 11) };
        QTest::newRow("French") << int(BelgianCommunity::French) << QList<QDate> { QDate(2024, 9, 27) };
        QTest::newRow("German-speaking") << int(BelgianCommunity::GermanSpeaking) << QList<QDate> { QDate(2024, 11, 15) };
        QTest::newRow("all") << int(BelgianCommunity::All) << QList<QDate> { QDate(2024, 7, 11), QDate(2024, 9, 27), QDate(2024, 11, 15) };
        // clang-format on
    }
    void communities()
    {
        QFETCH(int, community);
        QFETCH(QList<QDate>, extra);
        const QList<QDate> common = datesOf(publicHolidays(2024, QStringLiteral("BE")));
        QList<QDate> with
            = datesOf(publicHolidays(2024, QStringLiteral("BE"), BelgianCommunity(community)));
        for (const QDate &d : extra)
            QVERIFY(with.removeOne(d));
        QCOMPARE(with, common);
    }

    void noHolidays_data()
    {
        QTest::addColumn<int>("year");
        QTest::addColumn<QString>("country");
        // clang-format off
        QTest::newRow("another country") << 2024 << "NL";
        QTest::newRow("lower case") << 2024 << "be";
        QTest::newRow("before the Gregorian calendar") << 1582 << "BE";
        QTest::newRow("beyond 9999") << 10000 << "BE";
        // clang-format on
    }
    void noHolidays()
    {
        QFETCH(int, year);
        QFETCH(QString, country);
        QVERIFY(publicHolidays(year, country).isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestPublicHolidays)
#include "tst_publicholidays.moc"
