#include "lib/frame/messageboxlogic.h"
#include "input/editing.h"
#include "lib/frame/modgenlib.h"
#include "platform/qt/qtplatform.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace qor;

namespace {

// Runs an action on the next modal window once it is active.
void whenModalIsActive(std::function<void(QWidget *)> action)
{
    QTimer::singleShot(0, [action] {
        QTRY_VERIFY(QApplication::activeModalWidget() != nullptr);
        QWidget *window = QApplication::activeModalWidget();
        QVERIFY(QTest::qWaitForWindowActive(window));
        action(window);
    });
}

} // namespace

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

    void messageBoxAnswersKeys_data()
    {
        QTest::addColumn<int>("style");
        QTest::addColumn<char>("key");
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("button");
        // clang-format off
        QTest::newRow("yes no answered with n") << 36 << 'n' << 7 << "cmdYes";
        QTest::newRow("ok answered with escape") << 0 << '\x1b' << 1 << "cmdOK";
        // clang-format on
    }
    void messageBoxAnswersKeys()
    {
        QFETCH(int, style);
        QFETCH(char, key);
        QFETCH(QString, button);
        QString seenCaption;
        QString seenPrompt;
        whenModalIsActive([&](QWidget *window) {
            seenCaption = window->windowTitle();
            seenPrompt = window->findChild<QLabel *>(QStringLiteral("Label"))->text();
            QVERIFY(window->findChild<QPushButton *>(button));
            if (key == '\x1b')
                QTest::keyClick(window, Qt::Key_Escape);
            else
                QTest::keyClick(window, key);
        });
        QTEST(showMessageBoxE(QStringLiteral("Eerste\rTweede"), style, QString()), "result");
        QCOMPARE(seenPrompt, QStringLiteral("Eerste\nTweede"));
        QCOMPARE(seenCaption, MessageBoxLogic::prepare(QString(), style, QString()).caption);
    }

    void messageBoxButtonClick()
    {
        whenModalIsActive([](QWidget *window) {
            auto *no = window->findChild<QPushButton *>(QStringLiteral("cmdNo"));
            QCOMPARE(no->text(), QStringLiteral("Nee"));
            QTest::mouseClick(no, Qt::LeftButton);
        });
        QCOMPARE(showMessageBoxE(QStringLiteral("?"), 4, QStringLiteral("Titel")), 7);
    }

    void inputBoxTypedTextAndCancel()
    {
        InputBoxERequest request;
        request.prompt = QStringLiteral("Naam ?");
        request.defaultValue = QStringLiteral("x");
        request.maxLength = 5;
        request.cancelCaption = QStringLiteral("Annuleren");
        whenModalIsActive([](QWidget *window) {
            auto *text = window->findChild<QLineEdit *>(QStringLiteral("Text"));
            text->clear();
            QTest::keyClicks(text, QStringLiteral("abcdefgh"));
            QTest::keyClick(text, Qt::Key_Return);
        });
        const InputBoxEAnswer typed = machine->inputBoxE(request);
        QVERIFY(!typed.cancelled);
        QCOMPARE(typed.text, QStringLiteral("abcde"));

        whenModalIsActive([](QWidget *window) { QTest::keyClick(window, Qt::Key_Escape); });
        QVERIFY(machine->inputBoxE(request).cancelled);
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
        QTest::newRow("top") << QRect(0, 30, 1024, 738) << QRect(0, 0, 1024, 30);
        QTest::newRow("left") << QRect(60, 0, 964, 768) << QRect(0, 0, 60, 768);
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
