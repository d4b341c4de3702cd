#pragma once

#include "qorgenlib_export.h"

#include <QString>

namespace qor {

/// A SEPA credit transfer as a payment QR code carries it.
struct CreditTransfer
{
    /// The beneficiary's name: 1 to 70 characters, no control characters.
    QString name;
    /// The beneficiary's IBAN, as typed.
    QString iban;
    /// The amount in euro: 0.01 to 999999999.99, rounded to the cent.
    double amount = 0;
    /// The beneficiary's BIC, as typed; may be empty.
    QString bic;
    /// An ISO 11649 creditor reference ("RF..."), a Belgian structured
    /// communication ("+++000/0000/00000+++" or "000/0000/00000"), or empty.
    QString reference;
    /// A free text for the beneficiary: at most 140 characters; may be empty.
    QString text;
};

/// The payload of the EPC069-12 SEPA credit transfer QR code, version 002,
/// character set UTF-8: the lines BCD, 002, 1, SCT, BIC, name, IBAN
/// (electronic form), "EUR" and the amount with a point and two decimals,
/// purpose (empty), the creditor reference, the remittance text, separated by
/// one line feed, trailing empty lines left out.
///
/// A creditor reference goes into the structured remittance line; a Belgian
/// structured communication goes into the text line as "+++000/0000/00000+++",
/// as Belgian banks read it. A reference and a text together do not fit in one
/// transfer.
///
/// "" when the name, IBAN, BIC, amount, reference or text is wrong, or when a
/// reference and a text are both given.
QORGENLIB_EXPORT QString epcPayload(const CreditTransfer &transfer);

/// The Belgian structured communication of a text ("+++", "/", blanks
/// allowed around twelve digits whose first ten modulo 97, 0 counting as 97,
/// equal the last two) as "+++000/0000/00000+++"; "" for another text.
QORGENLIB_EXPORT QString belgianStructuredCommunication(const QString &reference);

} // namespace qor
