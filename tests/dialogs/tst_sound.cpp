#include "dialogs/sound.h"
#include "host/application.h"
#include "lib/clsqorgenlib.h"

#include "tests/common/recordingmachine.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace qor;

namespace {

// The library's Windows-style spelling of a folder of this machine.
QString windowsPath(const QString &path)
{
    return QString(path).replace(QLatin1Char('/'), QLatin1Char('\\'));
}

void touch(const QString &path)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("RIFF");
}

} // namespace

class TestSound : public QObject
{
    Q_OBJECT

    std::shared_ptr<RecordingPlatform> machine;
    std::unique_ptr<QTemporaryDir> folder;
    std::unique_ptr<Application> application;
    QString root; // the temporary folder, Windows-style

private slots:
    void init()
    {
        machine = test::installRecordingPlatform();
        folder = std::make_unique<QTemporaryDir>();
        root = windowsPath(folder->path());
        machine->setSystemDirectory(root + QStringLiteral("\\system"));
        machine->setDevelopmentSoundDirectory(root + QStringLiteral("\\dev"));
        application = std::make_unique<Application>();
        application->setProperty("Path", root + QStringLiteral("\\app"));
        modGenLib().application = application.get();
        for (const char *file : { "app/MultiMedia/Ding.wav", "given/Ding.wav", "dev/Ding.wav" })
            touch(folder->filePath(QLatin1String(file)));
    }

    // Folders are given relative to the temporary folder; "~" stands for it.
    void folderRules_data()
    {
        QTest::addColumn<QString>("directory");
        QTest::addColumn<bool>("development");
        QTest::addColumn<QString>("fileAfter");
        QTest::addColumn<QString>("directoryAfter");
        QTest::addColumn<bool>("found");
        // clang-format off
        QTest::newRow("application folder") << "" << false << "~\\app\\MultiMedia\\Ding.wav" << "~\\app\\MultiMedia" << true;
        QTest::newRow("given folder") << "~\\given" << false << "~\\given\\Ding.wav" << "~\\given" << true;
        QTest::newRow("given folder without the file") << "~\\app" << false << "~\\app\\Ding.wav" << "~\\app" << false;
        QTest::newRow("development station ignores the folder") << "~\\given" << true << "~\\dev\\Ding.wav" << "~\\dev" << true;
        // clang-format on
    }
    void folderRules()
    {
        QFETCH(QString, directory);
        QFETCH(bool, development);
        QFETCH(QString, fileAfter);
        QFETCH(QString, directoryAfter);
        QFETCH(bool, found);
        if (development)
            touch(folder->filePath(QStringLiteral("system/QorVelChip.dll")));
        QString file = QStringLiteral("Ding.wav");
        directory.replace(QLatin1Char('~'), root);
        playSound(file, true, directory, 0);
        QCOMPARE(file, fileAfter.replace(QLatin1Char('~'), root));
        QCOMPARE(directory, directoryAfter.replace(QLatin1Char('~'), root));
        QCOMPARE(machine->shown().size(), 1);
        const ShownEvent shown = machine->shown().first();
        if (found)
            QCOMPARE(shown, ShownEvent(SoundPlayed { file, true }));
        else
            QVERIFY(std::holds_alternative<MessageBoxShown>(shown));
    }

    // In the object's language.
    void missingFileNotice()
    {
        QString file = QStringLiteral("Gone.wav");
        QString directory;
        playSound(file, false, directory, 10000);
        QCOMPARE(test::onlyMessage(*machine),
            (QVariantMap { { "prompt",
                               "Cannot Find Sound :\r\r" + file
                                   + "\r\rVeuillez contacter le Help-Desk Velantis." },
                { "buttons", 16 }, { "title", "qorSoft General Library" } }));
    }

    // The caller's variable holds the full path, so the same call again doubles it.
    void secondCallDoublesThePath()
    {
        clsqorGenLib library;
        QString file = QStringLiteral("Ding.wav");
        library.PlaySound(file);
        const QString first = root + QStringLiteral("\\app\\MultiMedia\\Ding.wav");
        QCOMPARE(file, first);
        library.PlaySound(file);
        QCOMPARE(file, root + QStringLiteral("\\app\\MultiMedia\\") + first);
        QVERIFY(std::holds_alternative<MessageBoxShown>(machine->shown().value(1)));
    }

    void emptyNameStops()
    {
        QString file;
        QString directory = QStringLiteral("untouched");
        playSound(file, true, directory, 0);
        QCOMPARE(machine->shown(), QList<ShownEvent> { SoundStopped {} });
        QCOMPARE(directory, QStringLiteral("untouched"));
    }

    void noApplicationYet()
    {
        modGenLib().application = nullptr;
        QString file = QStringLiteral("Ding.wav");
        QString directory;
        playSound(file, false, directory, 0);
        QCOMPARE(file, QStringLiteral("\\MultiMedia\\Ding.wav"));
        QVERIFY(std::holds_alternative<MessageBoxShown>(machine->shown().value(0)));
    }

    // Every platform, the recording one too, runs a box's sound step once when
    // the box shows: the type's sound, or the notice of its missing file. Which
    // file each box type plays is seen on the real window in tst_msgboxe.
    void boxesPlayTheirTypeSoundWhenShown_data()
    {
        QTest::addColumn<QString>("box");
        QTest::addColumn<int>("style");
        QTest::addColumn<bool>("soundOff");
        QTest::addColumn<bool>("present");
        QTest::addColumn<QString>("heard");
        // clang-format off
        QTest::newRow("critical") << "MsgBoxE" << 16 << false << true << "MsgBoxE|Critical.wav";
        QTest::newRow("input box asks with the question sound") << "InputBoxE" << 0 << false << true << "InputBoxE|Question.wav";
        QTest::newRow("missing file: the notice after the box") << "MsgBoxE" << 16 << false << false << "MsgBoxE|qorSoft General Library";
        QTest::newRow("sounds off: message box silent") << "MsgBoxE" << 16 << true << true << "MsgBoxE";
        // clang-format on
    }
    void boxesPlayTheirTypeSoundWhenShown()
    {
        QFETCH(QString, box);
        QFETCH(int, style);
        QFETCH(bool, soundOff);
        QFETCH(bool, present);
        if (present) {
            for (const char *type :
                { "Critical", "Exclamation", "Information", "Question", "Message" })
                touch(folder->filePath(
                    QStringLiteral("app/MultiMedia/%1.wav").arg(QLatin1String(type))));
        }
        clsqorGenLib library;
        library.SetSound(soundOff);
        if (box == QLatin1String("MsgBoxE"))
            library.MsgBoxE(QStringLiteral("Tekst"), style);
        else
            library.InputBoxE(QStringLiteral("Tekst"), QStringLiteral("Titel"));
        QStringList heard;
        for (const ShownEvent &entry : machine->shown()) {
            if (const auto *sound = std::get_if<SoundPlayed>(&entry))
                heard.append(sound->file.section(QLatin1Char('\\'), -1));
            else if (const auto *box = std::get_if<MessageBoxShown>(&entry))
                heard.append(box->title);
            else
                heard.append(kindOf(entry));
        }
        QTEST(heard.join(QLatin1Char('|')), "heard");
    }

    // Switching the dialog sounds off leaves direct calls alone.
    void soundOffLeavesDirectCallsAlone()
    {
        clsqorGenLib library;
        library.SetSound(true);
        QString file = QStringLiteral("Ding.wav");
        library.PlaySound(file);
        QCOMPARE(machine->shown().size(), 1);
    }
};

QTEST_APPLESS_MAIN(TestSound)
#include "tst_sound.moc"
