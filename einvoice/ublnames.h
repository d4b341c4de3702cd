#pragma once

#include <QString>

namespace qor::einvoice::Ubl {

/// The XML namespaces of a UBL 2.1 document.
inline const QString InvoiceNamespace
    = QStringLiteral("urn:oasis:names:specification:ubl:schema:xsd:Invoice-2");
inline const QString CreditNoteNamespace
    = QStringLiteral("urn:oasis:names:specification:ubl:schema:xsd:CreditNote-2");
inline const QString AggregateNamespace
    = QStringLiteral("urn:oasis:names:specification:ubl:schema:xsd:CommonAggregateComponents-2");
inline const QString BasicNamespace
    = QStringLiteral("urn:oasis:names:specification:ubl:schema:xsd:CommonBasicComponents-2");

/// The tax scheme of every VAT category in the document.
inline const QString VatScheme = QStringLiteral("VAT");
/// The document type code of an additional document reference that names
/// the invoiced object (BT-18) rather than a supporting document.
inline const QString InvoicedObjectTypeCode = QStringLiteral("130");
/// The document type code of the project reference in a credit note (BT-11),
/// which has no project element of its own.
inline const QString ProjectTypeCode = QStringLiteral("50");

} // namespace qor::einvoice::Ubl
