#include "dialogs/qt/soundplayer.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSoundEffect>
#include <QUrl>

namespace qor {

QSoundEffect &SoundPlayer::effect()
{
    // Owned by the application, so that it goes before the audio back end does.
    static QPointer<QSoundEffect> player;
    if (!player)
        player = new QSoundEffect(QCoreApplication::instance());
    return *player;
}

void SoundPlayer::play(const QString &localFile, bool continuous)
{
    QSoundEffect &player = effect();
    player.stop();
    player.setSource(QUrl::fromLocalFile(localFile));
    player.setLoopCount(continuous ? QSoundEffect::Infinite : 1);
    // Plays as soon as the file is loaded; an unreadable file leaves it silent.
    player.play();
}

void SoundPlayer::stop()
{
    effect().stop();
}

} // namespace qor
