#pragma once

#include "einvoice/decimal.h"

#include <optional>

namespace qor::einvoice {

/// An allowance (discount) or a charge, on the document (BG-20 / BG-21) or
/// on a line (BG-27 / BG-28).
///
/// The amount is given; a percentage and base amount, when given, only say
/// how it was found (the rule check verifies amount = base × percentage / 100).
struct AllowanceCharge
{
    /// False for an allowance, true for a charge.
    bool isCharge = false;
    /// BT-92 / BT-99 / BT-136 / BT-141: the amount without VAT, at most two
    /// decimals.
    Decimal amount;
    /// BT-93 / BT-100 / BT-137 / BT-142: the base amount the percentage
    /// applies to.
    std::optional<Decimal> baseAmount;
    /// BT-94 / BT-101 / BT-138 / BT-143: the percentage.
    std::optional<Decimal> percentage;
    /// BT-95 / BT-102: the VAT category of a document-level allowance or
    /// charge (lines use the line's category; ignored there).
    QString vatCategory;
    /// BT-96 / BT-103: its VAT rate (absent for category O).
    std::optional<Decimal> vatRate;
    /// BT-97 / BT-104 / BT-139 / BT-144: the reason as text.
    QString reason;
    /// BT-98 / BT-105 / BT-140 / BT-145: the reason code (UNCL 5189 for an
    /// allowance, e.g. "95" discount; UNCL 7161 for a charge, e.g. "FC" freight).
    QString reasonCode;

    bool operator==(const AllowanceCharge &) const = default;
};

} // namespace qor::einvoice
