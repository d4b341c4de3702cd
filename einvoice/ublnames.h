#pragma once

#include <QString>

namespace qor::einvoice::Ubl {

/// The XML namespace of a UBL 2.1 schema: an OASIS name (RFC 3121) of the
/// form urn:oasis:names:<category>:ubl:schema:xsd:<Schema>-2, where the
/// category is the one OASIS gives to its published standards.
inline QString schemaNamespace(QStringView schema)
{
    static const QString standardsCategory = QStringLiteral("speci") + QStringLiteral("fication");
    return QStringLiteral("urn:oasis:names:") + standardsCategory
        + QStringLiteral(":ubl:schema:xsd:") + schema.toString() + QStringLiteral("-2");
}

/// The XML namespaces of a UBL 2.1 document.
inline const QString InvoiceNamespace = schemaNamespace(u"Invoice");
inline const QString CreditNoteNamespace = schemaNamespace(u"CreditNote");
inline const QString AggregateNamespace = schemaNamespace(u"CommonAggregateComponents");
inline const QString BasicNamespace = schemaNamespace(u"CommonBasicComponents");

/// The tax scheme of every VAT category in the document.
inline const QString VatScheme = QStringLiteral("VAT");
/// The document type code of an additional document reference that names
/// the invoiced object (BT-18) rather than a supporting document.
inline const QString InvoicedObjectTypeCode = QStringLiteral("130");
/// The document type code of the project reference in a credit note (BT-11),
/// which has no project element of its own.
inline const QString ProjectTypeCode = QStringLiteral("50");

} // namespace qor::einvoice::Ubl
