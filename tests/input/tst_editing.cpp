#include "lib/clsqorgenlib.h"
#include "platform/recordingplatform.h"
#include "runtime/runtimeerror.h"

#include <QTest>

using namespace qor;

namespace {

// A bare property bag stands for any host control.
std::unique_ptr<QObject> control(const QMap<QByteArray, QVariant> &properties)
{
    auto object = std::make_unique<QObject>();
    for (auto it = properties.begin(); it != properties.end(); ++it)
        object->setProperty(it.key().constData(), it.value());
    return object;
}

} // namespace

class TestEditing : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> machine;

private slots:
    void init()
    {
        machine = std::make_shared<RecordingPlatform>();
        Platform::install(machine);
    }

    void selEdit_data()
    {
        QTest::addColumn<bool>("grid");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("startAtEnd");
        QTest::addColumn<int>("selStart");
        QTest::addColumn<int>("selLength");
        // clang-format off
        QTest::newRow("edit selects all") << false << "12,50" << false << 0 << 5;
        QTest::newRow("edit caret at end") << false << "12,50" << true << 5 << 0;
        QTest::newRow("edit empty") << false << "" << false << 0 << 0;
        QTest::newRow("edit empty at end") << false << "" << true << 0 << 0;
        QTest::newRow("grid selects all") << true << "abc" << false << 0 << 3;
        QTest::newRow("grid caret at end") << true << "abc" << true << 3 << 0;
        QTest::newRow("grid empty") << true << "" << false << 0 << 0;
        // clang-format on
    }
    void selEdit()
    {
        QFETCH(bool, grid);
        QFETCH(QString, text);
        QFETCH(bool, startAtEnd);
        auto editor = grid ? control({ { "EditText", text }, { "EditSelStart", 9 },
                          { "EditSelLength", 9 }, { "Text", QStringLiteral("other") } })
                           : control({ { "Text", text }, { "SelStart", 9 }, { "SelLength", 9 } });
        clsqorGenLib lib;
        lib.SelEdit(editor.get(), startAtEnd, grid);
        QTEST(editor->property(grid ? "EditSelStart" : "SelStart").toInt(), "selStart");
        QTEST(editor->property(grid ? "EditSelLength" : "SelLength").toInt(), "selLength");
    }

    void selEditOnAControlWithoutTheProperty()
    {
        auto plain = control({ { "Caption", QStringLiteral("x") } });
        clsqorGenLib lib;
        try {
            lib.SelEdit(plain.get(), false, false);
            QFAIL("no error");
        } catch (const RuntimeError &error) {
            QCOMPARE(error.number(), 438);
        }
        // The edit-control names do not serve a grid editor.
        auto edit
            = control({ { "Text", QStringLiteral("x") }, { "SelStart", 0 }, { "SelLength", 0 } });
        QVERIFY_THROWS_EXCEPTION(RuntimeError, lib.SelEdit(edit.get(), false, true));
    }

    void sendAKey_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("virtualKey");
        QTest::addColumn<int>("scanCode");
        // clang-format off
        QTest::newRow("lower-case letter") << int('a') << 0x41 << 0x1E;
        QTest::newRow("upper-case letter sent unshifted") << int('A') << 0x41 << 0x1E;
        QTest::newRow("digit") << int('5') << 0x35 << 0x06;
        QTest::newRow("comma") << int(',') << 0xBC << 0x33;
        QTest::newRow("point") << int('.') << 0xBE << 0x34;
        QTest::newRow("enter") << 13 << 0x0D << 0x1C;
        QTest::newRow("shifted star on the eight key") << int('*') << 0x38 << 0x09;
        QTest::newRow("no key types it") << 0xE9 << 0xFF << 0xFF;
        // clang-format on
    }
    void sendAKey()
    {
        QFETCH(int, key);
        QFETCH(int, virtualKey);
        QFETCH(int, scanCode);
        clsqorGenLib lib;
        lib.SendAKey(short(key));
        const QVariantList actions = machine->actions();
        QCOMPARE(actions.size(), 2);
        const QVariantMap down = actions.at(0).toMap();
        const QVariantMap up = actions.at(1).toMap();
        QCOMPARE(down.value("virtualKey").toInt(), virtualKey);
        QCOMPARE(down.value("scanCode").toInt(), scanCode);
        QCOMPARE(down.value("flags").toInt(), 0);
        QCOMPARE(up.value("virtualKey").toInt(), virtualKey);
        QCOMPARE(up.value("scanCode").toInt(), scanCode);
        QCOMPARE(up.value("flags").toInt(), 2);
    }
};

QTEST_GUILESS_MAIN(TestEditing)
#include "tst_editing.moc"
