#include "datetimetest.h"

#include "host/datecontrol.h"
#include "runtime/dates.h"
#include "tests/common/errornumber.h"

#include <QTemporaryDir>
#include <QTest>

using namespace qor;
using test::installDateMachine;

namespace {

const QString fixedDays = QStringLiteral("01/01,01/05,15/08,01/11,25/12");
const QString developmentNotice
    = QStringLiteral("3 variabele Feestdagen invullen in OstGenLib SetDtext");

QDateTime day(int y, int m, int d)
{
    return QDateTime(QDate(y, m, d), QTime(0, 0), Qt::UTC);
}

QDateTime noon(int y, int m, int d)
{
    return QDateTime(QDate(y, m, d), QTime(12, 0), Qt::UTC);
}

} // namespace

class TestCalendarHelpers : public QObject
{
    Q_OBJECT

private slots:
    void getWeekDag_data()
    {
        QTest::addColumn<QVariant>("date");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("error"); // by name the weekday wants a Date
        // clang-format off
        QTest::newRow("Saturday, time of day ignored") << QVariant(noon(2024, 3, 16)) << "Zaterdag" << 0;
        QTest::newRow("first day of the range") << QVariant(day(100, 1, 1)) << "Vrijdag" << 0;
        QTest::newRow("a text is a type mismatch") << QVariant("17/03/2024") << "" << 13;
        // clang-format on
    }
    void getWeekDag()
    {
        QFETCH(QVariant, date);
        installDateMachine(QStringLiteral("nl_BE"));
        clsqorGenLib lib;
        QVariant name;
        QTEST(test::errorNumber([&] { name = lib.Invoke(QStringLiteral("GetWeekDag"), { date }); }),
            "error");
        QTEST(name.toString(), "name");
    }

