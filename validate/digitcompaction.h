#pragma once

#include <QtGlobal>

namespace qor {

// Whether this processor can pick the digits out of a text eight characters at
// a time (x86-64 with SSSE3); where it cannot, the caller goes one by one.
bool canCompactDigitsEightAtATime();

// The digits 0 to 9 among the size characters at text, in their order, written
// to out, which has room for size + 8 characters (it is written past the digits).
// Returns the number of digits. Only when canCompactDigitsEightAtATime().
qsizetype compactDigitsEightAtATime(const char16_t *text, qsizetype size, char16_t *out);

} // namespace qor
