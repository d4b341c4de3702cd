#include "host/application.h"
#include "host/qt/mainwindowadapter.h"
#include "lib/clsqorgenlib.h"
#include "lib/frame/modgenlib.h"
#include "platform/recordingplatform.h"
#include "runtime/callbyname.h"

#include "tests/common/recordingmachine.h"

#include <QCalendarWidget>
#include <QCoreApplication>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

using namespace qor;

namespace {

const QColor blue(0x21, 0x92, 0xB7); // &HB79221

// Twips to pixels at the recording screen's 15 twips per pixel.
QRect pixels(int left, int top, int width, int height)
{
    return QRect(
        qRound(left / 15.0), qRound(top / 15.0), qRound(width / 15.0), qRound(height / 15.0));
}

} // namespace

// The house layout on a real main window, and a screenshot of it.
class TestMainWindowAdapter : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> machine;

private slots:
    void init()
    {
        machine = test::installRecordingPlatform(QStringLiteral("nl_BE"));
        machine->setNow(QDateTime(QDate(2026, 11, 23), QTime(9, 0)));
    }

    void setDeskTopDressesARealWindow()
    {
        QMainWindow window;
        window.setWindowTitle(QStringLiteral("Kassa"));
        window.resize(800, 600);
        auto *desk = new QWidget(&window);
        window.setCentralWidget(desk);
        // The host's menu frame with its buttons, made in its designer.
        auto *frame = new QGroupBox(desk);
        frame->setObjectName(QStringLiteral("FrameMenu"));
        frame->resize(330, 320);
        auto *buttons = new QVBoxLayout(frame);
        for (const char *caption : { "Verkoop", "Kasboek", "Klanten", "Artikels", "Leveranciers",
                 "Facturen", "Instellingen", "Einde" })
            buttons->addWidget(new QPushButton(QLatin1String(caption), frame));
        // A month view sized to its outline, as on the classic form.
        auto *month = new QCalendarWidget(desk);
        month->setObjectName(QStringLiteral("MonthView"));
        QFont small = month->font();
        small.setPixelSize(9);
        month->setFont(small);
        month->resize(160, 152);
        MainWindowAdapter adapter(&window);
        qor::setProperty(&adapter, "MaxButton", false, machine->regionalSettings());
        qor::setProperty(&adapter, "Moveable", false, machine->regionalSettings());
        qor::setProperty(&adapter, "StartUpPosition", 2, machine->regionalSettings());
        Application application;
        application.setProperty("Major", 3);
        application.setProperty("Minor", 1);
        application.setProperty("Revision", 14);
        modGenLib().application = &application;

        clsqorGenLib lib;
        lib.SetDeskTop(&adapter);
        modGenLib().application = nullptr;
        QVERIFY(machine->shown().isEmpty());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.windowState() & Qt::WindowMaximized, Qt::WindowMaximized);

        QCOMPARE(frame->pos(), pixels(6120, 3060, 0, 0).topLeft());
        QVERIFY(frame->title().isEmpty());
        auto *calendar = window.findChild<QCalendarWidget *>(QStringLiteral("MonthView"));
        QVERIFY(calendar);
        QCOMPARE(calendar->pos(), pixels(2590, 4700, 0, 0).topLeft());
        QCOMPARE(calendar->selectedDate(), QDate(2026, 11, 23));
        QCOMPARE(calendar->verticalHeaderFormat(), QCalendarWidget::ISOWeekNumbers);
        QCOMPARE(window.findChild<QWidget *>(QStringLiteral("ShapeMenu7"))->geometry(),
            pixels(6000, 3000, 330 * 15 + 245, 320 * 15 + 125));
        auto *label = window.findChild<QLabel *>(QStringLiteral("LabelVersie"));
        QCOMPARE(label->text(), QStringLiteral("Versie 3.1 Rev. 14"));
        const QRect outline = window.findChild<QWidget *>(QStringLiteral("ShapeMenu7"))->geometry();
        QVERIFY(qAbs(label->geometry().right() - outline.right()) <= 1);
        QCOMPARE(label->y(), outline.bottom() + 1 + 4);

        const QImage shot = window.grab().toImage();
        const QString folder
            = QCoreApplication::applicationDirPath() + QStringLiteral("/screenshots");
        QDir().mkpath(folder);
        QVERIFY(shot.save(folder + QStringLiteral("/menuform-house-layout.png")));
        // The big square in the strong colour, in front of the desk; the calendar's
        // outline filled white inside its border.
        QCOMPARE(shot.pixelColor(desk->mapTo(&window, QPoint(280, 60))), blue);
        QWidget *outlineOfMonth = window.findChild<QWidget *>(QStringLiteral("ShapeMenu6"));
        const QImage outlineShot = outlineOfMonth->grab().toImage();
        QCOMPARE(outlineShot.pixelColor(outlineShot.rect().center()), QColor(Qt::white));
        QCOMPARE(outlineShot.pixelColor(0, 0), blue);
    }
};

QTEST_MAIN(TestMainWindowAdapter)
#include "tst_mainwindowadapter.moc"
