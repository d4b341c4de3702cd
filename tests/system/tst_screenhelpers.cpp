#include "host/application.h"
#include "host/control.h"
#include "host/form.h"
#include "host/menuform.h"
#include "lib/clsqorgenlib.h"
#include "runtime/callbyname.h"

#include "tests/common/errornumber.h"
#include "tests/common/recordingmachine.h"

#include <QTest>

using namespace qor;

namespace {

using Area = QList<int>; // Left, Top, Right, Bottom, Width, Height

Area areaOf(const qorGenLib::WindowSize &size)
{
    return { size.Left, size.Top, size.Right, size.Bottom, size.Width, size.Height };
}

ScreenInfo screenOf(int width, int height, int tppX, int tppY, std::optional<QRect> taskbar,
    QPoint cursor = QPoint())
{
    return ScreenInfo { width, height, tppX, tppY, taskbar, cursor, QPoint() };
}

QVariant value(QObject *object, const char *name)
{
    return getProperty(object, name);
}

QObject *child(QObject *form, const char *name)
{
    return value(form, name).value<QObject *>();
}

QObject *shapeOf(QObject *form, int i)
{
    return value(form, "ShapeMenu").toList().at(i).value<QObject *>();
}

QString messageText(const char *property, const char *required)
{
    return QStringLiteral("FrmMenu.%1 property should be :  %2")
        .arg(QLatin1String(property), QLatin1String(required));
}

} // namespace

class TestScreenHelpers : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> machine;

