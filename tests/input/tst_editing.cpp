#include "lib/clsqorgenlib.h"

#include "tests/common/recordingmachine.h"

#include <QTest>

using namespace qor;

// The selection of an edit control is checked end to end in the qorgen batch test.
class TestEditing : public QObject
{
    Q_OBJECT

private slots:
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
        const auto machine = test::installRecordingPlatform();
        clsqorGenLib().SendAKey(short(key));
        // A key down, then the same key up.
        QCOMPARE(machine->actions(),
            (QList<MachineAction> {
                KeySent { virtualKey, scanCode, 0 }, KeySent { virtualKey, scanCode, 2 } }));
    }
};

QTEST_GUILESS_MAIN(TestEditing)
#include "tst_editing.moc"
