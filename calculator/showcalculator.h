#pragma once

#include <QtGlobal>

namespace qor {

// Shows the calculator modally with value in its display and in the module's
// result register, and returns the register as the calculator left it: the
// result on Insert or a second = / Enter, the starting value on Esc. The VAT
// keys take the rates given; the digit-typed flag and the display currency
// (the module's calculator mode: 0 euro, 1 Belgian francs) are kept in the
// module state.
double showCalculator(double value, qint32 rate1, qint32 rate2, qint32 offset);

} // namespace qor
