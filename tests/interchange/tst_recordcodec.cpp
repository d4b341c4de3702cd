// The record checksum over text and over windows-1252 bytes, and the writer's
// refusal of data that does not fit its layout.

#include "interchange/recordchecksum.h"
#include "interchange/recordwriter.h"
#include "runtime/codepage.h"
#include "runtime/runtimeerror.h"
#include "tests/common/errornumber.h"

#include <QTest>

using namespace qor;
using namespace qor::test;

class tst_RecordCodec : public QObject
{
    Q_OBJECT

private slots:
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
