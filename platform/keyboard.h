#pragma once

#include "qorgenlib_export.h"

#include <memory>

namespace qor {

/// Key injection: the virtual key and scan code of a character, and one key
/// event (flags 0 down, 2 up) into the input stream of the focus.
class QORGENLIB_EXPORT Keyboard
{
public:
    /// The flags of a key event.
    enum KeyEventFlag { KeyDown = 0, KeyUp = 2 };

    virtual ~Keyboard();

    virtual int virtualKeyOf(int ansiCode) const = 0;
    virtual int scanCodeOf(int ansiCode) const = 0;
    virtual void keyEvent(int virtualKey, int scanCode, int flags) = 0;

    /// The keyboard of the calling thread: the one installed on its own, else the platform's.
    static Keyboard &current();
    /// Installs a keyboard for the calling thread alone (nullptr returns the role
    /// to the platform) and returns the one it replaces.
    static std::shared_ptr<Keyboard> install(std::shared_ptr<Keyboard> keyboard);
};

} // namespace qor
