#pragma once

namespace qor {

// True on a customer workstation: the development set-up is recognised by a
// marker file in the system folder (its name matched without regard to case).
bool getKlantPC();

} // namespace qor
