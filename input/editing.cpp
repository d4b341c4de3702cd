#include "input/editing.h"

#include "platform/platform.h"
#include "runtime/callbyname.h"
#include "runtime/runtimeerror.h"

namespace qor {

void selEdit(QObject *control, bool startAtEnd, bool gridEditor)
{
    const char *textName = gridEditor ? "EditText" : "Text";
    const char *startName = gridEditor ? "EditSelStart" : "SelStart";
    const char *lengthName = gridEditor ? "EditSelLength" : "SelLength";
    const int length = int(getProperty(control, textName).toString().size());
    const RegionalSettings rs = platform().regionalSettings();
    setProperty(control, startName, startAtEnd ? length : 0, rs);
    setProperty(control, lengthName, startAtEnd ? 0 : length, rs);
}

void sendAKey(int keyAscii)
{
    // The character goes through single-byte calls: codes outside 0..255 are not characters.
    if (keyAscii < 0 || keyAscii > 255)
        throw RuntimeError::invalidProcedureCall();
    Platform &machine = platform();
    const int virtualKey = machine.virtualKeyOf(keyAscii) & 0xFF;
    const int scanCode = machine.scanCodeOf(keyAscii) & 0xFF;
    machine.keyEvent(virtualKey, scanCode, 0);
    machine.keyEvent(virtualKey, scanCode, 2);
}

} // namespace qor
