#include "lib/clsqorgenlib.h"
#include "platform/commandline.h"
#include "platform/wildcard.h"

#include "tests/common/recordingmachine.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace qor;

namespace {

const QString split = QString(2, QChar(0x00AD));

} // namespace

class TestProcesses : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> machine;
    QTemporaryDir folder;

private slots:
    void init() { machine = test::installRecordingPlatform(); }

    void commandLines_data()
    {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<QStringList>("words");
        // clang-format off
        QTest::newRow("blanks and tabs between words") << "  a \t b  c " << QStringList { "a", "b", "c" };
        QTest::newRow("quoted path with blanks") << "\"C:\\Program Files\\x.exe\" /s" << QStringList { "C:\\Program Files\\x.exe", "/s" };
        QTest::newRow("quotes inside a word") << "a\"b c\"d" << QStringList { "ab cd" };
        QTest::newRow("doubled quote inside quotes") << "\"say \"\"hi\"\"\"" << QStringList { "say \"hi\"" };
        QTest::newRow("empty quoted word") << "a \"\" b" << QStringList { "a", "", "b" };
        QTest::newRow("unclosed quote runs to the end") << "\"a b" << QStringList { "a b" };
        QTest::newRow("both separators kept") << "x C:/a\\b" << QStringList { "x", "C:/a\\b" };
        QTest::newRow("blank line") << "   " << QStringList {};
        // clang-format on
    }
    void commandLines()
    {
        QFETCH(QString, commandLine);
        QTEST(splitCommandLine(commandLine), "words");
    }

    void wildcards_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<bool>("matches");
        // clang-format off
        QTest::newRow("star dot ext") << "Factuur.TXT" << "*.txt" << true;
        QTest::newRow("other extension") << "factuur.txt.bak" << "*.txt" << false;
        QTest::newRow("star dot star without a dot") << "README" << "*.*" << true;
        QTest::newRow("question mark one character") << "a1.wav" << "a?.wav" << true;
        QTest::newRow("question mark not zero characters") << "a.wav" << "a?.wav" << false;
        QTest::newRow("brackets not a class") << "1.txt" << "[1].txt" << false;
        QTest::newRow("empty pattern matches all") << "x" << "" << true;
        QTest::newRow("accented without regard to case") << "\u00C9T\u00C9.txt" << "\u00E9t\u00E9.*" << true;
        QTest::newRow("star in the middle backtracks") << "abcabd" << "a*d" << true;
        // clang-format on
    }
    void wildcards()
    {
        QFETCH(QString, name);
        QFETCH(QString, pattern);
        QTEST(matchesWildcard(name, pattern), "matches");
    }

    // The classic window styles are 0 to 4 and 6; a refused style starts nothing.
    void shellAndWait_data()
    {
        QTest::addColumn<QString>("commandLine");
        QTest::addColumn<int>("style");
        QTest::addColumn<bool>("started"); // asked of the machine
        QTest::addColumn<int>("result");
        QTest::addColumn<QString>("description"); // of the start failure, "" when it started
        QTest::addColumn<int>("waited"); // milliseconds at least
        const QString refused = QStringLiteral("Invalid procedure call or argument");
        const QString odd = folder.filePath(QStringLiteral("map met 'spatie'/hulp prog"));
        QVERIFY(QDir().mkpath(QFileInfo(odd).path()));
        QVERIFY(QFile::copy(QStandardPaths::findExecutable(QStringLiteral("false")), odd));
        // clang-format off
        QTest::newRow("waits for the end") << "sleep 0.3" << 1 << true << 0 << "" << 300;
        QTest::newRow("fails at once: 0 all the same") << "false" << 1 << true << 0 << "" << 0;
        QTest::newRow("missing program") << "/no/such/program.exe arg" << 1 << true << 53 << "File not found" << 0;
        QTest::newRow("not executable") << "\"" + QStringLiteral(QOR_SYSTEM_HELPER).section('/', 0, -2) + "/CMakeFiles\"" << 1 << true << 70 << "Permission denied" << 0;
        QTest::newRow("empty command") << "" << 1 << true << 5 << refused << 0;
        QTest::newRow("a program in a folder with blanks and quotes") << "\"" + odd + "\" /s" << 4 << true << 0 << "" << 0;
        QTest::newRow("style hidden") << "true" << 0 << true << 0 << "" << 0;
        QTest::newRow("style minimised without focus") << "true" << 6 << true << 0 << "" << 0;
        QTest::newRow("5 is no style") << "true" << 5 << false << 5 << refused << 0;
        QTest::newRow("negative style") << "true" << -1 << false << 5 << refused << 0;
        QTest::newRow("style 7") << "true" << 7 << false << 5 << refused << 0;
        // clang-format on
    }
    void shellAndWait()
    {
        QFETCH(QString, commandLine);
        QFETCH(int, style);
        QFETCH(bool, started);
        QFETCH(QString, description);
        QFETCH(int, waited);
        clsqorGenLib lib;
        QElapsedTimer timer;
        timer.start();
        QTEST(lib.ShellAndWait(commandLine, style), "result");
        QVERIFY(timer.elapsed() >= waited);
        const MachineAction start = ProcessStarted { commandLine, style };
        QCOMPARE(
            machine->actions(), started ? QList<MachineAction> { start } : QList<MachineAction>());
        if (description.isEmpty()) {
            QVERIFY(machine->shown().isEmpty());
        } else {
            QCOMPARE(test::onlyMessage(*machine),
                (QVariantMap {
                    { "prompt", "Error starting task " + commandLine + "\r\n" + description },
                    { "buttons", 48 }, { "title", "Error" } }));
        }
    }

    void getFileList_data()
    {
        QTest::addColumn<QString>("folder"); // relative to the test folder; "\" or "/"
        QTest::addColumn<QString>("wildcard");
        QTest::addColumn<QStringList>("names"); // sorted here; the order is the file system's
        // clang-format off
        QTest::newRow("pattern") << "data" << "*.txt" << QStringList { "A.TXT", "b.txt", "met spatie.txt" };
        QTest::newRow("trailing backslash") << "data\\" << "*.txt" << QStringList { "A.TXT", "b.txt", "met spatie.txt" };
        QTest::newRow("everything: no folders, hidden files or pipes") << "data" << "*.*" << QStringList { "A.TXT", "b.txt", "geen", "met spatie.txt", "ro.dat" };
        QTest::newRow("missing folder") << "geen map" << "*.*" << QStringList {};
        QTest::newRow("a file as folder") << "data\\b.txt" << "*" << QStringList {};
        QTest::newRow("a quote in the pattern") << "data" << "\"*" << QStringList {};
        // clang-format on
    }
    void getFileList()
    {
        QFETCH(QString, folder);
        QFETCH(QString, wildcard);
        QTemporaryDir dir;
        const QString data = dir.filePath(QStringLiteral("data"));
        QVERIFY(QDir().mkpath(data + QStringLiteral("/sub.txt")));
        for (const char *name :
            { "A.TXT", "b.txt", "met spatie.txt", "geen", ".verborgen", "ro.dat" })
            QVERIFY(
                QFile(data + QLatin1Char('/') + QLatin1String(name)).open(QIODevice::WriteOnly));
        QVERIFY(QFile::setPermissions(data + QStringLiteral("/ro.dat"), QFile::ReadOwner));
        QCOMPARE(::mkfifo(QFile::encodeName(data + QStringLiteral("/pijp")).constData(), 0600), 0);
        clsqorGenLib lib;
        const QString list = lib.GetFileList(dir.path() + QLatin1Char('\\') + folder, wildcard, 2);
        QStringList names = list.isEmpty() ? QStringList() : list.split(split);
        names.sort();
        QTEST(names, "names");
        // The attribute asked for changes nothing.
        QCOMPARE(lib.GetFileList(dir.path() + QLatin1Char('/') + folder, wildcard), list);
    }

    // PathRS takes one trailing backslash off a path; GetSystemDir off the system folder,
    // which it reads into a classic buffer of 255 characters.
    void paths_data()
    {
        QTest::addColumn<QString>("method");
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("result");
        // clang-format off
        QTest::newRow("trailing backslash") << "PathRS" << "C:\\data\\" << "C:\\data";
        QTest::newRow("three blanks") << "PathRS" << "   " << "";
        QTest::newRow("only one of two removed") << "PathRS" << "C:\\data\\\\" << "C:\\data\\";
        QTest::newRow("blanks kept") << "PathRS" << " C:\\a\\ " << " C:\\a\\ ";
        QTest::newRow("slash kept") << "PathRS" << "/data/" << "/data/";
        QTest::newRow("tab is no blank") << "PathRS" << "\t" << "\t";
        QTest::newRow("system folder: one trailing backslash dropped") << "GetSystemDir" << "C:\\WINDOWS\\\\" << "C:\\WINDOWS\\";
        QTest::newRow("no system folder") << "GetSystemDir" << "" << "";
        QTest::newRow("system folder cut to the buffer") << "GetSystemDir" << QString(300, 'd') << QString(255, 'd');
        // clang-format on
    }
    void paths()
    {
        QFETCH(QString, method);
        QFETCH(QString, path);
        machine->setSystemDirectory(path);
        clsqorGenLib lib;
        QTEST(method == "PathRS" ? lib.PathRS(path) : lib.GetSystemDir(), "result");
    }
};

QTEST_GUILESS_MAIN(TestProcesses)
#include "tst_processes.moc"
