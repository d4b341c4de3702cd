#include "host/qt/paymentqrlabel.h"
#include "host/qt/qrcodeimage.h"
#include "tests/common/qrdecoder.h"

#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTest>

using namespace qor;

// The payment code a real QLabel shows, read back by a real decoder (zbarimg).
class TestPaymentQrLabel : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString decoded(const QImage &image)
    {
        const QString file = m_dir.filePath(QStringLiteral("label.png"));
        return image.save(file) ? test::decodedQrCode(file) : QStringLiteral("not saved");
    }

private slots:
    void shown_data()
    {
        QTest::addColumn<double>("amount");
        QTest::addColumn<QString>("reference");
        QTest::addColumn<QString>("payload");
        const QString head
            = QStringLiteral("BCD\n002\n1\nSCT\nGKCCBEBB\nQorsoft BV\nBE71096123456769\n");
        // clang-format off
        QTest::newRow("amount and structured communication") << 123.45 << "+++002/0260/11718+++" << head + "EUR123.45\n\n\n+++002/0260/11718+++";
        QTest::newRow("nothing to pay: no code") << 0.0 << "" << "";
        // clang-format on
    }
    void shown()
    {
        QFETCH(double, amount);
        QFETCH(QString, reference);
        QFETCH(QString, payload);
        QLabel label;
        PaymentQrLabel *code = PaymentQrLabel::attach(&label, QStringLiteral("Qorsoft BV"),
            QStringLiteral("BE71 0961 2345 6769"), QStringLiteral("GKCCBEBB"));
        code->setAmount(99);
        code->setReference(reference);
        code->setAmount(amount);
        QCOMPARE(code->payload(), payload);
        const QPixmap shown = label.pixmap();
        QCOMPARE(shown.isNull(), payload.isEmpty());
        if (!payload.isEmpty())
            QCOMPARE(decoded(shown.toImage()), payload);
    }

    void image_data()
    {
        QTest::addColumn<int>("moduleSize");
        QTest::addColumn<int>("side"); // 0: null image
        // "Q" needs the smallest code: 21 modules and the quiet zone, 29 in all.
        // clang-format off
        QTest::newRow("one pixel per module") << 1 << 29;
        QTest::newRow("largest module") << 20 << 580;
        QTest::newRow("module size 0") << 0 << 0;
        QTest::newRow("module size 21") << 21 << 0;
        // clang-format on
    }
    void image()
    {
        QFETCH(int, moduleSize);
        QFETCH(int, side);
        const QImage image = qrCodeImage(QStringLiteral("Q"), moduleSize);
        QCOMPARE(image.width(), side);
        QCOMPARE(image.height(), side);
        if (side)
            QCOMPARE(decoded(moduleSize == 1 ? image.scaled(side * 3, side * 3) : image),
                QStringLiteral("Q"));
    }

    // The label of an invoice's payment code, for the documentation.
    void screenshot()
    {
        QLabel label;
        PaymentQrLabel::attach(&label, QStringLiteral("Qorsoft BV"),
            QStringLiteral("BE71 0961 2345 6769"), QStringLiteral("GKCCBEBB"))
            ->setAmount(123.45);
        const QString folder
            = QCoreApplication::applicationDirPath() + QStringLiteral("/screenshots");
        QDir().mkpath(folder);
        QVERIFY(label.pixmap().save(folder + QStringLiteral("/payment-qrcode.png")));
    }
};

QTEST_MAIN(TestPaymentQrLabel)
#include "tst_paymentqrlabel.moc"
