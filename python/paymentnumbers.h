#pragma once

#include "python/numbercheck.h"

#include <optional>

namespace qor {
struct BelgianBank;
}

namespace qor::python {

// International bank account number (IBAN) of any registry country.
extern const NumberKind internationalAccount;
// Belgian IBAN: an IBAN of Belgium whose account digits pass their own check.
extern const NumberKind belgianAccount;
// ISO 11649 creditor reference: RF18 5390 0754 7034.
extern const NumberKind creditorReference;

// The bank of the bank code of a Belgian IBAN (as typed), whether or not its
// check digits are right; nothing for another text or an unknown code.
std::optional<BelgianBank> bankOfBelgianAccount(QStringView number);

} // namespace qor::python
