#include "system/profilefile.h"

#include <QTest>

using namespace qor;

namespace {

const QByteArray handWritten = "; qorSoft settings\r\n"
                               "[Kassa]\r\n"
                               "Printer = LPT1\r\n"
                               "Lade=\"  open  \"\r\n"
                               "geen gelijkteken\r\n"
                               "\r\n"
                               "[kassa]\r\n"
                               "Extra=tweede sectie\r\n"
                               "[Taal]\r\n"
                               "Offset=10000\r\n"
                               "offset=20000\r\n";

} // namespace

class TestProfileFile : public QObject
{
    Q_OBJECT

private slots:
    void read_data()
    {
        QTest::addColumn<QByteArray>("contents");
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("found");
        QTest::addColumn<QString>("value");
        // clang-format off
        QTest::newRow("blanks around key and value") << handWritten << "Kassa" << "Printer" << true << "LPT1";
        QTest::newRow("enclosing quotes dropped, blanks inside kept") << handWritten << "Kassa" << "Lade" << true << "  open  ";
        QTest::newRow("first key of a name wins") << handWritten << "Taal" << "OFFSET" << true << "10000";
        QTest::newRow("only the first section of a name counts") << handWritten << "Kassa" << "Extra" << false << "";
        QTest::newRow("a line without = is no key") << handWritten << "Kassa" << "geen gelijkteken" << false << "";
        QTest::newRow("a comment is no key") << QByteArray(";a=1\n[S]\n;b=2\n") << "S" << ";b" << false << "";
        QTest::newRow("missing section") << handWritten << "Geen" << "Printer" << false << "";
        QTest::newRow("no final newline") << QByteArray("[S]\nK=v") << "S" << "K" << true << "v";
        QTest::newRow("empty value") << QByteArray("[S]\r\nK=\r\n") << "S" << "K" << true << "";
        QTest::newRow("header with blanks") << QByteArray("  [ S ]  \r\nK=1\r\n") << "s" << "k" << true << "1";
        QTest::newRow("header without closing bracket") << QByteArray("[S\r\nK=1\r\n") << "S" << "K" << true << "1";
        QTest::newRow("windows-1252 value") << QByteArray("[S]\r\nK=caf\xE9 \x80\r\n") << "S" << "K" << true << QStringLiteral("caf\u00E9 \u20AC");
        QTest::newRow("binary bytes read as they are") << QByteArray("\x00\x01[S]\r\n[S]\r\nK=\x01\x02\r\n", 18) << "S" << "K" << true << QStringLiteral("\u0001\u0002");
        QTest::newRow("value with = inside") << QByteArray("[S]\nK=a=b\n") << "S" << "K" << true << "a=b";
        // clang-format on
    }
    void read()
    {
        QFETCH(QByteArray, contents);
        QFETCH(QString, section);
        QFETCH(QString, key);
        const auto value = ProfileFile(contents).value(section, key);
        QTEST(value.has_value(), "found");
        QTEST(value.value_or(QString()), "value");
    }

    // Every file below was written by hand as the writer must leave it.
    void write_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QString>("section");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("after");
        // clang-format off
        QTest::newRow("new file") << QByteArray() << "Kassa" << "Printer" << "LPT1" << QByteArray("[Kassa]\r\nPrinter=LPT1\r\n");
        QTest::newRow("replace in place, key spelling kept") << handWritten << "KASSA" << "printer" << "COM2" << QByteArray(handWritten).replace("Printer = LPT1", "Printer=COM2");
        QTest::newRow("first of two keys replaced") << handWritten << "Taal" << "offset" << "0" << QByteArray(handWritten).replace("Offset=10000", "Offset=0");
        QTest::newRow("new key after the last setting, before the blank line") << handWritten << "Kassa" << "Lade2" << "x" << QByteArray(handWritten).replace("geen gelijkteken\r\n", "geen gelijkteken\r\nLade2=x\r\n");
        QTest::newRow("new section at the end") << handWritten << "Nieuw" << "K" << "v" << handWritten + "[Nieuw]\r\nK=v\r\n";
        QTest::newRow("new section after a last line without newline") << QByteArray("[S]\r\nK=1") << "T" << "K" << "2" << QByteArray("[S]\r\nK=1\r\n[T]\r\nK=2\r\n");
        QTest::newRow("replace a last line without newline") << QByteArray("[S]\nK=1") << "S" << "K" << "22" << QByteArray("[S]\nK=22");
        QTest::newRow("LF file keeps LF") << QByteArray("# x\n[S]\nA=1\n\n[T]\n") << "S" << "B" << "2" << QByteArray("# x\n[S]\nA=1\nB=2\n\n[T]\n");
        QTest::newRow("empty section gets its first key") << QByteArray("[S]\r\n[T]\r\n") << "S" << "K" << "v" << QByteArray("[S]\r\nK=v\r\n[T]\r\n");
        QTest::newRow("header alone without newline") << QByteArray("[S]") << "S" << "K" << "v" << QByteArray("[S]\r\nK=v");
        QTest::newRow("line breaks in a value become blanks") << QByteArray() << "S" << "K" << "a\r\nb=c" << QByteArray("[S]\r\nK=a  b=c\r\n");
        QTest::newRow("long value written whole") << QByteArray() << "S" << "K" << QString(300, 'x') << QByteArray("[S]\r\nK=") + QByteArray(300, 'x') + "\r\n";
        QTest::newRow("windows-1252 written") << QByteArray() << "S" << "K" << QStringLiteral("\u20AC\u00E9") << QByteArray("[S]\r\nK=\x80\xE9\r\n");
        QTest::newRow("only the first of duplicate sections") << QByteArray("[S]\r\nA=1\r\n[S]\r\nB=2\r\n") << "S" << "B" << "3" << QByteArray("[S]\r\nA=1\r\nB=3\r\n[S]\r\nB=2\r\n");
        // clang-format on
    }
    void write()
    {
        QFETCH(QByteArray, before);
        QFETCH(QString, section);
        QFETCH(QString, key);
        QFETCH(QString, value);
        const QByteArray after = ProfileFile(before).withValue(section, key, value);
        QTEST(after, "after");
        // What was written reads back (a line break reads as the blank it became).
        QCOMPARE(ProfileFile(after).value(section, key).value_or(QString("?")).size(),
            value.trimmed().size());
    }
};

QTEST_GUILESS_MAIN(TestProfileFile)
#include "tst_profilefile.moc"
