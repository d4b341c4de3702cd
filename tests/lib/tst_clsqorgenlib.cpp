#include "lib/clsqorgenlib.h"
#include "lib/modgenlib.h"
#include "platform/recordingplatform.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

using namespace qor;

class TestClsqorGenLib : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> machine;
    QTemporaryDir systemDir;

private slots:
    void init()
    {
        ModGenLib::reset();
        machine = std::make_shared<RecordingPlatform>();
        machine->setSystemDirectory(systemDir.path());
        Platform::install(machine);
    }

    void freshObjectHasItsDefaults()
    {
        clsqorGenLib lib;
        QCOMPARE(lib.property("Offset").toInt(), 0);
        QCOMPARE(lib.property("FieldExt").toString(), QStringLiteral("NL"));
        QCOMPARE(lib.property("vbRequery").toBool(), true);
        QCOMPARE(lib.property("vbCr2").toString(), QString(2, QChar(13)));
        QCOMPARE(lib.property("vbSplit").toString(), QString(2, QChar(173)));
        QCOMPARE(lib.property("BtwTar1").toInt(), 0);
        QCOMPARE(lib.property("BtwTar2").toInt(), 0);
        QCOMPARE(lib.property("NbrDec").toInt(), 0);
        QVERIFY(!lib.property("FlowCTL").isValid());
        QVERIFY(!lib.property("HoldSysData").isValid());
        QCOMPARE(lib.property("HoldErr").toInt(), 0);
        QCOMPARE(lib.property("msg").toString(), QString());
        QCOMPARE(lib.property("vbSee").toBool(), false);
    }

    void offsetDoesNotChangeFieldExt()
    {
        clsqorGenLib lib;
        lib.setProperty("Offset", 10000);
        QCOMPARE(lib.property("FieldExt").toString(), QStringLiteral("NL"));
    }

    void hostStorageKeepsWhatTheHostParks()
    {
        clsqorGenLib lib;
        QObject form;
        lib.setProperty("FlowCTL", QVariant::fromValue<QObject *>(&form));
        lib.setProperty(
            "HoldSysData", QVariant::fromValue(QVariantList { 1, QStringLiteral("x") }));
        lib.setProperty("HoldErr", 53);
        lib.setProperty("HoldErrDes", QStringLiteral("File not found"));
        QCOMPARE(lib.property("FlowCTL").value<QObject *>(), &form);
        QCOMPARE(lib.property("HoldSysData").toList().size(), 2);
        QCOMPARE(lib.property("HoldErr").toInt(), 53);
        QCOMPARE(lib.property("HoldErrDes").toString(), QStringLiteral("File not found"));
    }

    void klantPCFollowsTheMarkerFile()
    {
        {
            clsqorGenLib customer;
            QCOMPARE(customer.property("KlantPC").toBool(), true);
        }
        QFile marker(systemDir.filePath(QStringLiteral("QorVelChip.dll")));
        QVERIFY(marker.open(QIODevice::WriteOnly));
        marker.close();
        clsqorGenLib developer;
        QCOMPARE(developer.property("KlantPC").toBool(), false);
        QCOMPARE(developer.GetKlantPC(), false);
        marker.remove();
    }

    void constructionClearsTheCalculatorState()
    {
        modGenLib().calculatorFlag = true;
        modGenLib().calculatorMode = 3;
        clsqorGenLib lib;
        QCOMPARE(modGenLib().calculatorFlag, false);
        QCOMPARE(modGenLib().calculatorMode, 0);
    }

    void moduleStateIsOnePerThread()
    {
        modGenLib().languageOffset = 20000;
        int seenByOtherThread = -1;
        std::thread other([&] { seenByOtherThread = modGenLib().languageOffset; });
        other.join();
        QCOMPARE(seenByOtherThread, 0);
        QCOMPARE(modGenLib().languageOffset, 20000);
    }
};

QTEST_GUILESS_MAIN(TestClsqorGenLib)
#include "tst_clsqorgenlib.moc"
