#include "host/qt/calendarwidgetadapter.h"
#include "host/qt/dateeditadapter.h"
#include "host/qt/weektitledelegate.h"
#include "lib/clsqorgenlib.h"
#include "runtime/callbyname.h"
#include "runtime/runtimeerror.h"
#include "tests/common/errornumber.h"
#include "tests/common/recordingmachine.h"

#include <QCalendarWidget>
#include <QCoreApplication>
#include <QDateEdit>
#include <QDir>
#include <QTableView>
#include <QTest>
#include <QTextCharFormat>

using namespace qor;

namespace {

std::shared_ptr<RecordingPlatform> machineAt(const QDate &today, const QString &locale)
{
    auto machine = test::installRecordingPlatform(locale);
    machine->setNow(QDateTime(today, QTime(10, 0), Qt::UTC));
    machine->setSystemDirectory(QString()); // a customer station
    return machine;
}

bool isMarked(QCalendarWidget *calendar, const QDate &date)
{
    return calendar->dateTextFormat(date).foreground().color() == QColor(Qt::red);
}

} // namespace

class TestDateEditAdapter : public QObject
{
    Q_OBJECT

private slots:
    // SetDText on a real field: the range, the format and the marked days. The
    // values themselves are checked on the model date control.
    void setDTextOnARealField()
    {
        const QDate today(2004, 5, 25);
        machineAt(today, QStringLiteral("nl_BE"));
        QDateEdit field;
        DateEditAdapter adapter(&field);
        clsqorGenLib lib;
        lib.Invoke(QStringLiteral("SetDText"),
            { QVariant::fromValue<QObject *>(&adapter), QStringLiteral("BE"), true });
        QCOMPARE(field.minimumDate(), QDate(1900, 1, 1));
        QCOMPARE(field.maximumDate(), today);
        QCOMPARE(field.date(), today);
        QCOMPARE(field.displayFormat(), QStringLiteral("dd/MM/yyyy"));
        QCalendarWidget *calendar = field.calendarWidget();
        calendar->setCurrentPage(today.year(), today.month());
        for (const QDate &date : { QDate(2004, 5, 20), QDate(2004, 7, 11), QDate(2003, 11, 11) })
            QVERIFY2(isMarked(calendar, date), qPrintable(date.toString()));
        QVERIFY(!isMarked(calendar, QDate(2004, 5, 21)));
        QCOMPARE(adapter.calendarAdapter()->titleOf(Qt::Monday), QStringLiteral("ma"));
    }

    // Beyond the classic table the calendar marks the computed holidays of
    // the year it shows, and follows the page to other years.
    void computedHolidaysFollowThePage()
    {
        machineAt(QDate(2024, 3, 15), QStringLiteral("nl_BE"));
        QDateEdit field;
        DateEditAdapter adapter(&field);
        adapter.calendarAdapter()->setCountry(QStringLiteral("BE"));
        clsqorGenLib lib;
        lib.SetDText(&adapter);
        QCalendarWidget *calendar = field.calendarWidget();
        calendar->setCurrentPage(2024, 5);
        QVERIFY(isMarked(calendar, QDate(2024, 5, 9))); // Ascension
        QVERIFY(!isMarked(calendar, QDate(2030, 6, 10)));
        calendar->setCurrentPage(2030, 6);
        QVERIFY(isMarked(calendar, QDate(2030, 6, 10))); // Whit Monday 2030
        QVERIFY(!isMarked(calendar, QDate(2024, 5, 9))); // years out of sight are cleared
    }

