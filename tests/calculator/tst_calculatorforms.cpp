#include "host/qt/lineeditadapter.h"
#include "lib/clsqorgenlib.h"
#include "lib/frame/modgenlib.h"
#include "platform/qt/qtplatform.h"
#include "tests/common/userinput.h"

#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>

using namespace qor;
using test::whenModalIsActive;

namespace {

QString displayOf(QWidget *calculator)
{
    return calculator->findChild<QLabel *>(QStringLiteral("lblDisplay"))->text().trimmed();
}

QPushButton *button(QWidget *window, const QString &name)
{
    return window->findChild<QPushButton *>(name);
}

// The VAT note on the screen, or none.
QWidget *shownNote()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("frmBtwToolTip") && window->isVisible())
            return window;
    }
    return nullptr;
}

// Screenshots go beside the test program, in the build folder.
void saveScreenshot(QWidget *window, const QString &file)
{
    const QString path = QDir(QCoreApplication::applicationDirPath()).filePath(file);
    QVERIFY(window->grab().save(path));
}

} // namespace

class TestCalculatorForms : public QObject
{
    Q_OBJECT

    std::shared_ptr<QtPlatform> machine;

private slots:
    void initTestCase()
    {
        machine = std::make_shared<QtPlatform>();
        machine->setRegionalSettings(RegionalSettings::fromLocale(QStringLiteral("nl_BE")));
        Platform::install(machine);
    }
    void init() { ModGenLib::reset(); }

    // Typed keys reach the calculator; a second enter inserts the sum.
    void keysTypedIntoTheCalculator()
    {
        QString seen;
        whenModalIsActive(QStringLiteral("frmCalculator"), [&](QWidget *calculator) {
            QTest::keyClicks(calculator, QStringLiteral("+5"));
            QTest::keyClick(calculator, Qt::Key_Equal);
            seen = displayOf(calculator);
            QTest::keyClick(calculator, Qt::Key_Return);
            QTest::keyClick(calculator, Qt::Key_Enter);
        });
        clsqorGenLib lib;
        QCOMPARE(lib.ShowCalculator(100), 105.0);
        QCOMPARE(seen, QStringLiteral("105"));
        QCOMPARE(modGenLib().calculatorRegister, 105.0);
    }

    void vatKeysAndTheirMirrors()
    {
        clsqorGenLib lib;
        lib.setProperty("BtwTar1", 2100);
        lib.setProperty("BtwTar2", 600);
        QStringList captions;
        QString afterVat;
        whenModalIsActive(QStringLiteral("frmCalculator"), [&](QWidget *calculator) {
            for (const char *name : { "cmdBTW1", "cmdBTW2", "cmdKey18", "cmdKey19" }) {
                QPushButton *key = button(calculator, QLatin1String(name));
                captions.append(key->isVisible() ? key->text() : QStringLiteral("hidden"));
            }
            saveScreenshot(calculator, QStringLiteral("calculator.png"));
            QTest::mouseClick(button(calculator, QStringLiteral("cmdKey18")), Qt::LeftButton);
            afterVat = displayOf(calculator);
            QTest::mouseClick(button(calculator, QStringLiteral("cmdInsert")), Qt::LeftButton);
        });
        QCOMPARE(lib.ShowCalculator(100), 121.0);
        QCOMPARE(captions, QStringList({ "21,0 %", "6,0 %", "21,0 %", "6,0 %" }));
        QCOMPARE(afterVat, QStringLiteral("121"));
    }

    // The help card opens by its button or F1 and takes the next key or click
    // itself; the calculator stays open with its display.
    void helpCardTakesTheKey_data()
    {
        QTest::addColumn<bool>("openedByF1");
        QTest::addColumn<QString>("closedBy"); // a key name or "click"
        QTest::newRow("opened by its button, closed by escape") << false << "Esc";
        QTest::newRow("opened by F1, closed by a click") << true << "click";
    }
    void helpCardTakesTheKey()
    {
        QFETCH(bool, openedByF1);
        QFETCH(QString, closedBy);
        clsqorGenLib lib;
        QString title;
        bool stillOpen = false;
        QString display;
        whenModalIsActive(QStringLiteral("frmCalculator"), [&](QWidget *calculator) {
            QTest::keyClicks(calculator, QStringLiteral("12"));
            whenModalIsActive(QStringLiteral("frmCalculatorHelp"), [&](QWidget *help) {
                title = help->windowTitle();
                if (closedBy == QLatin1String("click"))
                    QTest::mouseClick(
                        help->findChild<QLabel *>(QStringLiteral("lblExplain3")), Qt::LeftButton);
                else
                    test::typeKeys(help, QLatin1Char('{') + closedBy + QLatin1Char('}'));
            });
            if (openedByF1)
                QTest::keyClick(calculator, Qt::Key_F1);
            else
                QTest::mouseClick(button(calculator, QStringLiteral("cmdHelp")), Qt::LeftButton);
            stillOpen = calculator->isVisible();
            display = displayOf(calculator);
            QTest::keyClick(calculator, Qt::Key_Insert);
        });
        QCOMPARE(lib.ShowCalculator(5), 12.0);
        QCOMPARE(title, QStringLiteral("  Help bij Velantis Calculator"));
        QVERIFY(stillOpen);
        QCOMPARE(display, QStringLiteral("12"));
    }

