// Data files of records: the record checksum over text and over windows-1252
// bytes, the exact bytes written, and a read that reports every faulty line
// with its number while it reads the rest.

#include "interchange/recordchecksum.h"
#include "interchange/recordfilereader.h"
#include "interchange/recordfilewriter.h"
#include "interchange/recordwriter.h"
#include "runtime/codepage.h"
#include "runtime/runtimeerror.h"
#include "tests/common/errornumber.h"
#include "tests/common/recordingmachine.h"

#include <QBuffer>
#include <QTemporaryDir>
#include <QTest>

using namespace qor;
using namespace qor::test;

namespace {

RecordLayout layout43(bool lineNumbers = true, bool checksum = true)
{
    RecordLayout layout;
    layout.widths = { 4, 3 };
    layout.lineNumbers = lineNumbers;
    layout.checksum = checksum;
    return layout;
}

// What a read gave, one entry per line: "fields a|b" or "fault <kind> <position>".
QStringList readAll(const QByteArray &bytes, const RecordLayout &layout,
    qsizetype maxLineLength = RecordFileReader::defaultMaxLineLength)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    RecordFileReader reader(buffer, layout, RegionalSettings(), maxLineLength);
    QStringList seen;
    for (auto status = reader.next(); status != RecordFileReader::Status::End;
         status = reader.next()) {
        const QString line = QString::number(reader.line()) + QLatin1Char(' ');
        if (status == RecordFileReader::Status::Record)
            seen.append(line + reader.fields().join(QLatin1Char('|')));
        else
            seen.append(line + RecordFileFault::kindName(reader.fault().kind)
                + (reader.fault().position ? QStringLiteral(" at %1").arg(reader.fault().position)
                                           : QString()));
    }
    return seen;
}

// A device that breaks after its first bytes.
class BrokenDevice : public QIODevice
{
public:
    explicit BrokenDevice(QByteArray start)
        : m_start(std::move(start))
    {
        open(QIODevice::ReadOnly);
    }

protected:
    qint64 readData(char *data, qint64 max) override
    {
        if (m_start.isEmpty())
            return -1;
        const qint64 n = qMin<qint64>(max, m_start.size());
        memcpy(data, m_start.constData(), size_t(n));
        m_start.remove(0, n);
        return n;
    }
    qint64 writeData(const char *, qint64) override { return -1; }

private:
    QByteArray m_start;
};

} // namespace

class tst_RecordFile : public QObject
{
    Q_OBJECT

private slots:
    void init() { installRecordingPlatform(QStringLiteral("en_US")); }

