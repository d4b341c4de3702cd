#pragma once

#include "einvoice/invoice.h"

namespace qor::einvoice {

/// A rule an invoice breaks: its id (see Rule) and what is wrong, in the
/// host's language.
struct RuleBreach
{
    QString ruleId;
    QString message;

    bool operator==(const RuleBreach &) const = default;
};

/// Checks an invoice against the rules of the e-invoice norm and the Peppol
/// profile that concern what the model holds, before it is written: required
/// fields, the rates and identifiers each VAT category asks for, reasons of
/// allowances and charges, payment means, and for a document that was read
/// the amounts it states. Belgian identifiers are checked too: the enterprise
/// number of every scheme-0208 identifier, the check digits of a Belgian VAT
/// number, the IBAN and BIC of a SEPA credit transfer or a Belgian account.
///
/// The messages are catalogue texts in the language of the offset (0 Dutch,
/// 10000 French, 20000 English). An empty list means no known rule is broken.
QList<RuleBreach> checkRules(const Invoice &invoice, qint32 languageOffset = 0);

} // namespace qor::einvoice
