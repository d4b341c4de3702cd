#include "dialogs/qt/soundplayer.h"
#include "lib/clsqorgenlib.h"
#include "lib/frame/modgenlib.h"
#include "platform/qt/qtplatform.h"

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QSoundEffect>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

using namespace qor;

namespace {

// A mono 16-bit wave file of a 440 Hz tone.
QByteArray waveOf(double seconds)
{
    constexpr quint32 rate = 22050;
    const quint32 samples = quint32(seconds * rate);
    QByteArray wave;
    QDataStream out(&wave, QIODevice::WriteOnly);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << quint32(36 + samples * 2);
    out.writeRawData("WAVEfmt ", 8);
    out << quint32(16) << quint16(1) << quint16(1) << rate << rate * 2 << quint16(2) << quint16(16);
    out.writeRawData("data", 4);
    out << quint32(samples * 2);
    for (quint32 i = 0; i < samples; ++i)
        out << qint16(8000 * std::sin(2 * M_PI * 440 * i / rate));
    return wave;
}

} // namespace

// Plays real waves through a sound server of its own with a null sink; where
// no server can start, the test fails: the test job installs pulseaudio.
class TestSoundPlayback : public QObject
{
    Q_OBJECT

    QTemporaryDir runtime;
    QTemporaryDir folder;
    bool serverStarted = false;
    std::unique_ptr<clsqorGenLib> library;

private slots:
    void initTestCase()
    {
        QFile::setPermissions(runtime.path(),
            QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", runtime.path().toLocal8Bit());
        qputenv("PULSE_SERVER", ("unix:" + runtime.path() + "/pulse/native").toLocal8Bit());
        QProcess server;
        server.start(QStringLiteral("pulseaudio"),
            { "-n", "--daemonize=yes", "--exit-idle-time=-1", "-L",
                "module-null-sink sink_name=null", "-L", "module-native-protocol-unix" });
        if (!server.waitForFinished(15000)) {
            server.kill();
            server.waitForFinished(1000);
            QFAIL("no sound server could start (pulseaudio did not answer)");
        }
        if (server.exitStatus() != QProcess::NormalExit || server.exitCode() != 0)
            QFAIL("no sound server could start (is the pulseaudio package installed?)");
        serverStarted = true;

        Platform::install(std::make_shared<QtPlatform>());
        auto *machine = dynamic_cast<QtPlatform *>(&platform());
        machine->setSystemDirectory(folder.filePath(QStringLiteral("system")));
        QDir(folder.path()).mkpath(QStringLiteral("MultiMedia"));
        QFile tone(folder.filePath(QStringLiteral("MultiMedia/Tone.wav")));
        QVERIFY(tone.open(QIODevice::WriteOnly));
        tone.write(waveOf(0.3));
        tone.close();
        library = std::make_unique<clsqorGenLib>();
    }

    void cleanupTestCase()
    {
        SoundPlayer::stop();
        if (!serverStarted)
            return;
        QFile pid(runtime.filePath(QStringLiteral("pulse/pid")));
        if (pid.open(QIODevice::ReadOnly))
            QProcess::execute(
                QStringLiteral("kill"), { QString::fromLatin1(pid.readAll().trimmed()) });
    }

    void loopsUntilStopped()
    {
        QString file = QStringLiteral("Tone.wav");
        QString directory = folder.filePath(QStringLiteral("MultiMedia"));
        library->PlaySound(file, true, directory);
        QSoundEffect &player = SoundPlayer::effect();
        QTRY_VERIFY_WITH_TIMEOUT(player.isPlaying(), 10000);
        QCOMPARE(player.loopCount(), int(QSoundEffect::Infinite));
        QTest::qWait(800); // longer than the tone
        QVERIFY(player.isPlaying());
        QString stop;
        library->PlaySound(stop);
        QTRY_VERIFY_WITH_TIMEOUT(!player.isPlaying(), 5000);
    }

    // The five sounds the build makes for the dialogs are waves the player
    // takes, each played once.
    void shippedDialogSoundsPlay_data()
    {
        QTest::addColumn<QString>("file");
        for (const char *type : { "Critical", "Exclamation", "Information", "Question", "Message" })
            QTest::newRow(type) << QStringLiteral("%1.wav").arg(QLatin1String(type));
    }
    void shippedDialogSoundsPlay()
    {
        QFETCH(QString, file);
        QString directory = QStringLiteral(QOR_SHIPPED_SOUND_DIR);
        library->PlaySound(file, false, directory);
        QSoundEffect &player = SoundPlayer::effect();
        QTRY_VERIFY_WITH_TIMEOUT(player.isPlaying(), 10000);
        QCOMPARE(player.loopCount(), 1);
        QTRY_VERIFY_WITH_TIMEOUT(!player.isPlaying(), 5000);
        QCOMPARE(player.status(), QSoundEffect::Ready);
    }
};

QTEST_MAIN(TestSoundPlayback)
#include "tst_soundplayback.moc"
