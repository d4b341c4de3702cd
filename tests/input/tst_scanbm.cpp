#include "host/textbox.h"
#include "input/scanbm.h"
#include "lib/clsqorgenlib.h"

#include "tests/common/errornumber.h"
#include "tests/common/recordingmachine.h"

#include <QTest>

using namespace qor;

namespace {

// What the user saw or heard: "beep", or "MsgBox:" and the title.
QStringList seen(const RecordingPlatform &machine)
{
    QStringList kinds;
    for (const ShownEvent &event : machine.shown()) {
        const auto *box = std::get_if<MessageBoxShown>(&event);
        kinds << (box ? kindOf(event) + QLatin1Char(':') + box->title : kindOf(event));
    }
    return kinds;
}

// Keys as typed: each character is its code; "\b", "\r" and "\x1b" are the
// backspace, Enter and Escape keys.
QList<int> typeKeys(QObject *field, const QString &keys, QString &format, bool fieldOnly, bool mbox)
{
    QList<int> results;
    for (const QChar key : keys)
        results << scanBM(field, qint16(key.unicode()), format, fieldOnly, mbox, 0);
    return results;
}

QList<int> zeros(int count)
{
    return QList<int>(count, 0);
}

} // namespace

class TestScanBM : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> machine;

private slots:
    void init() { machine = test::installRecordingPlatform(); }

    void keySequences_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<bool>("fieldOnly");
        QTest::addColumn<bool>("mbox");
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("selLength");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QList<int>>("results");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("shown");
        QTest::addColumn<QString>("buffer");
        const QStringList none;
        const QStringList mismatch { "MsgBox:Scan Barcode - Magnetic Card" };
        // clang-format off
        QTest::newRow("four digits") << "%[####]" << false << true << "" << 0 << "%[1234]" << zeros(7) << "1234" << none << "";
        QTest::newRow("field only") << "%[AB##]" << true << true << "" << 0 << "%[AB12]" << zeros(7) << "12" << none << "";
        QTest::newRow("whole scan with letters") << "%[AB##]" << false << true << "" << 0 << "%[ab12]" << zeros(7) << "AB12" << none << "";
        QTest::newRow("lower-case format") << "%[ab##]" << false << true << "" << 0 << "%[AB12]" << zeros(7) << "AB12" << none << "";
        QTest::newRow("variable, no digits") << "%[A_]" << false << true << "" << 0 << "%[A]" << zeros(4) << "A" << none << "";
        QTest::newRow("variable, five digits") << "%[A_]" << false << true << "" << 0 << "%[A12345]" << zeros(9) << "A12345" << none << "";
        QTest::newRow("variable, letter in digits") << "%[A_]" << false << true << "" << 0 << "%[A1X]" << zeros(6) << "" << mismatch << "";
        QTest::newRow("variable too short") << "%[AB_]" << false << true << "" << 0 << "%[A]" << zeros(4) << "" << QStringList { "MsgBox:ScanBM" } << "";
        QTest::newRow("ok code whatever the format") << "%[####]" << false << true << "" << 0 << "%[OK]" << zeros(5) << "OK" << none << "";
        QTest::newRow("ann code") << "%[@]" << true << true << "" << 0 << "%[ANN]" << zeros(6) << "ANN" << none << "";
        QTest::newRow("one character of any kind") << "%[@]" << false << true << "" << 0 << "%[x]" << zeros(4) << "X" << none << "";
        QTest::newRow("letter where a digit belongs") << "%[####]" << false << true << "" << 0 << "%[12a" << zeros(5) << "" << mismatch << "";
        QTest::newRow("scan longer than format") << "%[##]" << false << true << "" << 0 << "%[123" << zeros(5) << "" << mismatch << "";
        QTest::newRow("percent then x: silent") << "%[####]" << false << true << "" << 0 << "%x" << zeros(2) << "" << none << "";
        QTest::newRow("scan in progress") << "%[####]" << false << true << "" << 0 << "%[12" << zeros(4) << "" << none << "%[12";
        QTest::newRow("backspace drops a character") << "%[####]" << false << true << "" << 0 << "%[12\b345]" << zeros(9) << "1345" << none << "";
        QTest::newRow("escape ends the scan") << "%[####]" << false << true << "" << 0 << "%[1\x1b" << QList<int> { 0, 0, 0, 27 } << "" << none << "";
        QTest::newRow("enter writes what came") << "%[####]" << false << true << "" << 0 << "%[12\r" << QList<int> { 0, 0, 0, 0, 13 } << "%[12" << none << "";
        QTest::newRow("typing passes through") << "%[####]" << false << true << "" << 0 << "ab1" << QList<int> { 97, 98, 49 } << "" << none << "";
        QTest::newRow("text without selection passes") << "%[####]" << false << true << "abc" << 0 << "%[1" << QList<int> { 37, 91, 49 } << "abc" << none << "";
        QTest::newRow("selected text is replaced") << "%[##]" << false << true << "abc" << 3 << "%[12]" << zeros(5) << "12" << none << "";
        QTest::newRow("field only needs a format") << "" << true << true << "" << 0 << "%" << zeros(1) << "" << QStringList { "MsgBox:OstGenLib" } << "";
        QTest::newRow("empty format") << "" << false << true << "" << 0 << "1" << zeros(1) << "" << QStringList { "MsgBox:Scan Barcode - Magnetic" } << "";
        QTest::newRow("format without brackets beeps") << "%[##" << false << false << "" << 0 << "%" << zeros(1) << "" << QStringList { "beep" } << "";
        // clang-format on
    }
    void keySequences()
    {
        QFETCH(QString, format);
        QFETCH(bool, fieldOnly);
        QFETCH(bool, mbox);
        QFETCH(QString, before);
        QFETCH(int, selLength);
        QFETCH(QString, keys);
        TextBox field;
        field.setText(before);
        field.setSelLength(selLength);
        QTEST(typeKeys(&field, keys, format, fieldOnly, mbox), "results");
        QTEST(field.text(), "text");
        QTEST(seen(*machine), "shown");
        QTEST(modGenLib().scannerBuffer, "buffer");
        QCOMPARE(format, format.toUpper());
    }

    void messagesAsWritten_data()
    {
        QTest::addColumn<int>("offset");
        QTest::addColumn<QString>("format");
        QTest::addColumn<QString>("keys");
        QTest::addColumn<QString>("prompt");
        // clang-format off
        QTest::newRow("format mismatch") << 0 << "%[####]" << "%[1x" << "De codering stemt niet overeen met het verwachtte formaat !\r\rCodering :        %[1X\r\rFormaat :         %[####]";
        QTest::newRow("format mismatch in French") << 10000 << "%[#]" << "%[x" << "Le codage ne correspond pas au format attendu !\r\rCodage :        %[X\r\rFormat :         %[#]";
        QTest::newRow("scan too short") << 0 << "%[ab_]" << "%[a]" << "De lengte van de gescande waarde is kleiner dan de minimum ingestelde lengte : \r\r%[A]\r\r%[AB_]";
        // clang-format on
    }
    void messagesAsWritten()
    {
        QFETCH(int, offset);
        QFETCH(QString, format);
        QFETCH(QString, keys);
        clsqorGenLib library;
        library.setProperty("Offset", offset);
        TextBox field;
        for (const QChar key : keys)
            library.ScanBM(&field, qint16(key.unicode()), format, false, true);
        QTEST(test::onlyMessage(*machine).value(QStringLiteral("prompt")).toString(), "prompt");
        QCOMPARE(test::onlyMessage(*machine).value(QStringLiteral("buttons")).toInt(), 48);
    }

    void caretAfterTheScan()
    {
        TextBox field;
        QString format = QStringLiteral("%[@@@]");
        typeKeys(&field, QStringLiteral("%[abc]"), format, false, true);
        QCOMPARE(field.selStart(), 3);
    }

    // One buffer for the whole host: a scan begun through one object goes on through another.
    void bufferSharedAcrossObjectsAndFields()
    {
        clsqorGenLib first;
        clsqorGenLib second;
        TextBox one;
        TextBox two;
        QString format = QStringLiteral("%[##]");
        QCOMPARE(first.ScanBM(&one, '%', format, false, true), qint16(0));
        QCOMPARE(second.ScanBM(&two, '[', format, false, true), qint16(0));
        QCOMPARE(first.ScanBM(&one, '4', format, false, true), qint16(0));
        QCOMPARE(modGenLib().scannerBuffer, QStringLiteral("%[4"));
        QCOMPARE(second.ScanBM(&two, '2', format, false, true), qint16(0));
        QCOMPARE(second.ScanBM(&two, ']', format, false, true), qint16(0));
        QCOMPARE(two.text(), QStringLiteral("42"));
        QCOMPARE(one.text(), QString());
    }

    void badArguments()
    {
        QString format = QStringLiteral("%[#]");
        TextBox field;
        // No field: untouched by typing, an error once the field is needed.
        QCOMPARE(scanBM(nullptr, 'a', format, false, true, 0), qint16('a'));
        QCOMPARE(test::errorNumber([&] { scanBM(nullptr, '%', format, false, true, 0); }), 91);
        // A code that is no character of the code page.
        scanBM(&field, '%', format, false, true, 0);
        QCOMPARE(test::errorNumber([&] { scanBM(&field, -5, format, false, true, 0); }), 5);
        QCOMPARE(test::errorNumber([&] { scanBM(&field, 300, format, false, true, 0); }), 5);
        // Outside a scan any code passes.
        modGenLib().scannerBuffer.clear();
        QCOMPARE(scanBM(&field, 300, format, false, true, 0), qint16(300));
    }
};

QTEST_APPLESS_MAIN(TestScanBM)
#include "tst_scanbm.moc"
