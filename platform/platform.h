#pragma once

#include "qorgenlib_export.h"

#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/dialogpresenter.h"
#include "platform/filesystem.h"
#include "platform/keyboard.h"
#include "platform/processes.h"
#include "platform/sound.h"

#include <memory>

namespace qor {

/// The only door to the machine, as one object that plays every role: the
/// clock and regional settings, the dialogs, sound, files, processes, the
/// screen and the keyboard. Library code asks the role it needs
/// (`Clock::current()`, `FileSystem::current()`, ...), which is the platform
/// installed for its thread unless a role of its own was installed there, so
/// hosts, tests and the bridge choose what the library sees, whole or one role
/// at a time.
class QORGENLIB_EXPORT Platform : public Clock,
                                  public DialogPresenter,
                                  public Sound,
                                  public FileSystem,
                                  public Processes,
                                  public Desktop,
                                  public Keyboard
{
public:
    ~Platform() override;

    /// The platform of the calling thread; a headless default until one is installed.
    static Platform &current();
    /// Installs a platform for the calling thread and returns the one it
    /// replaces. A role installed on its own stays in front of it until that
    /// role is installed back as nullptr.
    static std::shared_ptr<Platform> install(std::shared_ptr<Platform> platform);
};

/// Shorthand for code that speaks to the whole platform.
inline Platform &platform()
{
    return Platform::current();
}

} // namespace qor
