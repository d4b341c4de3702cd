// The record writer and reader as plain functions: generated records come
// back as written wherever writer and reader agree, are refused where they
// do not, and read the same from text and from windows-1252 bytes.

#include "interchange/recordchecksum.h"
#include "interchange/recordreader.h"
#include "interchange/recordwriter.h"
#include "runtime/codepage.h"
#include "runtime/conversion.h"
#include "runtime/format.h"
#include "runtime/runtimeerror.h"
#include "tests/common/errornumber.h"

#include <QRandomGenerator>
#include <QTest>

using namespace qor;
using namespace qor::test;

Q_DECLARE_METATYPE(qor::RecordFault)

namespace {

const QString alphabet = QString::fromUtf8("ABCxyz019 .,-;/'\"éèçüßÉ€Œ™…");
const QStringList masks { "", "0.00", "#,##0", "000" };

struct Generated
{
    RecordLayout layout;
    qint64 lineNumber = 0;
    QStringList data;
};

QString randomText(QRandomGenerator &random)
{
    if (random.bounded(4) == 0) // a number, as text of the regional settings
        return QString::number(random.bounded(-5000, 100000) / 10.0);
    QString text;
    const int length = random.bounded(15);
    for (int i = 0; i < length; ++i)
        text.append(alphabet.at(random.bounded(int(alphabet.size()))));
    return text;
}

Generated generate(QRandomGenerator &random, bool lineNumbers, bool checksum, bool formats)
{
    Generated g;
    const int count = random.bounded(1, 9);
    for (int i = 0; i < count; ++i) {
        g.layout.widths.append(random.bounded(11));
        g.data.append(randomText(random));
        if (formats)
            g.layout.formats.append(masks.at(random.bounded(int(masks.size()))));
    }
    g.layout.checksum = checksum;
    g.layout.lineNumbers = lineNumbers;
    g.lineNumber = lineNumbers ? random.bounded(1, 1000000) : 0;
    return g;
}

// What the reader should give back for field i: the cut value without blanks
// (the generated texts hold no other white space).
QString expectedField(const Generated &g, int i, const RegionalSettings &rs)
{
    const QString &value = g.data.at(i);
    const int width = g.layout.widths.at(i);
    const QString mask = g.layout.formats.value(i);
    if (!mask.isEmpty() && isNumeric(value, rs))
        return format(value, mask, rs).right(width).trimmed();
    return value.left(width).trimmed();
}

template <typename View> QStringList texts(const QList<View> &views)
{
    QStringList out;
    for (const View v : views) {
        if constexpr (std::is_same_v<View, QStringView>)
            out.append(v.toString());
        else
            out.append(fromCp1252(v.toByteArray()));
    }
    return out;
}

} // namespace

class tst_RecordCodec : public QObject
{
    Q_OBJECT

private slots:
    void roundTrip_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<bool>("lineNumbers");
        QTest::addColumn<bool>("checksum");
        QTest::addColumn<bool>("formats");
        for (const char *locale : { "en_US", "nl_BE" }) {
            for (int options = 0; options < 8; ++options) {
                const bool lineNumbers = options & 1;
                const bool checksum = options & 2;
                const bool formats = options & 4;
                // clang-format off
                QTest::addRow("%s%s%s%s", locale, lineNumbers ? ", line numbers" : "", checksum ? ", checksum" : "", formats ? ", formats" : "") << QString::fromLatin1(locale) << lineNumbers << checksum << formats;
                // clang-format on
            }
        }
    }

    void roundTrip()
    {
        QFETCH(QString, locale);
        QFETCH(bool, lineNumbers);
        QFETCH(bool, checksum);
        QFETCH(bool, formats);

        const RegionalSettings rs = RegionalSettings::fromLocale(locale);
        QRandomGenerator random(20040520);
        for (int n = 0; n < 400; ++n) {
            const Generated g = generate(random, lineNumbers, checksum, formats);
            const QString record = RecordWriter(g.layout, rs).record(g.lineNumber, g.data);
            RecordReader reader(g.layout, rs);
            QList<QStringView> fromText;
            QCOMPARE(reader.read(record, fromText), RecordFault::None);
            QStringList expected;
            for (int i = 0; i < g.data.size(); ++i)
                expected.append(expectedField(g, i, rs));
            QCOMPARE(texts(fromText), expected);
            QCOMPARE(reader.frame(record).lineNumber, double(g.lineNumber));

            const QByteArray bytes = toCp1252(record);
            QList<QByteArrayView> fromBytes;
            QCOMPARE(reader.read(QByteArrayView(bytes), fromBytes), RecordFault::None);
            QCOMPARE(texts(fromBytes), expected);
        }
    }

    // Where writer and reader do not agree, the reader refuses.
    void disagreement_data()
    {
        QTest::addColumn<qint64>("lineNumber");
        QTest::addColumn<QString>("separator");
        QTest::addColumn<bool>("checksum");
        QTest::addColumn<RecordFault>("fault");
        // clang-format off
        QTest::newRow("other separator, checksum") << qint64(7) << ";" << true << RecordFault::Checksum;
        QTest::newRow("other separator") << qint64(7) << ";" << false << RecordFault::Delimiter;
        QTest::newRow("line number 1000000") << qint64(1000000) << " " << true << RecordFault::LineNumber;
        QTest::newRow("no line number") << qint64(0) << " " << true << RecordFault::LineNumber;
        // clang-format on
    }

    void disagreement()
    {
        QFETCH(qint64, lineNumber);
        QFETCH(QString, separator);
        QFETCH(bool, checksum);

        const RegionalSettings rs = RegionalSettings::fromLocale(QStringLiteral("en_US"));
        RecordLayout layout;
        layout.widths = { 4, 4 };
        layout.checksum = checksum;
        layout.separator = separator;
        const QString record
            = RecordWriter(layout, rs).record(lineNumber, QStringList { "AB", "CD" });
        layout.separator = QStringLiteral(" ");
        QList<QStringView> fields;
        QTEST(RecordReader(layout, rs).read(record, fields), "fault");
    }

    // One character changed anywhere is caught by the checksum, and text and
    // bytes give the same verdict.
    void corruption()
    {
        const RegionalSettings rs = RegionalSettings::fromLocale(QStringLiteral("en_US"));
        QRandomGenerator random(1999);
        for (int n = 0; n < 2000; ++n) {
            const Generated g = generate(random, true, true, false);
            QString record = RecordWriter(g.layout, rs).record(g.lineNumber, g.data);
            const qsizetype at = random.bounded(int(record.size()));
            const QChar was = record.at(at);
            QChar now = alphabet.at(random.bounded(int(alphabet.size())));
            if (now == was || (at >= record.size() - 2 && now.toUpper() == was.toUpper()))
                continue;
            record[at] = now;
            RecordReader reader(g.layout, rs);
            QList<QStringView> fromText;
            QList<QByteArrayView> fromBytes;
            const QByteArray bytes = toCp1252(record);
            QCOMPARE(reader.read(record, fromText), RecordFault::Checksum);
            QCOMPARE(reader.read(QByteArrayView(bytes), fromBytes), RecordFault::Checksum);
        }
    }

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
};

QTEST_GUILESS_MAIN(tst_RecordCodec)
#include "tst_recordcodec.moc"
