#include "host/qt/lineeditadapter.h"
#include "lib/clsqorgenlib.h"
#include "platform/recordingplatform.h"
#include "runtime/runtimeerror.h"

#include <QLineEdit>
#include <QTest>

using namespace qor;

class TestLineEditAdapter : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Platform::install(std::make_shared<RecordingPlatform>()); }

    void selEditOnARealField_data()
    {
        QTest::addColumn<bool>("startAtEnd");
        QTest::addColumn<QString>("selected");
        QTest::addColumn<int>("cursor");
        // clang-format off
        QTest::newRow("whole text selected") << false << "123,45" << 6;
        QTest::newRow("caret after the text") << true << "" << 6;
        // clang-format on
    }
    void selEditOnARealField()
    {
        QFETCH(bool, startAtEnd);
        QLineEdit field(QStringLiteral("123,45"));
        field.setCursorPosition(2);
        LineEditAdapter adapter(&field);
        clsqorGenLib lib;
        lib.Invoke(
            QStringLiteral("SelEdit"), { QVariant::fromValue<QObject *>(&adapter), startAtEnd });
        QTEST(field.selectedText(), "selected");
        QTEST(field.cursorPosition(), "cursor");
    }

    void propertiesByName()
    {
        QLineEdit field;
        LineEditAdapter adapter(&field);
        adapter.setProperty("Text", QStringLiteral("abcdef"));
        adapter.setProperty("SelStart", 1);
        adapter.setProperty("SelLength", 3);
        QCOMPARE(field.selectedText(), QStringLiteral("bcd"));
        QCOMPARE(adapter.property("SelStart").toInt(), 1);
        // A selection reaching past the text stops at its end.
        adapter.setProperty("SelLength", 99);
        QCOMPARE(adapter.property("SelLength").toInt(), 5);
        QCOMPARE(adapter.property("MaxLength").toInt(), 0);
        adapter.setProperty("MaxLength", 4);
        QCOMPARE(field.maxLength(), 4);
    }

    // The field's position is in twips, as for every control, so the pointer is
    // measured from the field's own corner: a cursor at (400, 300) pixels, a
    // field at (100, 50) moved there through its twips.
    void mousePointerRelativeToARealField_data()
    {
        QTest::addColumn<QString>("axis");
        QTest::addColumn<int>("twips");
        QTest::newRow("across") << "X" << (400 - 100) * 15;
        QTest::newRow("down") << "y" << (300 - 50) * 15;
    }
    void mousePointerRelativeToARealField()
    {
        QFETCH(QString, axis);
        auto machine = std::make_shared<RecordingPlatform>();
        ScreenInfo screen;
        screen.cursor = QPoint(400, 300);
        machine->setScreen(screen);
        const auto previous = Platform::install(machine);
        QLineEdit field;
        LineEditAdapter adapter(&field);
        adapter.setProperty("Left", 1500);
        adapter.setProperty("Top", 750);
        QCOMPARE(field.pos(), QPoint(100, 50));
        clsqorGenLib lib;
        QTEST(int(lib.GetMousePointerPos(axis, &adapter)), "twips");
        Platform::install(previous);
    }

    void aFieldThatIsGoneRaisesAnError()
    {
        auto *field = new QLineEdit;
        LineEditAdapter adapter(field);
        delete field;
        QVERIFY_THROWS_EXCEPTION(RuntimeError, adapter.text());
    }
};

QTEST_MAIN(TestLineEditAdapter)
#include "tst_lineeditadapter.moc"
