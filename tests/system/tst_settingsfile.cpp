#include "lib/clsqorgenlib.h"
#include "system/profilefile.h"

#include "tests/common/recordingmachine.h"

#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

using namespace qor;

namespace {

const QString helper = QStringLiteral(QOR_SYSTEM_HELPER);

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("<missing>");
}

void writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    QCOMPARE(file.write(bytes), bytes.size());
}

// A settings file as a person keeps it: comments, blank lines, other sections.
QByteArray kassaFile(const QByteArray &teller)
{
    QByteArray file = "; Kassa van de winkel\r\n[Kassa]\r\nTeller=" + teller + "\r\n\r\n";
    for (int i = 0; i < 400; ++i)
        file += "[Artikel" + QByteArray::number(i) + "]\r\nNaam=Artikel nummer "
            + QByteArray::number(i) + "\r\n; opmerking\r\n\r\n";
    return file;
}

} // namespace

class TestSettingsFile : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> machine;
    QTemporaryDir folder;

    QString path(const QString &name) const { return folder.filePath(name); }

private slots:
    void init()
    {
        machine = test::installRecordingPlatform();
        machine->setSystemDirectory(folder.path());
        QFile::remove(path(QStringLiteral("qorSoft.ini")));
    }

    // What GetIni returns and tells for files of every kind.
    void getIni_data()
    {
        QTest::addColumn<QByteArray>("contents"); // "<none>": no file at all
        QTest::addColumn<QString>("key");
        QTest::addColumn<bool>("mbox");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("told");
        QTest::addColumn<bool>("defaultFile"); // no file named: the system folder's
        // clang-format off
        QTest::newRow("missing key, no box") << QByteArray("[S]\r\nK=v\r\n") << "L" << false << "" << false << false;
        QTest::newRow("missing key told") << QByteArray("[S]\r\nK=v\r\n") << "L" << true << "" << true << false;
        QTest::newRow("empty value told as missing") << QByteArray("[S]\r\nK=\r\n") << "K" << true << "" << true << false;
        QTest::newRow("missing file") << QByteArray("<none>") << "K" << true << "" << true << false;
        QTest::newRow("255 characters cut to 254") << "[S]\r\nK=" + QByteArray(255, 'y') + "\r\n" << "K" << true << QString(254, 'y') << false << false;
        QTest::newRow("254 characters whole") << "[S]\r\nK=" + QByteArray(254, 'z') + "\r\n" << "K" << true << QString(254, 'z') << false << false;
        QTest::newRow("the system folder's file by default") << QByteArray("[s]\r\nk=v\r\n") << "K" << true << "v" << false << true;
        // clang-format on
    }
    void getIni()
    {
        QFETCH(QByteArray, contents);
        QFETCH(QString, key);
        QFETCH(bool, mbox);
        QFETCH(bool, defaultFile);
        const QString file = path(defaultFile ? "qorSoft.ini" : "test.ini");
        QFile::remove(file);
        if (contents != "<none>")
            writeBytes(file, contents);
        clsqorGenLib lib;
        QString iniFile = defaultFile ? QString() : file;
        QTEST(lib.GetIni(QStringLiteral("S"), key, iniFile, mbox), "value");
        QCOMPARE(iniFile, defaultFile ? folder.path() + QStringLiteral("\\qorSoft.ini") : file);
        QFETCH(bool, told);
        QCOMPARE(machine->shown().size(), told ? 1 : 0);
        if (told) {
            const QString prompt = QStringLiteral("[S] - ") + key + QStringLiteral("= ?\r\r")
                + QStringLiteral("Kan parameter niet terugvinden in ") + file
                + QStringLiteral(" !");
            QCOMPARE(test::onlyMessage(*machine),
                (QVariantMap { { "prompt", prompt }, { "buttons", 16 }, { "title", QString() } }));
        }
        // Reading never changes the file.
        QCOMPARE(contentsOf(file), contents == "<none>" ? QByteArray("<missing>") : contents);
    }

    // A file that cannot be written, or a folder that does not exist, is left as it was.
    void writesThatCannotHappenChangeNothing_data()
    {
        QTest::addColumn<bool>("missing");
        // clang-format off
        QTest::newRow("read-only file") << false;
        QTest::newRow("missing folder: not created") << true;
        // clang-format on
    }
    void writesThatCannotHappenChangeNothing()
    {
        QFETCH(bool, missing);
        QTemporaryDir local;
        const QString file = local.filePath(missing ? "geen/map/vast.ini" : "vast.ini");
        const QByteArray before = missing ? QByteArray("<missing>") : "[S]\r\nK=oud\r\n";
        if (!missing)
            writeBytes(file, before);
        const auto permissions = QFile::permissions(file);
        if (!missing)
            QFile::setPermissions(file, QFile::ReadOwner);
        clsqorGenLib lib;
        QString iniFile = file;
        lib.WriteIni(QStringLiteral("S"), QStringLiteral("K"), QStringLiteral("nieuw"), iniFile);
        const QByteArray after = contentsOf(file);
        QFile::setPermissions(file, permissions);
        QCOMPARE(after, before);
        QCOMPARE(
            QDir(local.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            missing ? QStringList() : QStringList { "vast.ini" });
    }

    void aSymbolicLinkKeepsPointingAtTheFile()
    {
        const QString target = path(QStringLiteral("echt.ini"));
        const QString link = path(QStringLiteral("link.ini"));
        writeBytes(target, "[S]\nK=1\n");
        QVERIFY(QFile::link(target, link));
        clsqorGenLib lib;
        QString iniFile = link;
        lib.WriteIni(QStringLiteral("S"), QStringLiteral("K"), QStringLiteral("2"), iniFile);
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(contentsOf(target), QByteArray("[S]\nK=2\n"));
    }

    // A writer killed at any moment leaves the old file or the new one, whole.
    void aKilledWriterLeavesAWholeFile()
    {
        const QString file = path(QStringLiteral("kassa.ini"));
        writeBytes(file, kassaFile("0"));
        const QRegularExpression written(QStringLiteral("^(0|Teller-\\d+)$"));
        int changed = 0;
        for (int round = 0; round < 300; ++round) {
            QProcess writer;
            writer.start(helper, { "write", file, "Kassa", "Teller", "0" });
            QVERIFY(writer.waitForStarted());
            // A writer takes some 30 ms to start on a busy machine; killed within
            // 80 ms it is caught before, during or after its writes.
            QThread::usleep(QRandomGenerator::global()->bounded(80000));
            writer.kill();
            QVERIFY(writer.waitForFinished());
            const QByteArray contents = contentsOf(file);
            const auto value
                = ProfileFile(contents).value(QStringLiteral("Kassa"), QStringLiteral("Teller"));
            QVERIFY2(value && written.match(*value).hasMatch(), qPrintable(value.value_or("?")));
            QVERIFY2(contents == kassaFile(value->toLatin1()), "a line was lost or moved");
            changed += *value != QLatin1String("0");
        }
        // Most writers got as far as at least one whole write.
        QVERIFY(changed > 0);
    }

    // Two processes writing different keys at once both keep every value.
    void concurrentWritersKeepBothKeys()
    {
        const QString file = path(QStringLiteral("samen.ini"));
        writeBytes(file, "; gedeeld\r\n[Kassa]\r\nA=0\r\nB=0\r\n");
        QProcess first, second;
        first.start(helper, { "write", file, "Kassa", "A", "200" });
        second.start(helper, { "write", file, "Kassa", "B", "200" });
        QVERIFY(first.waitForFinished(60000) && second.waitForFinished(60000));
        QCOMPARE(first.exitCode(), 0);
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(contentsOf(file), QByteArray("; gedeeld\r\n[Kassa]\r\nA=A-200\r\nB=B-200\r\n"));
    }
};

QTEST_GUILESS_MAIN(TestSettingsFile)
#include "tst_settingsfile.moc"
