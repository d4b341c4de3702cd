#pragma once

#include "qorgenlib_export.h"

#include "einvoice/invoicetotals.h"

#include <QByteArray>

namespace qor::einvoice {

/// What readUbl() made of a document.
struct UblReadResult
{
    /// The document as a model. It keeps the amounts the document states
    /// (statedAmounts and each line's statedNetAmount), so that writing it
    /// back gives the same identifiers, parties, lines and totals.
    Invoice invoice;
    /// Why the document could not be read, each naming the place (line and
    /// column, or the element path). When there is one, the invoice is
    /// incomplete and must not be used.
    QStringList errors;
    /// The elements the model does not hold and that a written-back document
    /// will not carry (a payee, a tax representative, UBL extensions, ...),
    /// each with its element path and line.
    QStringList dropped;
    /// Where the stated amounts differ from the library's own computation.
    QList<AmountDifference> differences;

    bool ok() const { return errors.isEmpty(); }
};

/// The largest document readUbl() accepts, in bytes.
inline constexpr qsizetype maxUblDocumentSize = 64 * 1024 * 1024;

/// Reads a UBL 2.1 Invoice or CreditNote (any document valid by the rules of
/// EN 16931) into the model.
///
/// Safe on any input: a DOCTYPE is refused outright, so no entity is ever
/// defined, expanded or fetched (nothing is read from disk or network); a
/// document above maxUblDocumentSize, text that is not XML, XML of another
/// kind, amounts that are not plain decimals of at most 18 digits (30 digits,
/// exponent form) and dates that do not exist (2026-02-30) give an error
/// naming the place. Never throws, never crashes.
QORGENLIB_EXPORT UblReadResult readUbl(const QByteArray &document);

} // namespace qor::einvoice
