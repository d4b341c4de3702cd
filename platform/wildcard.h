#pragma once

#include <QString>

namespace qor {

// Whether a file name matches a classic wildcard, without regard to case:
// "*" any run of characters, "?" one character, everything else itself.
// "*.*" matches every name, with or without a dot, and an empty pattern too.
bool matchesWildcard(const QString &name, const QString &pattern);

} // namespace qor
