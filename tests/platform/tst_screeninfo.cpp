#include "platform/platform.h"

#include <QTest>

using namespace qor;

// The work area a note or form is kept within: the desktop without a taskbar
// along a whole edge; a bar that is not along a whole edge takes nothing.
class TestScreenInfo : public QObject
{
    Q_OBJECT

private slots:
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

QTEST_APPLESS_MAIN(TestScreenInfo)
#include "tst_screeninfo.moc"
