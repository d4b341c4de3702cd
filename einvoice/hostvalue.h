#pragma once

#include "einvoice/decimal.h"

#include <QVariant>

#include <optional>

namespace qor::einvoice {

/// An amount, quantity, price or rate as a host passes it: a text is read as
/// an exact decimal ("12.50", "12,50", blanks around it ignored), a number to
/// 15 significant digits. Raises RuntimeError 13 (type mismatch) for anything
/// else and 6 (overflow) for a number beyond 18 digits.
Decimal decimalFromHost(const QVariant &value);
/// The same, where a missing optional argument means "not given".
std::optional<Decimal> optionalDecimalFromHost(const QVariant &value);

} // namespace qor::einvoice
