#include "lib/frame/dialogsound.h"

#include "lib/frame/catalogue.h"
#include "lib/frame/klantpc.h"
#include "lib/frame/modgenlib.h"
#include "lib/frame/paths.h"
#include "platform/dialogpresenter.h"
#include "platform/filesystem.h"
#include "platform/sound.h"
#include "runtime/callbyname.h"
#include "runtime/runtimeerror.h"

namespace qor {

namespace {

constexpr qint32 helpDeskText = 9700;
constexpr int criticalIcon = 16;

// The application's folder, or "" when no application was handed over or
// it cannot tell.
QString applicationPath()
{
    QObject *application = modGenLib().application;
    if (!application)
        return QString();
    try {
        return getProperty(application, "Path").toString();
    } catch (const RuntimeError &) {
        return QString();
    }
}

void reportMissing(const QString &fullName)
{
    const QString paragraph = QStringLiteral("\r\r");
    DialogPresenter::current().systemMessageBox({ QStringLiteral("Cannot Find Sound :") + paragraph
            + fullName + paragraph + loadCatalogueText(helpDeskText),
        criticalIcon, QStringLiteral("qorSoft General Library") });
}

} // namespace

void playSoundFile(QString &fileName, bool continuous, QString &soundDirectory)
{
    if (fileName.isEmpty()) {
        Sound::current().stopSound();
        return;
    }
    if (!getKlantPC())
        soundDirectory = Sound::current().developmentSoundDirectory();
    else if (soundDirectory.isEmpty())
        soundDirectory = pathRS(applicationPath()) + QStringLiteral("\\MultiMedia");
    fileName = pathRS(soundDirectory) + QLatin1Char('\\') + fileName;
    if (!FileSystem::current().fileExists(fileName)) {
        reportMissing(fileName);
        return;
    }
    Sound::current().playSound(fileName, continuous);
}

QString typeSoundFile(int type)
{
    static const char *files[]
        = { "Critical.wav", "Exclamation.wav", "Information.wav", "Question.wav", "Message.wav" };
    return QString::fromLatin1(files[type >= 0 && type < 5 ? type : 4]);
}

void playDialogSound(int type)
{
    if (modGenLib().soundOff)
        return;
    QString name = typeSoundFile(type);
    QString folder;
    try {
        playSoundFile(name, false, folder);
    } catch (const RuntimeError &) {
        // A dialog's sound never keeps the dialog from showing.
    }
}

} // namespace qor
