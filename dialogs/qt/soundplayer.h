#pragma once

#include <QString>

class QSoundEffect;

namespace qor {

// The one wave player of the library: a new sound replaces the one playing,
// playback runs in the background, a looping sound plays until stopped.
class SoundPlayer
{
public:
    static void play(const QString &localFile, bool continuous);
    static void stop();
    // The player itself, created on first use (for a look at its state).
    static QSoundEffect &effect();
};

} // namespace qor
