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
