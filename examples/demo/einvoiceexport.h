#pragma once

#include "invoiceline.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QVariantList>

// What the demo's invoice form holds for an e-invoice.
struct EInvoiceSource
{
    QString number;
    QDate date;
    QString reference; // the structured communication, "+++000/0000/00000+++"
    QString customerName;
    QString customerVat; // the digits of a Belgian VAT number
    QList<InvoiceLine> lines;
};

// Writes the invoice as a Peppol BIS 3.0 e-invoice (UBL) to the path: the
// demo shop as seller with its IBAN and BIC, the customer as buyer, the lines
// without VAT at their own rates. Returns the rules the invoice breaks, as
// [rule, message] pairs in the language of the offset; nothing is written
// then.
QVariantList saveEInvoice(const EInvoiceSource &source, const QString &path, int offset);
