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

// Which object answers a role: the thread's platform, or the role installed on its own.
class TestPlatformRoles : public QObject
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
};

QTEST_GUILESS_MAIN(TestPlatformRoles)
#include "tst_platformroles.moc"
