#pragma once

#include "einvoice/decimal.h"

#include <QList>
#include <optional>

namespace qor::einvoice {

/// The VAT of one category and rate (BG-23).
struct VatBreakdown
{
    /// BT-118.
    QString category;
    /// BT-119: absent for category O.
    std::optional<Decimal> rate;
    /// BT-116: the sum of the line net amounts of the category and rate, plus
    /// its document charges, minus its document allowances (BR-CO-... rules of
    /// each category).
    Decimal taxableAmount;
    /// BT-117: taxable amount × rate ÷ 100, rounded to two decimals; zero for
    /// the categories without VAT.
    Decimal taxAmount;
    /// BT-120: why the category carries no VAT, as text.
    QString exemptionReason;
    /// BT-121: the same as a VATEX code.
    QString exemptionReasonCode;

    bool operator==(const VatBreakdown &) const = default;
};

/// The document totals (BG-22).
struct DocumentTotals
{
    /// BT-106: the sum of the line net amounts.
    Decimal lineNetTotal;
    /// BT-107: the sum of the document-level allowances.
    Decimal allowanceTotal;
    /// BT-108: the sum of the document-level charges.
    Decimal chargeTotal;
    /// BT-109: BT-106 − BT-107 + BT-108.
    Decimal taxExclusiveAmount;
    /// BT-110: the sum of the breakdown's VAT amounts.
    Decimal vatTotal;
    /// BT-111: the VAT total in the VAT accounting currency, when the document has one.
    std::optional<Decimal> vatTotalInAccountingCurrency;
    /// BT-112: BT-109 + BT-110.
    Decimal taxInclusiveAmount;
    /// BT-113: the amount paid in advance.
    Decimal paidAmount;
    /// BT-114: the rounding amount added to reach the amount due.
    Decimal roundingAmount;
    /// BT-115: BT-112 − BT-113 + BT-114.
    Decimal payableAmount;

    bool operator==(const DocumentTotals &) const = default;
};

/// Every amount of a document that follows from its lines, allowances and
/// charges: what the library computes, or what a document read states.
struct InvoiceAmounts
{
    /// BT-131 of each line, in the order of the lines.
    QList<Decimal> lineNetAmounts;
    /// BG-23, one entry per VAT category and rate, in the order in which the
    /// lines, then the document's allowances and charges, first name them.
    QList<VatBreakdown> vatBreakdown;
    /// BG-22.
    DocumentTotals totals;

    bool operator==(const InvoiceAmounts &) const = default;
};

} // namespace qor::einvoice
