#include "platform/coreplatform.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace qor;

class TestCorePlatform : public QObject
{
    Q_OBJECT

private slots:
    void filesAcceptBothSeparators()
    {
        QTemporaryDir dir;
        CorePlatform machine;
        const QString windowsStyle
            = QString(dir.path()).replace(QLatin1Char('/'), QLatin1Char('\\'));
        QVERIFY(machine.writeFile(windowsStyle + QStringLiteral("\\a.txt"), "x"));
        QVERIFY(machine.fileExists(dir.path() + QStringLiteral("/a.txt")));
        QVERIFY(machine.directoryExists(windowsStyle));
        QCOMPARE(
            machine.readFile(windowsStyle + QStringLiteral("\\a.txt")).value(), QByteArray("x"));
        QVERIFY(!machine.readFile(windowsStyle + QStringLiteral("\\missing.txt")));
    }

    void listFilesMatchesTheWildcard()
    {
        QTemporaryDir dir;
        CorePlatform machine;
        for (const char *name : { "a.wav", "B.WAV", "c.txt" }) {
            QFile file(dir.filePath(QString::fromLatin1(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QVERIFY(machine.makeDirectory(dir.path() + QStringLiteral("\\sub.wav")));
        QStringList names;
        for (const FileEntry &entry : machine.listFiles(dir.path(), QStringLiteral("*.wav"))) {
            names << entry.name;
            QVERIFY(entry.attributes & 32);
        }
        names.sort();
        QCOMPARE(names, (QStringList { "B.WAV", "a.wav" }));
        QVERIFY(
            machine.listFiles(dir.path() + QStringLiteral("/none"), QStringLiteral("*")).isEmpty());
    }

    void processesRunAndAreWaitedFor()
    {
        CorePlatform machine;
        const qint64 id = machine.startProcess(QStringLiteral("true"), 1);
        QVERIFY(id > 0);
        machine.waitForProcess(id);
        QVERIFY(machine.startProcess(QStringLiteral("/no/such/program"), 1) < 0);
        QVERIFY(machine.startProcess(QStringLiteral("   "), 1) < 0);
    }
};

QTEST_GUILESS_MAIN(TestCorePlatform)
#include "tst_coreplatform.moc"
