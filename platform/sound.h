#pragma once

#include "qorgenlib_export.h"

#include <QString>

#include <memory>

namespace qor {

/// Sound: a wave file once or looping, and stopping what plays.
class QORGENLIB_EXPORT Sound
{
public:
    virtual ~Sound();

    virtual void playSound(const QString &file, bool continuous) = 0;
    virtual void stopSound() = 0;
    /// The folder a station that is not a customer station plays its sounds
    /// from, whatever the caller asks for.
    virtual QString developmentSoundDirectory() const = 0;

    /// The sound of the calling thread: the one installed on its own, else the platform's.
    static Sound &current();
    /// Installs a sound role for the calling thread alone (nullptr returns the
    /// role to the platform) and returns the one it replaces.
    static std::shared_ptr<Sound> install(std::shared_ptr<Sound> sound);
};

} // namespace qor
