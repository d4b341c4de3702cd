#include "payments/qrcode.h"
#include "tests/common/qrdecoder.h"
#include "tests/common/recordingmachine.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace qor;

// Every code written is read back by a real decoder, zbarimg.
class TestQrCode : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    // An SVG file is drawn by rsvg-convert first.
    static QString decoded(const QString &file)
    {
        if (!file.endsWith(QLatin1String(".svg")))
            return test::decodedQrCode(file);
        const QString image = file + QStringLiteral(".drawn.png");
        QProcess::execute(QStringLiteral("rsvg-convert"), { QStringLiteral("-o"), image, file });
        return test::decodedQrCode(image);
    }

private slots:
    void initTestCase() { QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("folder.png"))); }
    void init() { test::installRecordingPlatform(); }

    void roundTrip_data()
    {
        QTest::addColumn<QString>("payload");
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("moduleSize");
        const QString transfer
            = QStringLiteral("BCD\n002\n1\nSCT\nGKCCBEBB\nCaf\u00E9 Qorsoft "
                             "\U0001F600\nBE71096123456769\nEUR12.30\n\nRF18539007547034");
        // clang-format off
        QTest::newRow("payment code as PNG") << transfer << "transfer.png" << 4;
        QTest::newRow("payment code as SVG") << transfer << "transfer.svg" << 4;
        QTest::newRow("upper-case extension") << transfer << "TRANSFER.PNG" << 4;
        QTest::newRow("largest module") << "Q" << "large.png" << 20;
        QTest::newRow("largest EPC payload, 331 bytes") << QString(331, u'x') << "long.png" << 2;
        // clang-format on
    }
    void roundTrip()
    {
        QFETCH(QString, payload);
        QFETCH(QString, file);
        QFETCH(int, moduleSize);
        const QString path = m_dir.filePath(file);
        QVERIFY(saveQrCode(payload, path, moduleSize));
        QCOMPARE(decoded(path), payload);
    }

    void refused_data()
    {
        QTest::addColumn<QString>("payload");
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("moduleSize");
        // clang-format off
        QTest::newRow("empty payload") << "" << "empty.png" << 4;
        QTest::newRow("lone surrogate") << QString(QChar(0xD800)) << "surrogate.png" << 4;
        QTest::newRow("more than a QR code holds") << QString(3000, u'x') << "toolong.png" << 4;
        QTest::newRow("another extension") << "Q" << "code.jpg" << 4;
        QTest::newRow("no extension") << "Q" << "png" << 4;
        QTest::newRow("module size 0") << "Q" << "zero.png" << 0;
        QTest::newRow("module size 21") << "Q" << "big.png" << 21;
        QTest::newRow("folder that does not exist") << "Q" << "missing/code.png" << 4;
        QTest::newRow("path of a folder") << "Q" << "folder.png" << 4;
        // clang-format on
    }
    void refused()
    {
        QFETCH(QString, payload);
        QFETCH(QString, file);
        QFETCH(int, moduleSize);
        QDir folder(m_dir.path());
        const QStringList before = folder.entryList(QDir::Files | QDir::Hidden);
        QVERIFY(!saveQrCode(payload, m_dir.filePath(file), moduleSize));
        QCOMPARE(folder.entryList(QDir::Files | QDir::Hidden), before);
    }
};

QTEST_APPLESS_MAIN(TestQrCode)
#include "tst_qrcode.moc"
