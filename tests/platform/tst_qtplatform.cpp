#include "input/editing.h"
#include "lib/frame/messageboxlogic.h"
#include "lib/frame/modgenlib.h"
#include "platform/qt/qtplatform.h"
#include "tests/common/userinput.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace qor;

class TestQtPlatform : public QObject
{
    Q_OBJECT

    std::shared_ptr<QtPlatform> machine;

private slots:
    void initTestCase()
    {
        machine = std::make_shared<QtPlatform>();
        Platform::install(machine);
    }
    void init()
    {
        ModGenLib::reset();
        // No sound folder here: the boxes would first show the missing-sound notice.
        modGenLib().soundOff = true;
    }

    // Keys, scans and the input box are the message box tests' business; a click
    // on a button answers too.
    void messageBoxButtonClick()
    {
        test::whenModalIsActive([](QWidget *window) {
            auto *no = window->findChild<QPushButton *>(QStringLiteral("cmdNo"));
            QCOMPARE(no->text(), QStringLiteral("Nee"));
            QTest::mouseClick(no, Qt::LeftButton);
        });
        QCOMPARE(showMessageBoxE(QStringLiteral("?"), 4, QStringLiteral("Titel")), 7);
    }

    void keysReachTheFocusWidget()
    {
        QLineEdit field;
        field.show();
        QVERIFY(QTest::qWaitForWindowActive(&field));
        field.setFocus();
        sendAKey('A');
        sendAKey('7');
        QTRY_COMPARE(field.text(), QStringLiteral("a7"));
    }

    // The largest strip between the screen and its available area is the taskbar.
    void taskbarOfTheScreen_data()
    {
        QTest::addColumn<QRect>("available");
        QTest::addColumn<QRect>("taskbar"); // an empty rectangle: none
        // clang-format off
        QTest::newRow("none") << QRect(0, 0, 1024, 768) << QRect();
        QTest::newRow("bottom") << QRect(0, 0, 1024, 738) << QRect(0, 738, 1024, 30);
        QTest::newRow("right") << QRect(0, 0, 964, 768) << QRect(964, 0, 60, 768);
        QTest::newRow("panel on top, larger dock at the left") << QRect(80, 24, 944, 744) << QRect(0, 0, 80, 768);
        QTest::newRow("panel on top, small dock at the bottom") << QRect(0, 40, 1024, 718) << QRect(0, 0, 1024, 40);
        // clang-format on
    }
    void taskbarOfTheScreen()
    {
        QFETCH(QRect, available);
        QFETCH(QRect, taskbar);
        const auto found = QtPlatform::taskbarOf(QRect(0, 0, 1024, 768), available);
        QCOMPARE(found.value_or(QRect()), taskbar);
    }

    void keepOnTopSetsTheWindowFlag()
    {
        QWidget window;
        auto *child = new QLineEdit(&window);
        window.show();
        machine->keepOnTop(nullptr, qint64(window.winId()));
        QVERIFY(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(window.isVisible());
        QWidget other;
        machine->keepOnTop(child, 0);
        QVERIFY(window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(!other.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
    }
};

QTEST_MAIN(TestQtPlatform)
#include "tst_qtplatform.moc"