    void quarters_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("datum");
        QTest::addColumn<QDateTime>("start");
        QTest::addColumn<QDateTime>("end");
        // clang-format off
        QTest::newRow("May month first") << "en_US" << "5/15/2005" << day(2005, 4, 1) << day(2005, 6, 30);
        QTest::newRow("first day of a quarter") << "nl_BE" << "1/01/2004" << day(2004, 1, 1) << day(2004, 3, 31);
        QTest::newRow("last day of a quarter") << "nl_BE" << "31/03/2004" << day(2004, 1, 1) << day(2004, 3, 31);
        QTest::newRow("last quarter of the range") << "nl_BE" << "31/12/9999" << day(9999, 10, 1) << day(9999, 12, 31);
        QTest::newRow("empty") << "nl_BE" << "" << day(1899, 12, 30) << day(1899, 12, 30);
        // clang-format on
    }
    void quarters()
    {
        QFETCH(QString, locale);
        QFETCH(QString, datum);
        QFETCH(QDateTime, start);
        const auto machine = installDateMachine(locale);
        clsqorGenLib lib;
        QString text = datum;
        QTEST(lib.GetQuarterStart(text), "start");
        QTEST(lib.GetQuarterEnd(text), "end");
        const QVariantMap fault
            = test::messageBox(QStringLiteral("Ongeldige datum !"), 48, QStringLiteral(" Fout"));
        // A text that is no date is reported by each of the two.
        const bool refused = start == day(1899, 12, 30);
        QCOMPARE(machine->shown().size(), refused ? 2 : 0);
        for (const ShownEvent &shown : machine->shown()) {
            const auto *box = std::get_if<MessageBoxEShown>(&shown);
            QVERIFY(box);
            QCOMPARE(test::messageBox(box->prompt, box->buttons, box->title, box->caption), fault);
        }
    }

    // SetDText on a model date control, the clock set to a year of the
    // classic holiday table or beyond it, on a customer or a development station.
    void setDText_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<int>("offset");
        QTest::addColumn<int>("year");
        QTest::addColumn<QString>("country");
        QTest::addColumn<QString>("countryAfter");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("holidays");
        QTest::addColumn<QString>("weekTitles");
        QTest::addColumn<QVariantList>("flags"); // ValueToDay and MaxDateToDay, when given
        QTest::addColumn<bool>("development");
        QTest::addColumn<bool>("notice"); // the reminder to fill in the table
        const QString nl = QStringLiteral("nl_BE");
        const QString dutchTitles = QStringLiteral("zo,ma,di,wo,do,vr,za");
        const QString slashes = QStringLiteral("dd/mm/yyyy");
        // clang-format off
        QTest::newRow("BE Dutch 2004") << nl << 0 << 2004 << "BE" << "BE" << slashes << fixedDays + ",21/07,11/11,11/07,11/04,20/05,30/05" << dutchTitles << QVariantList() << false << false;
        QTest::newRow("BE Dutch 2003, one movable day") << nl << 0 << 2003 << "BE" << "BE" << slashes << fixedDays + ",21/07,11/11,11/07,20/04" << dutchTitles << QVariantList() << false << false;
        QTest::newRow("BE English takes the non-Dutch day") << "en_US" << 20000 << 2002 << "BE" << "BE" << slashes << fixedDays + ",21/07,11/11,27/09,31/03,09/05,19/05" << "Su,Mo,Tu,We,Th,Fr,Sa" << QVariantList() << false << false;
        QTest::newRow("BE 2006, table ended") << nl << 0 << 2006 << "BE" << "BE" << slashes << fixedDays + ",21/07,11/11,11/07" << dutchTitles << QVariantList() << false << false;
        QTest::newRow("BE 2001, before the table") << nl << 0 << 2001 << "BE" << "BE" << slashes << fixedDays + ",21/07,11/11,11/07" << dutchTitles << QVariantList() << false << false;
        QTest::newRow("LU 2004") << nl << 0 << 2004 << "LU" << "LU" << slashes << fixedDays + ",23/06,11/04,20/05,30/05" << dutchTitles << QVariantList() << false << false;
        QTest::newRow("NL 2004: value to the day, no highest date") << nl << 0 << 2004 << "NL" << "NL" << slashes << fixedDays << dutchTitles << QVariantList { true, false } << false << false;
        QTest::newRow("lower case is another country") << nl << 0 << 2004 << "be" << "be" << slashes << fixedDays << dutchTitles << QVariantList() << false << false;
        QTest::newRow("first two characters count") << nl << 0 << 2004 << "BEL" << "BEL" << slashes << fixedDays + ",21/07,11/11,11/07,11/04,20/05,30/05" << dutchTitles << QVariantList() << false << false;
        QTest::newRow("empty becomes BE") << nl << 0 << 2004 << "" << "BE" << slashes << fixedDays + ",21/07,11/11,11/07,11/04,20/05,30/05" << dutchTitles << QVariantList() << false << false;
        QTest::newRow("points as separator") << "de_DE" << 30000 << 2004 << "LU" << "LU" << "dd.mm.yyyy" << fixedDays + ",23/06,11/04,20/05,30/05" << " [LL 31000 ?] " << QVariantList() << false << false;
        QTest::newRow("2006 BE development: the notice") << nl << 0 << 2006 << "BE" << "BE" << slashes << fixedDays + ",21/07,11/11,11/07" << dutchTitles << QVariantList() << true << true;
        QTest::newRow("2006 NL development: no notice") << nl << 0 << 2006 << "NL" << "NL" << slashes << fixedDays << dutchTitles << QVariantList() << true << false;
        QTest::newRow("2005 BE development: no notice") << nl << 0 << 2005 << "BE" << "BE" << slashes << fixedDays + ",21/07,11/11,11/07,27/03,05/05,15/05" << dutchTitles << QVariantList() << true << false;
        QTest::newRow("2007 BE development: no notice") << nl << 0 << 2007 << "BE" << "BE" << slashes << fixedDays + ",21/07,11/11,11/07" << dutchTitles << QVariantList() << true << false;
        // clang-format on
    }
    void setDText()
    {
        QFETCH(QString, locale);
        QFETCH(int, offset);
        QFETCH(int, year);
        QFETCH(QString, country);
        QFETCH(QString, format);
        QFETCH(bool, development);
        const auto machine = installDateMachine(locale, noon(year, 3, 15));
        QTemporaryDir systemFolder;
        QFile marker(systemFolder.filePath(QStringLiteral("QorVelChip.dll")));
        QVERIFY(!development || marker.open(QIODevice::WriteOnly));
        machine->setSystemDirectory(development ? systemFolder.path() : QString());
        clsqorGenLib lib;
        lib.setProperty("Offset", offset);
        DateControl control;
        QFETCH(QVariantList, flags);
        QVariantList args
            = QVariantList { QVariant::fromValue<QObject *>(&control), country } + flags;
        lib.Invoke(QStringLiteral("SetDText"), args);
        QTEST(args.at(1).toString(), "countryAfter");
        QCOMPARE(control.property("MinDate"), QVariant(QStringLiteral("1/1/1900")));
        QCOMPARE(control.property("Format").toString(), format);
        QCOMPARE(control.property("DisplayFormat").toString(), format);
        QObject *calendar = control.property("Calendar").value<QObject *>();
        QTEST(calendar->property("Holidays").toString(), "holidays");
        QTEST(calendar->property("WeekTitles").toString(), "weekTitles");
        const QVariant today = day(year, 3, 15);
        QCOMPARE(control.property("Value"), flags.value(0, false).toBool() ? today : QVariant());
        QCOMPARE(control.property("MaxDate"), flags.value(1, true).toBool() ? today : QVariant());
        QFETCH(bool, notice);
        const ShownEvent shown = MessageBoxShown { developmentNotice, 0, QString(), 1 };
        QCOMPARE(machine->shown(), notice ? QList<ShownEvent> { shown } : QList<ShownEvent>());
    }

    // A control without the properties, or none at all, is set as far as it goes.
    void setDTextSkipsWhatTheControlLacks()
    {
        installDateMachine(QStringLiteral("nl_BE"), noon(2004, 1, 1));
        clsqorGenLib lib;
        QObject plain;
        QString country;
        lib.SetDText(&plain, country);
        QCOMPARE(country, QStringLiteral("BE"));
        lib.SetDText(nullptr, country);
        HostObject bag;
        bag.assign(QStringLiteral("Format"), QString());
        lib.SetDText(&bag, country);
        QCOMPARE(bag.value(QStringLiteral("Format")).toString(), QStringLiteral("dd/mm/yyyy"));
    }
};

QTEST_GUILESS_MAIN(TestCalendarHelpers)
#include "tst_calendarhelpers.moc"
