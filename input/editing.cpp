#include "input/editing.h"

#include "platform/clock.h"
#include "platform/keyboard.h"
#include "runtime/callbyname.h"
#include "runtime/runtimeerror.h"

namespace qor {

void selEdit(QObject *control, bool startAtEnd, bool gridEditor)
{
    const char *textName = gridEditor ? "EditText" : "Text";
    const char *startName = gridEditor ? "EditSelStart" : "SelStart";
    const char *lengthName = gridEditor ? "EditSelLength" : "SelLength";
    const int length = int(getProperty(control, textName).toString().size());
    const RegionalSettings rs = Clock::current().regionalSettings();
    setProperty(control, startName, startAtEnd ? length : 0, rs);
    setProperty(control, lengthName, startAtEnd ? 0 : length, rs);
}

void sendAKey(int keyAscii)
{
    // The character goes through single-byte calls: codes outside 0..255 are not characters.
    if (keyAscii < 0 || keyAscii > 255)
        throw RuntimeError::invalidProcedureCall();
    Keyboard &keyboard = Keyboard::current();
    const int virtualKey = keyboard.virtualKeyOf(keyAscii) & 0xFF;
    const int scanCode = keyboard.scanCodeOf(keyAscii) & 0xFF;
    keyboard.keyEvent(virtualKey, scanCode, Keyboard::KeyDown);
    keyboard.keyEvent(virtualKey, scanCode, Keyboard::KeyUp);
}

} // namespace qor
