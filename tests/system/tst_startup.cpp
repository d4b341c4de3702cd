#include "host/application.h"
#include "lib/clsqorgenlib.h"

#include "tests/common/recordingmachine.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace qor;

namespace {

const QString helper = QStringLiteral(QOR_SYSTEM_HELPER);
const QString cr2(2, QChar(13));
const QString taskManager = QStringLiteral(
    "If the application is not visible, press CTRL-ALT-DEL, select the 'Task Manager' and click "
    "the 'Processes' tab.  Select ");

} // namespace

class TestStartUp : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> machine;
    QTemporaryDir systemDir;

    QString iniFile() const { return systemDir.filePath(QStringLiteral("qorSoft.ini")); }
    void makeDevelopmentMachine()
    {
        QFile marker(systemDir.filePath(QStringLiteral("qorvelchip.DLL")));
        QVERIFY(marker.open(QIODevice::WriteOnly));
    }

private slots:
    void init()
    {
        machine = test::installRecordingPlatform();
        machine->setSystemDirectory(systemDir.path());
        QFile::remove(iniFile());
        QFile::remove(systemDir.filePath(QStringLiteral("qorvelchip.DLL")));
    }

    void startUp_data()
    {
        QTest::addColumn<QString>("object"); // "application", "bare" (no properties) or "none"
        QTest::addColumn<bool>("prevInstance");
        QTest::addColumn<QString>("productName");
        QTest::addColumn<bool>("otherDLL");
        QTest::addColumn<bool>("result");
        QTest::addColumn<QString>("prompt"); // "" when nothing is shown
        QTest::addColumn<bool>("soundOff"); // after the call; it starts switched off
        // clang-format off
        QTest::newRow("first copy") << "application" << false << "Kassa" << false << true << "" << false;
        QTest::newRow("second copy refused") << "application" << true << "Kassa" << false << false << "Kassa" + cr2 + "Deze toepassing is reeds geopend !" + cr2 + taskManager + "kassa.exe from the list and press the 'End Process' button." << true;
        QTest::newRow("blank product name line dropped") << "application" << true << "   " << false << false << "Deze toepassing is reeds geopend !" + cr2 + taskManager + "kassa.exe from the list and press the 'End Process' button." << true;
        QTest::newRow("another library: sound untouched") << "application" << true << "Kassa" << true << true << "" << true;
        QTest::newRow("an object without properties starts") << "bare" << false << "" << false << true << "" << false;
        QTest::newRow("no object starts") << "none" << false << "" << false << true << "" << false;
        // clang-format on
    }
    void startUp()
    {
        QFETCH(bool, prevInstance);
        QFETCH(QString, productName);
        QFETCH(bool, otherDLL);
        QFETCH(QString, object);
        QFETCH(QString, prompt);
        Application application;
        application.setProperty("PrevInstance", prevInstance);
        application.setProperty("ProductName", productName);
        application.setProperty("EXEName", QStringLiteral("kassa"));
        modGenLib().soundOff = true;
        QObject bare;
        QObject *started = object == "bare" ? &bare : object == "none" ? nullptr : &application;
        clsqorGenLib lib;
        QTEST(lib.StartUp(started, otherDLL), "result");
        QCOMPARE(modGenLib().application.data(), started);
        QTEST(modGenLib().soundOff, "soundOff");
        if (prompt.isEmpty())
            QVERIFY(machine->shown().isEmpty());
        else
            QCOMPARE(test::onlyMessage(*machine),
                test::messageBox(prompt, 16, QStringLiteral("qorSoft Software")));
    }

    // Another process running the same application, found through its lock.
    void anotherProcessIsAPreviousInstance()
    {
        const QString name
            = QStringLiteral("kassa-test-%1").arg(QCoreApplication::applicationPid());
        Application application;
        application.setProperty("EXEName", name);
        clsqorGenLib lib;
        {
            QProcess other;
            other.start(
                helper, { "race", name, QString::number(QDateTime::currentMSecsSinceEpoch()) });
            QVERIFY(other.waitForReadyRead(10000));
            QVERIFY(!lib.StartUp(&application));
            QVERIFY(lib.StartUp(&application, false, true));
            other.kill();
            QVERIFY(other.waitForFinished());
        }
        machine->clearRecords();
        // The lock died with the other process; this copy now runs alone.
        QVERIFY(lib.StartUp(&application));
        QVERIFY(lib.StartUp(&application));
        QVERIFY(machine->shown().isEmpty());
    }

    // Two copies started at the same instant: exactly one of them runs alone.
    void copiesStartedTogether()
    {
        for (int pair = 0; pair < 20; ++pair) {
            const QString name
                = QStringLiteral("race-%1-%2").arg(QCoreApplication::applicationPid()).arg(pair);
            const QString at = QString::number(QDateTime::currentMSecsSinceEpoch() + 150);
            QProcess first;
            QProcess second;
            first.start(helper, { "race", name, at });
            second.start(helper, { "race", name, at });
            QVERIFY(first.waitForReadyRead(10000) && second.waitForReadyRead(10000));
            const QByteArray answers = first.readAll().trimmed() + ' ' + second.readAll().trimmed();
            first.kill();
            second.kill();
            first.waitForFinished();
            second.waitForFinished();
            QVERIFY2(answers == "alone second" || answers == "second alone", answers);
        }
    }

    // Only a file marks a development station, whatever the case of its name.
    void aCustomerPCHasNoMarkerFile()
    {
        QVERIFY(QDir(systemDir.path()).mkdir(QStringLiteral("QorVelChip.dll")));
        QVERIFY(clsqorGenLib().GetKlantPC());
        QDir(systemDir.path()).rmdir(QStringLiteral("QorVelChip.dll"));
        makeDevelopmentMachine();
        QVERIFY(!clsqorGenLib().property("KlantPC").toBool());
    }

    void setDebug_data()
    {
        QTest::addColumn<bool>("development");
        QTest::addColumn<bool>("debugKlantPC");
        QTest::addColumn<int>("debugOffset");
        QTest::addColumn<bool>("klantPC");
        QTest::addColumn<int>("offset");
        QTest::addColumn<QString>("fieldExt");
        QTest::addColumn<QString>("file");
        // clang-format off
        QTest::newRow("customer PC: nothing") << false << false << 10000 << true << 20000 << "NL" << "";
        QTest::newRow("act as customer: language kept") << true << true << 10000 << true << 20000 << "UK" << "[qorSoft DLL]\r\nDebugKlantPC=True\r\n";
        QTest::newRow("other language") << true << false << 10000 << false << 10000 << "FR" << "[qorSoft DLL]\r\nDebugKlantPC=False\r\nOffset=10000\r\n";
        QTest::newRow("beyond the list") << true << false << 60000 << false << 60000 << "" << "[qorSoft DLL]\r\nDebugKlantPC=False\r\nOffset=60000\r\n";
        QTest::newRow("negative offset") << true << false << -10000 << false << -10000 << "" << "[qorSoft DLL]\r\nDebugKlantPC=False\r\nOffset=-10000\r\n";
        QTest::newRow("part of a language rounds down") << true << false << 19999 << false << 19999 << "FR" << "[qorSoft DLL]\r\nDebugKlantPC=False\r\nOffset=19999\r\n";
        // clang-format on
    }
    void setDebug()
    {
        QFETCH(bool, development);
        QFETCH(bool, debugKlantPC);
        QFETCH(int, debugOffset);
        if (development)
            makeDevelopmentMachine();
        clsqorGenLib lib;
        lib.setProperty("Offset", 20000);
        lib.SetDebug(debugKlantPC, debugOffset);
        QTEST(lib.property("KlantPC").toBool(), "klantPC");
        QTEST(lib.property("Offset").toInt(), "offset");
        QTEST(lib.property("FieldExt").toString(), "fieldExt");
        QFile written(iniFile());
        QTEST(written.open(QIODevice::ReadOnly) ? QString(written.readAll()) : QString(), "file");
    }

    void timerCode_data()
    {
        QTest::addColumn<QDateTime>("now");
        QTest::addColumn<QString>("code");
        // clang-format off
        QTest::newRow("20 May, 08:30") << QDateTime(QDate(2004, 5, 20), QTime(8, 30)) << "0028";
        QTest::newRow("1 January, midnight") << QDateTime(QDate(2026, 1, 1), QTime(0, 0)) << "0101";
        QTest::newRow("31 December, 23h") << QDateTime(QDate(2026, 12, 31), QTime(23, 0)) << "7254";
        // clang-format on
    }
    void timerCode()
    {
        QFETCH(QDateTime, now);
        machine->setNow(now);
        clsqorGenLib lib;
        QTEST(lib.GetTimerCode(), "code");
    }
};

QTEST_GUILESS_MAIN(TestStartUp)
#include "tst_startup.moc"
