#pragma once

#include "calculator/calculatorsession.h"

namespace qor {

// The calculator's help card in the language of the offset. Above 0 every
// explanation and the title come from the catalogue; otherwise the card keeps
// its own Dutch texts. The line on direct VAT is always the Dutch one.
CalculatorHelpCard calculatorHelpCard(qint32 offset);

} // namespace qor
