#pragma once

#include "python/numbercheck.h"

namespace qor::python {

// Belgian enterprise (VAT) number: 0403.170.701, "BE" in front allowed.
extern const NumberKind belgianVat;
// Belgian national register number: 85.07.30-033.28.
extern const NumberKind nationalNumber;
// Structured payment reference: +++090/9337/55493+++.
extern const NumberKind structuredReference;

} // namespace qor::python
