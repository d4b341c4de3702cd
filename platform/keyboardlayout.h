#pragma once

namespace qor {

// The US keyboard layout as the key-injection calls see it: the virtual key of
// a character (shift state in the high byte, -1 when no key types it) and the
// hardware scan code of a character of the OEM code page (-1 when none).
int virtualKeyScan(int ansiCode);
int oemScanCode(int oemCode);
// The OEM (code page 437) code of a windows-1252 character; 63 ("?") when it has none.
int ansiToOem(int ansiCode);

} // namespace qor
