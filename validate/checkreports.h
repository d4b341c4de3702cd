#pragma once

#include <QString>

namespace qor {

// What the identifier checks tell the user, in the module language, through the
// extended message box. The checks themselves show nothing.

// "What is wrong", a blank line, "how to write it": exclamation, OK, "Fout !".
void reportRefusedBankAccount();
void reportRefusedEnterpriseNumber();
void reportRefusedNationalNumber();
// The typed reference followed by " is een ongeldige OGM...".
void reportRefusedPaymentReference(const QString &typed);
// A reference of more than ten digits; the text speaks of nine, as it always did.
void reportReferenceTooLong(const QString &digits, const QString &paragraphBreak);
// The identity-number box: true when the user accepts the number as it stands.
bool userAcceptsIdentityCard(const QString &identNr);

} // namespace qor