private slots:
    void init() { machine = test::installRecordingPlatform(); }

    void workArea_data()
    {
        QTest::addColumn<ScreenInfo>("screen");
        QTest::addColumn<Area>("area");
        // clang-format off
        QTest::newRow("taskbar at the bottom") << screenOf(1024, 768, 15, 15, QRect(0, 738, 1024, 30)) << Area { 0, 0, 15360, 11070, 15360, 11070 };
        QTest::newRow("taskbar at the top") << screenOf(1024, 768, 15, 15, QRect(0, 0, 1024, 30)) << Area { 0, 450, 15360, 11520, 15360, 11070 };
        QTest::newRow("taskbar at the left") << screenOf(1024, 768, 15, 15, QRect(0, 0, 60, 768)) << Area { 900, 0, 15360, 11520, 14460, 11520 };
        QTest::newRow("taskbar at the right") << screenOf(1024, 768, 15, 15, QRect(964, 0, 60, 768)) << Area { 0, 0, 14460, 11520, 14460, 11520 };
        QTest::newRow("no taskbar: the whole desktop") << screenOf(800, 600, 15, 15, std::nullopt) << Area { 0, 0, 12000, 9000, 12000, 9000 };
        QTest::newRow("width uses the vertical factor") << screenOf(1000, 500, 10, 20, QRect(0, 470, 1000, 30)) << Area { 0, 0, 10000, 9400, 20000, 9400 };
        QTest::newRow("left bar, non-square pixels") << screenOf(1000, 500, 10, 20, QRect(0, 0, 100, 500)) << Area { 1000, 0, 10000, 10000, 18000, 10000 };
        QTest::newRow("beyond a Long: overflow") << screenOf(200000000, 768, 15, 15, std::nullopt) << Area {};
        QTest::newRow("short left bar taken as at the top") << screenOf(1024, 768, 15, 15, QRect(0, 0, 60, 700)) << Area { 0, 10500, 15360, 11520, 15360, 1020 };
        // clang-format on
    }
    void workArea()
    {
        QFETCH(ScreenInfo, screen);
        machine->setScreen(screen);
        clsqorGenLib lib;
        Area area;
        const int error = test::errorNumber([&] { area = areaOf(lib.GetWorkArea()); });
        QTEST(area, "area");
        QCOMPARE(error, area.isEmpty() ? 6 : 0);
    }

    void mousePointer_data()
    {
        QTest::addColumn<QString>("xy");
        QTest::addColumn<QString>(
            "relative"); // "", "form", "control", "captionless", "orphan" (a control without form)
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("prompt"); // of the message shown, "" when none is
        // Cursor at (100, 50) pixels, 15 twips per pixel; the form at (1500, 600)
        // with a caption; the control at (300, 120) on it.
        // clang-format off
        QTest::newRow("lower-case y on the screen") << "y" << "" << 750 << "";
        QTest::newRow("Y on a form") << "Y" << "form" << 150 << "";
        QTest::newRow("X on a control: border off") << "x" << "control" << 1500 - 300 - 1500 - 45 << "";
        QTest::newRow("Y on a control: title bar and border off") << "Y" << "control" << 750 - 120 - 600 - 330 << "";
        QTest::newRow("Y on a control of a form without caption: no border off") << "Y" << "captionless" << 750 - 120 - 600 << "";
        QTest::newRow("a control without a form raises") << "X" << "orphan" << 0 << "";
        QTest::newRow("a wrong axis is told") << "Z" << "" << 0 << "Invalid XY-coordinate / GetMousePointerPos";
        // clang-format on
    }
    void mousePointer()
    {
        QFETCH(QString, xy);
        QFETCH(QString, relative);
        machine->setScreen(screenOf(1024, 768, 15, 15, std::nullopt, QPoint(100, 50)));
        Form form;
        form.setProperty("Left", 1500);
        form.setProperty("Top", 600);
        form.setProperty("Caption", relative == "captionless" ? QString() : QStringLiteral("Menu"));
        Control control;
        control.setProperty("Left", 300);
        control.setProperty("Top", 120);
        control.setProperty(
            "Parent", QVariant::fromValue<QObject *>(relative == "orphan" ? nullptr : &form));
        QObject *object = relative.isEmpty() ? nullptr
            : relative == "form"             ? static_cast<QObject *>(&form)
                                             : &control;
        clsqorGenLib lib;
        int result = 0;
        QCOMPARE(test::errorNumber([&] { result = lib.GetMousePointerPos(xy, object); }),
            relative == "orphan" ? 91 : 0);
        QTEST(result, "result");
        QFETCH(QString, prompt);
        const QVariantMap told { { "prompt", prompt }, { "buttons", 16 },
            { "title", "qorSoft General DLL" } };
        QCOMPARE(test::onlyMessage(*machine), prompt.isEmpty() ? QVariantMap() : told);
    }

    void units_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<float>("argument");
        QTest::addColumn<float>("result");
        QTest::addColumn<int>("error");
        // clang-format off
        QTest::newRow("10 mm") << "CTwips" << 10.0f << 566.9286f << 0;
        QTest::newRow("an inch is not exactly 25.4 mm") << "CMm" << 1440.0f << 25.40004f << 0;
        QTest::newRow("largest Single in mm overflows") << "CTwips" << 3.0e38f << 0.0f << 6;
        QTest::newRow("largest Single in twips fits") << "CMm" << 3.0e38f << float(3.0e38 / 56.69286) << 0;
        // clang-format on
    }
    void units()
    {
        QFETCH(QString, method);
        QFETCH(float, argument);
        QFETCH(float, result);
        QFETCH(int, error);
        clsqorGenLib lib;
        QVariant returned;
        QCOMPARE(test::errorNumber([&] { returned = lib.Invoke(method, { argument }); }), error);
        if (error == 0) {
            QCOMPARE(returned.typeId(), int(QMetaType::Float));
            QCOMPARE(returned.toFloat(), result);
        }
    }

    void formOnTopIsAskedOfThePlatform()
    {
        Form form;
        form.setProperty("hWnd", 4242);
        clsqorGenLib lib;
        QVERIFY(!lib.FormOnTop(&form).isValid());
        QCOMPARE(machine->actions(), QList<MachineAction> { FormKeptOnTop { &form } });
        QObject noWindow;
        QCOMPARE(test::errorNumber([&] { lib.FormOnTop(&noWindow); }), 438);
    }

    void setDeskTopTellsWrongDesignInOrder()
    {
        MenuForm form;
        form.setProperty("BorderStyle", 1);
        form.setProperty("ControlBox", false);
        form.setProperty("MinButton", false);
        form.setProperty("ShowInTaskbar", false);
        form.setProperty("StartUpPosition", 0);
        clsqorGenLib lib;
        lib.SetDeskTop(&form);
        QStringList prompts;
        for (const ShownEvent &shown : machine->shown()) {
            const auto *box = std::get_if<MessageBoxShown>(&shown);
            QVERIFY(box);
            QCOMPARE(box->buttons, 0);
            QCOMPARE(box->title, QString());
            prompts << box->prompt;
        }
        QCOMPARE(prompts,
            (QStringList { messageText("BorderStyle", "2 - Sizable"),
                messageText("ControlBox", "True"), messageText("MaxButton", "False"),
                messageText("MinButton", "True"), messageText("Moveable", "False"),
                messageText("ShowInTaskbar", "True"),
                messageText("StartupPosition", "2 - CenterScreen") }));
        QCOMPARE(value(&form, "WindowState").toInt(), 2);
    }

    void setDeskTopDressesTheForm_data()
    {
        QTest::addColumn<QString>("scheme");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("second");
        // clang-format off
        QTest::newRow("no scheme: blue") << "" << 12030497 << 15187546;
        QTest::newRow("scheme 17: orange") << "17" << 4358911 << 12440575;
        QTest::newRow("numeric value 17") << " 17.0abc" << 4358911 << 12440575;
        // clang-format on
    }
    void setDeskTopDressesTheForm()
    {
        QFETCH(QString, scheme);
        QFETCH(int, first);
        QFETCH(int, second);
        machine->setNow(QDateTime(QDate(2026, 11, 23), QTime(3, 0)));
        modGenLib().deskTopScheme = scheme;
        Application application;
        application.setProperty("Major", 4);
        application.setProperty("Minor", 12);
        application.setProperty("Revision", 7);
        modGenLib().application = &application;
        MenuForm form;
        form.setProperty("MaxButton", false);
        form.setProperty("Moveable", false);
        form.setProperty("StartUpPosition", 2);
        QObject *frame = child(&form, "FrameMenu");
        frame->setProperty("Width", 3000);
        frame->setProperty("Height", 2000);
        clsqorGenLib lib;
        lib.SetDeskTop(&form);
        QVERIFY(machine->shown().isEmpty());

        QObject *month = child(&form, "MonthView");
        QCOMPARE(value(month, "TitleBackColor").toInt(), first);
        QCOMPARE(value(month, "Value").toDate(), QDate(2026, 11, 23));

        // The places are fixed; the colours follow the scheme and the last shape the frame.
        const QMap<int, QList<int>> placements { { 0, { 4040, 720, 7100, 7100, first, first } },
            { 1, { 4400, 1200, 1095, 1095, second, second } },
            { 7, { 6000, 3000, 3245, 2125, first, 0xFFFFFF } } };
        for (auto it = placements.begin(); it != placements.end(); ++it) {
            QList<int> actual;
            for (const char *name :
                { "Left", "Top", "Width", "Height", "BorderColor", "FillColor" })
                actual << value(shapeOf(&form, it.key()), name).toInt();
            QCOMPARE(actual, it.value());
        }
        for (int i = 0; i < 8; ++i) {
            const QVariantList calls = static_cast<HostObject *>(shapeOf(&form, i))->calls();
            QCOMPARE(calls.size(), 2);
            QCOMPARE(calls.last().toMap().value("name").toString(), QStringLiteral("ZOrder"));
        }

        QObject *label = child(&form, "LabelVersie");
        QCOMPARE(value(label, "Caption").toString(), QStringLiteral("Versie 4.12 Rev. 7"));
        QCOMPARE(value(label, "ForeColor").toInt(), first);
        // Right-aligned under the frame's outline: 100 twips a character.
        QCOMPARE(value(label, "Left").toInt(), 6000 + 3245 - 1800);
        QCOMPARE(value(label, "Top").toInt(), 3000 + 2125 + 60);
        modGenLib().application = nullptr;
    }

    void setDeskTopWithoutChildrenRaises()
    {
        Form form;
        clsqorGenLib lib;
        QCOMPARE(test::errorNumber([&] { lib.SetDeskTop(&form); }), 438);
    }
};

QTEST_GUILESS_MAIN(TestScreenHelpers)
#include "tst_screenhelpers.moc"
