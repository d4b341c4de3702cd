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

    // The selection rules themselves are checked on the model text box; here the
    // real field takes the whole text selected, the caret at its end.
    void selEditOnARealField()
    {
        QLineEdit field(QStringLiteral("123,45"));
        field.setCursorPosition(2);
        LineEditAdapter adapter(&field);
        clsqorGenLib lib;
        lib.Invoke(QStringLiteral("SelEdit"), { QVariant::fromValue<QObject *>(&adapter), false });
        QCOMPARE(field.selectedText(), QStringLiteral("123,45"));
        QCOMPARE(field.cursorPosition(), 6);
    }

    void propertiesByName()
    {
        QLineEdit field;
        LineEditAdapter adapter(&field);
        adapter.setProperty("Text", QStringLiteral("abcdef"));
        adapter.setProperty("SelStart", 1);
        adapter.setProperty("SelLength", 3);
        QCOMPARE(field.selectedText(), QStringLiteral("bcd"));
        // A selection reaching past the text stops at its end.
        adapter.setProperty("SelLength", 99);
        QCOMPARE(adapter.property("SelLength").toInt(), 5);
        adapter.setProperty("MaxLength", 4);
        QCOMPARE(field.maxLength(), 4);
    }

    // The field's position is in twips, as for every control, so the pointer is
    // measured from the field's own corner: a cursor at 400 pixels across, a
    // field at 100 moved there through its twips. The rules of the other
    // objects are checked on the model controls.
    void mousePointerRelativeToARealField()
    {
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
        QCOMPARE(int(lib.GetMousePointerPos(QStringLiteral("X"), &adapter)), (400 - 100) * 15);
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