    void titlesFollowTheFirstDayOfWeek_data()
    {
        QTest::addColumn<int>("firstDay");
        QTest::addColumn<bool>("weekNumbers");
        QTest::addColumn<QString>("row"); // the title row, left to right
        // clang-format off
        QTest::newRow("Sunday first") << int(Qt::Sunday) << false << "zo,ma,di,wo,do,vr,za";
        QTest::newRow("Monday first with week numbers") << int(Qt::Monday) << true << ",ma,di,wo,do,vr,za,zo";
        // clang-format on
    }
    void titlesFollowTheFirstDayOfWeek()
    {
        QFETCH(int, firstDay);
        QFETCH(bool, weekNumbers);
        QCalendarWidget calendar;
        calendar.setFirstDayOfWeek(Qt::DayOfWeek(firstDay));
        calendar.setVerticalHeaderFormat(
            weekNumbers ? QCalendarWidget::ISOWeekNumbers : QCalendarWidget::NoVerticalHeader);
        CalendarWidgetAdapter adapter(&calendar);
        adapter.setProperty("WeekTitles", QStringLiteral("zo,ma,di,wo,do,vr,za"));
        auto *view = calendar.findChild<QTableView *>(QStringLiteral("qt_calendar_calendarview"));
        QVERIFY(view);
        auto *delegate = qobject_cast<WeekTitleDelegate *>(view->itemDelegateForRow(0));
        QVERIFY(delegate);
        QStringList row;
        for (int column = 0; column < view->model()->columnCount(); ++column)
            row.append(delegate->titleOf(delegate->dayOfColumn(column)));
        QTEST(row.join(QLatin1Char(',')), "row");
        // The model's own title row holds the same days in the same places.
        const QString monday = view->model()->index(0, weekNumbers ? 1 : 0).data().toString();
        QCOMPARE(delegate->dayOfColumn(weekNumbers ? 1 : 0), firstDay);
        QCOMPARE(monday, calendar.locale().dayName(firstDay, QLocale::ShortFormat));
        // Six titles are no week: the calendar keeps its own.
        adapter.setProperty("WeekTitles", QStringLiteral("a,b,c,d,e,f"));
        QCOMPARE(adapter.titleOf(Qt::Monday), QString());
    }

    void oddValuesByName_data()
    {
        QTest::addColumn<QString>("property");
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("error");
        // clang-format off
        QTest::newRow("date text") << "Value" << QVariant(QStringLiteral("1/02/2003")) << 0;
        QTest::newRow("no date") << "Value" << QVariant(QStringLiteral("morgen")) << 13;
        QTest::newRow("odd holidays") << "Holidays" << QVariant(QStringLiteral("31/02,x/y,,99/99,1/1/1,29/02")) << 0;
        QTest::newRow("odd format") << "Format" << QVariant(QStringLiteral("dd 'x' mm q yyyy")) << 0;
        // clang-format on
    }
    void oddValuesByName()
    {
        QFETCH(QString, property);
        QFETCH(QVariant, value);
        machineAt(QDate(2024, 3, 15), QStringLiteral("nl_BE"));
        QDateEdit field;
        DateEditAdapter adapter(&field);
        QObject *target = property == QLatin1String("Holidays") ? adapter.calendar() : &adapter;
        QTEST(test::errorNumber([&] {
            qor::setProperty(
                target, property.toLatin1().constData(), value, platform().regionalSettings());
        }),
            "error");
    }

    void fieldGone()
    {
        auto *field = new QDateEdit;
        DateEditAdapter adapter(field);
        delete field;
        QCOMPARE(test::errorNumber([&] { adapter.value(); }), 91);
        QCOMPARE(test::errorNumber([&] { adapter.setFormat(QStringLiteral("dd/mm/yy")); }), 91);
    }

    // The picture of the calendar after SetDText: May 2004 in Dutch, the
    // holidays in red.
    void screenshot()
    {
        machineAt(QDate(2004, 5, 25), QStringLiteral("nl_BE"));
        QDateEdit field;
        DateEditAdapter adapter(&field);
        clsqorGenLib lib;
        QString country = QStringLiteral("BE");
        lib.SetDText(&adapter, country, true, true);
        QCalendarWidget *calendar = field.calendarWidget();
        calendar->setCurrentPage(2004, 5);
        calendar->resize(360, 240);
        // The calendar lives in the field's closed pop-up: render it as it would show.
        calendar->ensurePolished();
        const QImage picture = calendar->grab().toImage();
        QVERIFY(!picture.isNull());
        const QString path = QDir(QCoreApplication::applicationDirPath())
                                 .filePath(QStringLiteral("dateedit-calendar.png"));
        QVERIFY(picture.save(path));
        // Some pixel of the picture is the holiday red.
        bool red = false;
        for (int y = 0; y < picture.height() && !red; ++y)
            for (int x = 0; x < picture.width() && !red; ++x)
                red = picture.pixelColor(x, y) == QColor(Qt::red);
        QVERIFY(red);
    }
};

QTEST_MAIN(TestDateEditAdapter)
#include "tst_dateeditadapter.moc"