    void checksum_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("sum");
        QTest::newRow("empty") << "" << 0;
        QTest::newRow("wraps at 256") << QString(3, QChar(0xFF)) << (3 * 255) % 256;
        QTest::newRow("latin-1 range as is") << QString::fromUtf8("é") << 0xE9;
        // clang-format off
        QTest::newRow("code page range 80-9F") << QString::fromUtf8("€‰Ÿ") << (0x80 + 0x89 + 0x9F) % 256;
        QTest::newRow("outside the code page") << QString::fromUtf8("Ω") << 63;
        QTest::newRow("outside the basic plane once") << QString::fromUtf8("😀") << 63;
        QTest::newRow("lone surrogate") << QString(QChar(0xD800)) << 63;
        // clang-format on
    }

    void checksum()
    {
        QFETCH(QString, text);
        QFETCH(int, sum);
        QCOMPARE(int(RecordChecksum::of(text)), sum);
        QCOMPARE(int(RecordChecksum::of(QByteArrayView(toCp1252(text)))), sum);
        QCOMPARE(RecordChecksum::digits(quint8(sum)),
            QStringLiteral("%1").arg(sum, 2, 16, QLatin1Char('0')).toUpper());
    }

    void checksumDigits_data()
    {
        QTest::addColumn<QString>("digits");
        QTest::addColumn<int>("value"); // -1: no checksum
        QTest::newRow("upper") << "AF" << 0xAF;
        QTest::newRow("lower") << "af" << 0xAF;
        QTest::newRow("letter beyond F") << "0G" << -1;
        QTest::newRow("blank") << " 1" << -1;
        QTest::newRow("full-width digit") << QString::fromUtf8("１1") << -1;
    }

    void checksumDigits()
    {
        QFETCH(QString, digits);
        const auto read = RecordChecksum::read(digits.at(0).unicode(), digits.at(1).unicode());
        QTEST(read ? int(*read) : -1, "value");
    }

    void fieldCountMismatch()
    {
        const RegionalSettings rs;
        RecordLayout layout;
        layout.widths = { 1, 2 };
        QCOMPARE(errorNumber([&] { RecordWriter(layout, rs).record(1, QStringList { "a" }); }),
            int(RuntimeError::SubscriptOutOfRange));
    }
    void writtenBytes_data()
    {
        QTest::addColumn<bool>("lineNumbers");
        QTest::addColumn<bool>("checksum");
        QTest::addColumn<QList<QStringList>>("records");
        QTest::addColumn<QByteArray>("bytes");
        const QList<QStringList> two { { "AB", "7" }, { QString::fromUtf8("Café"), "€" } };
        // clang-format off
        QTest::newRow("numbered, with checksums") << true << true << two << QByteArray("000001 AB   7   9B\r\n000002 Caf\xE9 \x80   15\r\n");
        QTest::newRow("plain") << false << false << two << QByteArray("AB   7  \r\nCaf\xE9 \x80  \r\n");
        QTest::newRow("outside the code page as ?") << false << true << QList<QStringList> { { QString::fromUtf8("Ω😀xy"), "" } } << QByteArray("??xy     EF\r\n");
        QTest::newRow("no records") << true << true << QList<QStringList>() << QByteArray();
        QTest::newRow("line feed refused") << true << true << QList<QStringList> { { "A\nB", "" }, { "AB", "7" } } << QByteArray("000001 AB   7   9B\r\n");
        QTest::newRow("too few fields refused") << true << true << QList<QStringList> { { "A" }, { "AB", "7" } } << QByteArray("000001 AB   7   9B\r\n");
        QTest::newRow("too many fields refused") << true << true << QList<QStringList> { { "A", "B", "C" }, { "AB", "7" } } << QByteArray("000001 AB   7   9B\r\n");
        // clang-format on
    }

    void writtenBytes()
    {
        QFETCH(bool, lineNumbers);
        QFETCH(bool, checksum);
        QFETCH(QList<QStringList>, records);
        QFETCH(QByteArray, bytes);

        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        qsizetype refused = 0;
        {
            RecordFileWriter writer(buffer, layout43(lineNumbers, checksum), RegionalSettings());
            // A record that would break the file is refused; the next one gets the number.
            for (const QStringList &record : records) {
                if (!writer.write(record)) {
                    QVERIFY(!writer.error().isEmpty());
                    ++refused;
                }
            }
        }
        QCOMPARE(buffer.data(), bytes);
        QCOMPARE(readAll(bytes, layout43(lineNumbers, checksum)).size(), records.size() - refused);
    }

    void faultyLines_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("lineNumbers");
        QTest::addColumn<bool>("checksum");
        QTest::addColumn<QStringList>("seen");
        QTest::addColumn<qsizetype>("limit");
        const qsizetype usual = RecordFileReader::defaultMaxLineLength;
        const QByteArray good1 = "000001 AB   7   9B";
        const QByteArray good2 = "000002 CD   8   A1";
        // clang-format off
        QTest::newRow("LF") << good1 + "\n" + good2 + "\n" << true << true << QStringList { "1 AB|7", "2 CD|8" } << usual;
        QTest::newRow("last line without line end") << good1 + "\r\n" + good2 << true << true << QStringList { "1 AB|7", "2 CD|8" } << usual;
        QTest::newRow("empty file") << QByteArray() << true << true << QStringList() << usual;
        QTest::newRow("one empty line") << QByteArray("\n") << true << true << QStringList { "1 checksum" } << usual;
        QTest::newRow("every fault once") << good1 + "\r\n" + "000002 CD   8   A2\r\n" // wrong sum
                + "\r\n" // empty
                + "00000X CD   8   C7\r\n" // no number
                + "000005 CDEFG8   16\r\n" // no blank: checksum fine, delimiter wrong
                + QByteArray("000006 C\0   8   61\r\n", 20) // NUL byte
                + "000007 CD   8 \r  0E\r\n" // a lone carriage return inside
                + good2 + "\n" << true << true
                                          << QStringList { "1 AB|7", "2 checksum", "3 checksum",
                                                 "4 line number", "5 delimiter at 12",
                                                 "6 NUL byte at 9", "7 checksum", "8 CD|8" }
                                          << usual;
        QTest::newRow("delimiter without line numbers") << QByteArray( "ABCDE   \nAB   7  ") << false << false << QStringList { "1 delimiter at 5", "2 AB|7" } << usual;
        QTest::newRow("code page decoded") << QByteArray("Caf\xE9 \x80\x9C ") << false << false << QStringList { QString::fromUtf8("1 Café|€œ") } << usual;
        // A line beyond the limit is skipped to its end, wherever the end falls.
        const auto longLines = [](qsizetype length) {
            return "AB   7  \n" + QByteArray(length, 'x') + "\r\nAB   7  \n" + QByteArray(length, 'y');
        };
        const QStringList tooLong { "1 AB|7", "2 too long", "3 AB|7", "4 too long" };
        QTest::newRow("one over a small limit") << longLines(21) << false << false << tooLong << qsizetype(20);
        QTest::newRow("exactly the limit") << longLines(20) << false << false << QStringList { "1 AB|7", "2 delimiter at 5", "3 AB|7", "4 delimiter at 5" } << qsizetype(20);
        QTest::newRow("10 MB line, default limit") << longLines(10 << 20) << false << false << tooLong << usual;
        // clang-format on
    }

    void faultyLines()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, lineNumbers);
        QFETCH(bool, checksum);
        QFETCH(qsizetype, limit);
        QTEST(readAll(bytes, layout43(lineNumbers, checksum), limit), "seen");
    }

    void readError()
    {
        BrokenDevice device("AB   7  \nCD   8  \nEF");
        RecordFileReader reader(device, layout43(false, false), RegionalSettings());
        QCOMPARE(reader.next(), RecordFileReader::Status::Record);
        QCOMPARE(reader.next(), RecordFileReader::Status::Record);
        QCOMPARE(reader.next(), RecordFileReader::Status::Fault);
        QCOMPARE(reader.fault().kind, RecordFileFault::ReadError);
        QCOMPARE(reader.line(), 3);
        QCOMPARE(reader.next(), RecordFileReader::Status::End);
    }

    // Through the platform: a whole file written and read back, larger than
    // the reader's window.
    void wholeFile()
    {
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("export.txt"));
        RecordLayout layout;
        layout.widths = { 6, 20, 10 };
        layout.formats = { "", "", "#,##0.00" };
        const int count = 40000;
        int made = 0;
        QString error;
        QVERIFY(RecordFileWriter::writeFile(
            path, layout, RegionalSettings(),
            [&](QStringList &fields) {
                if (made == count)
                    return false;
                ++made;
                fields = QStringList { QString::number(made),
                    QStringLiteral("Article %1").arg(made), QString::number(made * 1.5) };
                return true;
            },
            &error));
        QVERIFY(error.isEmpty());
        int read = 0;
        const auto summary = RecordFileReader::readFile(
            path, layout, RegionalSettings(),
            [&](const QStringList &fields) {
                ++read;
                if (fields.value(0) != QString::number(read)
                    || fields.value(1) != QStringLiteral("Article %1").arg(read))
                    QFAIL(qPrintable(fields.join(QLatin1Char('|'))));
            },
            [](const RecordFileFault &fault) { QFAIL(qPrintable(fault.reason())); });
        QVERIFY(summary.opened);
        QCOMPARE(summary.records, qint64(count));
        QCOMPARE(summary.faults, qint64(0));
        QCOMPARE(read, count);

        QVERIFY(!RecordFileReader::readFile(
            dir.filePath("missing.txt"), layout, RegionalSettings(), nullptr, nullptr)
                     .opened);
        QVERIFY(!RecordFileWriter::writeFile(
            dir.filePath("no/such/dir.txt"), layout, RegionalSettings(),
            [](QStringList &) { return false; }, &error));
        QVERIFY(!error.isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_RecordFile)
#include "tst_recordfile.moc"
