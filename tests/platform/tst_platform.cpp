#include "platform/coreplatform.h"

#include <QTest>

using namespace qor;

namespace {

// A clock that only tells one moment.
class FixedClock : public Clock
{
public:
    QDateTime now() const override { return QDateTime(QDate(2001, 2, 3), QTime(4, 5, 6)); }
    RegionalSettings regionalSettings() const override { return {}; }
};

} // namespace

// Which object answers a role: the thread's platform, or the role installed on
// its own; and the work area a note or form is kept within: the desktop without
// a taskbar along a whole edge (a bar that is not along a whole edge takes nothing).
class TestPlatform : public QObject
{
    Q_OBJECT

private slots:
    void cleanup()
    {
        Clock::install(nullptr);
        Platform::install(nullptr);
    }

    void roleAnswerer_data()
    {
        QTest::addColumn<bool>("ownClock");
        QTest::addColumn<bool>("givenBack");
        QTest::addColumn<bool>("platformAfterwards");
        QTest::addColumn<bool>("fakeAnswers");
        QTest::newRow("nothing installed: the platform") << false << false << false << false;
        QTest::newRow("a clock of its own answers") << true << false << false << true;
        QTest::newRow("a clock given back: the platform again") << true << true << false << false;
        QTest::newRow("a platform installed later leaves the clock in front")
            << true << false << true << true;
    }
    void roleAnswerer()
    {
        QFETCH(bool, ownClock);
        QFETCH(bool, givenBack);
        QFETCH(bool, platformAfterwards);
        auto platform = std::make_shared<CorePlatform>();
        Platform::install(platform);
        auto clock = std::make_shared<FixedClock>();
        if (ownClock)
            Clock::install(clock);
        if (givenBack)
            QCOMPARE(Clock::install(nullptr), clock);
        if (platformAfterwards)
            Platform::install(std::make_shared<CorePlatform>());
        QFETCH(bool, fakeAnswers);
        QCOMPARE(&Clock::current() == clock.get(), fakeAnswers);
        QCOMPARE(Clock::current().now() == clock->now(), fakeAnswers);
        // The other roles stay with the platform.
        QCOMPARE(&FileSystem::current(), static_cast<FileSystem *>(&Platform::current()));
    }

    void workArea_data()
    {
        QTest::addColumn<QPoint>("origin");
        QTest::addColumn<QRect>("taskbar"); // null: none
        QTest::addColumn<QRect>("area");
        const QPoint zero(0, 0);
        // clang-format off
        QTest::newRow("no taskbar") << zero << QRect() << QRect(0, 0, 1280, 1024);
        QTest::newRow("bar at the bottom") << zero << QRect(0, 984, 1280, 40) << QRect(0, 0, 1280, 984);
        QTest::newRow("bar at the top") << zero << QRect(0, 0, 1280, 30) << QRect(0, 30, 1280, 994);
        QTest::newRow("bar at the left") << zero << QRect(0, 0, 60, 1024) << QRect(60, 0, 1220, 1024);
        QTest::newRow("bar at the right") << zero << QRect(1220, 0, 60, 1024) << QRect(0, 0, 1220, 1024);
        QTest::newRow("bar wider than the desktop") << zero << QRect(-10, 984, 1300, 60) << QRect(0, 0, 1280, 984);
        QTest::newRow("floating bar") << zero << QRect(100, 500, 400, 40) << QRect(0, 0, 1280, 1024);
        QTest::newRow("bar off the desktop") << zero << QRect(2000, 0, 60, 1024) << QRect(0, 0, 1280, 1024);
        QTest::newRow("desktop not at 0,0") << QPoint(-1280, 0) << QRect(-1280, 984, 1280, 40) << QRect(-1280, 0, 1280, 984);
        // clang-format on
    }
    void workArea()
    {
        QFETCH(QPoint, origin);
        QFETCH(QRect, taskbar);
        QFETCH(QRect, area);
        ScreenInfo screen;
        screen.width = 1280;
        screen.height = 1024;
        screen.origin = origin;
        if (!taskbar.isNull())
            screen.taskbar = taskbar;
        QCOMPARE(screen.workArea(), area);
    }
};

QTEST_GUILESS_MAIN(TestPlatform)
#include "tst_platform.moc"
