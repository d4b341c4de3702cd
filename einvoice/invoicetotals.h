#pragma once

#include "einvoice/invoice.h"
#include "qorgenlib_export.h"

namespace qor::einvoice {

/// The decimals of every amount in a document (BR-DEC rules).
inline constexpr int amountDecimals = 2;

/// BT-131: quantity × (net price ÷ base quantity) rounded to two decimals,
/// plus the line's charges, minus its allowances. A base quantity of zero or
/// an amount too large gives an invalid decimal.
QORGENLIB_EXPORT Decimal lineNetAmount(const InvoiceLine &line);

/// The line net amounts, the VAT breakdown and the document totals of the
/// invoice as the norm defines them (BR-CO-10 to BR-CO-17 and the
/// per-category rules):
/// - one breakdown per VAT category and rate of the lines and document-level
///   allowances and charges; its taxable amount is their net sum, its VAT
///   the taxable amount × rate ÷ 100 rounded to two decimals (zero for the
///   categories Z, E, AE, K, G and O); the exemption reason comes from the
///   invoice's vatExemptions, or the category's usual VATEX code;
/// - BT-106 = Σ BT-131, BT-107 = Σ allowances, BT-108 = Σ charges,
///   BT-109 = BT-106 − BT-107 + BT-108, BT-110 = Σ BT-117,
///   BT-112 = BT-109 + BT-110, BT-115 = BT-112 − BT-113 + BT-114.
/// The invoice's statedAmounts are ignored. Every amount has two decimals.
QORGENLIB_EXPORT InvoiceAmounts computeAmounts(const Invoice &invoice);

/// The amounts a writer puts in the document: those the invoice states when
/// it was read from one, otherwise the computed ones.
QORGENLIB_EXPORT InvoiceAmounts amountsToWrite(const Invoice &invoice);

/// One amount a document states differently from the library's computation.
struct AmountDifference
{
    /// The business term and where, e.g. "BT-131 of line 2" or "BT-117 of VAT S 21".
    QString place;
    /// The amount as stated; empty when the document does not state it.
    QString stated;
    /// The amount as computed; empty when the library has no such amount.
    QString computed;

    bool operator==(const AmountDifference &) const = default;
};

/// Where the stated amounts differ from the computed ones (values compared,
/// not texts: 5 equals 5.00). Breakdowns are matched by category and rate.
QORGENLIB_EXPORT QList<AmountDifference> compareAmounts(
    const InvoiceAmounts &stated, const InvoiceAmounts &computed);

} // namespace qor::einvoice
