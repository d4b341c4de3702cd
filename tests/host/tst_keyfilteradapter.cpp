#include "host/qt/keyfilteradapter.h"
#include "host/qt/lineeditadapter.h"
#include "lib/clsqorgenlib.h"
#include "runtime/variant.h"

#include "tests/common/recordingmachine.h"
#include "tests/common/userinput.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QTest>

using namespace qor;

namespace {

int count(const RecordingPlatform &machine, const QString &kind)
{
    int n = 0;
    for (const ShownEvent &shown : machine.shown())
        n += kindOf(shown) == kind ? 1 : 0;
    return n;
}

} // namespace

// Real QLineEdits with a key handler attached, typed into as a user types. What
// each handler answers to each key is checked one layer down; the rows here
// prove each way a handler's answer reaches the field: a key let through,
// refused, rewritten, or the field written by the handler itself.
class TestKeyFilterAdapter : public QObject
{
    Q_OBJECT

private slots:
    void typing_data()
    {
        QTest::addColumn<QString>("handler");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("maxLength");
        QTest::addColumn<QVariantList>("answers");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("expectedText");
        QTest::addColumn<int>("cursor");
        QTest::addColumn<QString>("selected");
        QTest::addColumn<int>("beeps");
        QTest::addColumn<int>("notes");
        const QVariantList none;
        // clang-format off
        QTest::newRow("amount with comma decimals") << "KeyGetal" << "" << 0 << none << "12.345" << "12,34" << 5 << "" << 1 << 0;
        QTest::newRow("shortcuts pass untouched") << "KeyGetal" << "12" << 0 << none << "{CtrlA}" << "12" << 2 << "12" << 0 << 0;
        QTest::newRow("missing decimals take the object's default") << "KeyGetal, no decimals" << "" << 0 << none << "3,145" << "3,1" << 3 << "" << 2 << 0;
        QTest::newRow("calculator result inserted") << "KeyGetal" << "12" << 0 << QVariantList { 12.3456 } << "*" << "12,35" << 5 << "" << 0 << 0;
        QTest::newRow("euro amount with VAT at once") << "KeyEuro" << "" << 0 << none << "100%" << "121" << 3 << "" << 0 << 1;
        QTest::newRow("upper-cased letters; the accent from a quote is no letter") << "KeyPress:H" << "" << 0 << none << "ab'c1" << "ABC" << 3 << "" << 2 << 0;
        QTest::newRow("a rewritten key respects the maximum length") << "KeyPress:" << "ab" << 3 << none << "'x" << "ab\u00B4" << 3 << "" << 0 << 0;
        QTest::newRow("spin up twice") << "KeySpin" << "5" << 0 << none << "{Up}{Up}" << "7" << 1 << "7" << 0 << 0;
        QTest::newRow("scan written into the field") << "ScanBM:%[###]" << "" << 0 << none << "%[123]" << "123" << 3 << "" << 0 << 0;
        QTest::newRow("scan dropped by escape, typing goes on") << "ScanBM:%[###]" << "" << 0 << none << "%[12{Esc}7" << "7" << 1 << "" << 0 << 0;
        // clang-format on
    }
    void typing()
    {
        QFETCH(QString, handler);
        QFETCH(QString, text);
        QFETCH(int, maxLength);
        QFETCH(QVariantList, answers);
        QFETCH(QString, keys);
        auto machine = test::installRecordingPlatform(QStringLiteral("nl_BE"));
        machine->setAnswers(answers);
        clsqorGenLib lib;
        lib.setProperty("BtwTar1", 2100);
        lib.setProperty("NbrDec", 1); // for KeyGetal without decimals
        QLineEdit field;
        if (maxLength > 0)
            field.setMaxLength(maxLength);
        field.setText(text);
        if (handler == QLatin1String("KeyGetal"))
            KeyFilterAdapter::attachKeyGetal(&field, &lib, 2, true);
        else if (handler == QLatin1String("KeyGetal, no decimals"))
            KeyFilterAdapter::attachKeyGetal(&field, &lib);
        else if (handler == QLatin1String("KeyEuro"))
            KeyFilterAdapter::attachKeyEuro(&field, &lib);
        else if (handler == QLatin1String("KeySpin"))
            KeyFilterAdapter::attachKeySpin(&field, &lib);
        else if (handler.startsWith(QLatin1String("ScanBM:")))
            KeyFilterAdapter::attachScanBM(&field, &lib, handler.section(QLatin1Char(':'), 1));
        else
            KeyFilterAdapter::attachKeyPress(&field, &lib, handler.section(QLatin1Char(':'), 1));
        test::typeKeys(&field, keys);
        QTEST(field.text(), "expectedText");
        QTEST(field.cursorPosition(), "cursor");
        QTEST(field.selectedText(), "selected");
        QTEST(count(*machine, QStringLiteral("beep")), "beeps");
        QTEST(count(*machine, QStringLiteral("Note")), "notes");
    }

    void codesOfKeyEvents_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("modifiers");
        QTest::addColumn<int>("code");
        // clang-format off
        QTest::newRow("keypad digit") << int(Qt::Key_5) << "5" << int(Qt::KeypadModifier) << 53;
        QTest::newRow("euro sign") << int(Qt::Key_unknown) << "\u20AC" << 0 << 128;
        QTest::newRow("backspace") << int(Qt::Key_Backspace) << "\b" << 0 << 8;
        QTest::newRow("enter on the keypad") << int(Qt::Key_Enter) << "\r" << int(Qt::KeypadModifier) << 13;
        QTest::newRow("arrow types nothing") << int(Qt::Key_Left) << "" << 0 << -1;
        QTest::newRow("delete types nothing") << int(Qt::Key_Delete) << "\u007F" << 0 << -1;
        QTest::newRow("control shortcut") << int(Qt::Key_C) << "\u0003" << int(Qt::ControlModifier) << -1;
        // clang-format on
    }
    void codesOfKeyEvents()
    {
        QFETCH(int, key);
        QFETCH(QString, text);
        QFETCH(int, modifiers);
        const QKeyEvent event(QEvent::KeyPress, key, Qt::KeyboardModifiers(modifiers), text);
        QTEST(KeyFilterAdapter::characterCode(&event), "code");
    }
};

QTEST_MAIN(TestKeyFilterAdapter)
#include "tst_keyfilteradapter.moc"
