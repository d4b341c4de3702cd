#pragma once

#include "einvoice/invoice.h"
#include "qorgenlib_export.h"

#include <QJsonObject>

namespace qor::einvoice {

/// The invoice as a JSON object, in the shape docs/einvoice.md describes:
/// member names are the model's field names, amounts, quantities and rates
/// are strings ("12.50") so that no digit is lost, dates are "YYYY-MM-DD",
/// the kind is "invoice" or "creditNote". Empty texts, invalid dates,
/// absent optionals and empty lists are left out.
QORGENLIB_EXPORT QJsonObject invoiceToJson(const Invoice &invoice);

/// What invoiceFromJson() made of a JSON object.
struct InvoiceFromJson
{
    Invoice invoice;
    /// One message per member that could not be taken, naming its path
    /// ("lines[2].quantity: ..."); empty when everything was taken.
    QStringList errors;
};

/// Reads the shape invoiceToJson() writes. Amounts may also be JSON numbers
/// (read to 15 significant digits); an unknown member, a value of the wrong
/// type, a date that does not exist or an amount that is not a plain decimal
/// of at most 18 digits is reported in errors and otherwise left at its
/// default. Never throws.
QORGENLIB_EXPORT InvoiceFromJson invoiceFromJson(const QJsonObject &json);

} // namespace qor::einvoice