    void draggingTheDisplayMovesTheWindow_data()
    {
        QTest::addColumn<QList<int>>("between");
        QTest::newRow("press, move, release") << QList<int>();
        // Events of other kinds reach the display's filter as well and are no mouse events.
        QTest::newRow("enter, leave and a repaint in between") << QList<int> { QEvent::Enter,
            QEvent::Leave, QEvent::UpdateRequest, QEvent::StyleChange };
    }

    void draggingTheDisplayMovesTheWindow()
    {
        QFETCH(QList<int>, between);
        clsqorGenLib lib;
        QPoint moved;
        whenModalIsActive(QStringLiteral("frmCalculator"), [&](QWidget *calculator) {
            QWidget *display = calculator->findChild<QLabel *>(QStringLiteral("lblDisplay"));
            const QPoint before = calculator->pos();
            QTest::mousePress(display, Qt::LeftButton, {}, QPoint(5, 5));
            for (int type : between) {
                QEvent other { QEvent::Type(type) };
                QApplication::sendEvent(display, &other);
            }
            QMouseEvent drag(QEvent::MouseMove, QPointF(45, 35),
                display->mapToGlobal(QPointF(45, 35)), Qt::NoButton, Qt::LeftButton,
                Qt::NoModifier);
            QApplication::sendEvent(display, &drag);
            QTest::mouseRelease(display, Qt::LeftButton, {}, QPoint(45, 35));
            moved = calculator->pos() - before;
            // Escape gives the start back, whatever was typed.
            QTest::keyClicks(calculator, QStringLiteral("9-1="));
            QTest::keyClick(calculator, Qt::Key_Escape);
        });
        QCOMPARE(lib.ShowCalculator(7), 7.0);
        QCOMPARE(moved, QPoint(40, 30));
    }

    // The note shows beside its field (an adapter or the widget itself), stays
    // on the screen and closes itself; it is handed back at once.
    void vatNote_data()
    {
        QTest::addColumn<bool>("inTheCorner"); // the form at the screen's bottom right
        QTest::newRow("beside an adapter's field") << false;
        QTest::newRow("a widget in the corner") << true;
    }
    void vatNote()
    {
        QFETCH(bool, inTheCorner);
        const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
        QWidget form;
        form.setGeometry(inTheCorner ? QRect(area.right() - 60, area.bottom() - 20, 60, 40)
                                     : QRect(50, 50, 300, 100));
        QLineEdit field(&form);
        field.setGeometry(inTheCorner ? QRect(0, 0, 60, 40) : QRect(10, 10, 120, 24));
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        LineEditAdapter adapter(&field, &field);
        QObject *anchor = inTheCorner ? static_cast<QObject *>(&field) : &adapter;
        platform().showNote({ QStringLiteral(" + 21 % BTW toevoegen "), anchor });
        QWidget *note = shownNote();
        QVERIFY(note);
        QCOMPARE(note->findChild<QLabel *>()->text(), QStringLiteral(" + 21 % BTW toevoegen "));
        QVERIFY(note->width() > note->findChild<QLabel *>()->sizeHint().width());
        QVERIFY(area.contains(note->geometry()));
        const QRect fieldOnScreen(field.mapToGlobal(QPoint(0, 0)), field.size());
        if (!inTheCorner) {
            QVERIFY(note->x() > fieldOnScreen.right());
            QCOMPARE(note->y(), fieldOnScreen.top());
        }
        QPointer<QWidget> watched(note);
        QTRY_VERIFY_WITH_TIMEOUT(watched.isNull(), 3000);
    }
};

QTEST_MAIN(TestCalculatorForms)
#include "tst_calculatorforms.moc"
