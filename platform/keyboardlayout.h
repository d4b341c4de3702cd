#pragma once

#include "qorgenlib_export.h"

namespace qor {

// The US keyboard layout as the key-injection calls see it: the virtual key of
// a character (shift state in the high byte, -1 when no key types it) and the
// hardware scan code of a character of the OEM code page (-1 when none).
QORGENLIB_EXPORT int virtualKeyScan(int ansiCode);
QORGENLIB_EXPORT int oemScanCode(int oemCode);
// The OEM (code page 437) code of a windows-1252 character; 63 ("?") when it has none.
QORGENLIB_EXPORT int ansiToOem(int ansiCode);

} // namespace qor
