#pragma once

#include "einvoice/invoice.h"
#include "qorgenlib_export.h"

#include <QByteArray>

namespace qor::einvoice {

/// How the elements of a written document are laid out.
enum class UblLayout {
    /// One line, no white space between elements: the smallest and fastest.
    Compact,
    /// One element per line, indented by two spaces: for people to read.
    Indented,
};

/// Writes the invoice as a UBL 2.1 Invoice or CreditNote (by its kind) with
/// the Peppol BIS Billing 3.0 customization and profile identifiers, UTF-8.
///
/// The amounts written are amountsToWrite(): those a document read states,
/// otherwise the library's computation. The model is written as it is, even
/// when it breaks the rules of the norm or of Peppol, so that such a document
/// can be shown to the official validation: a host should check the model
/// with the library's rule check first and write only a model without
/// findings. Empty fields are left out.
QORGENLIB_EXPORT QByteArray writeUbl(const Invoice &invoice, UblLayout layout = UblLayout::Compact);

} // namespace qor::einvoice
