#pragma once

namespace qor {

// True on a customer workstation: the development set-up is recognised by a
// marker file in the system folder.
bool getKlantPC();

} // namespace qor
