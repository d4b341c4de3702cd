#pragma once

#include "validate/checkresult.h"

namespace qor {

// A structured payment reference made from an application's own reference.
struct PaymentReference
{
    // The reference in the form 000/0000/00000: ten digits and two check digits.
    QString ogm;
    // The digits of the reference as given (for the message of an over-long one).
    QString digits;
    // More than ten digits: only the last ten were used.
    bool tooLong = false;
};

// Makes the structured reference of a reference number: its digits, padded
// with zeros or cut to the last ten, and their remainder modulo 97 (97 for 0).
// The reference number is rewritten in place to the number used, without
// leading zeros.
PaymentReference makePaymentReference(QString &referentieNummer);
// The same into storage kept by the caller; true when the reference had more
// than ten digits.
bool makePaymentReference(QString &referentieNummer, QString &digits, QString &ogm);

// Checks a structured reference as typed (with or without +++, slashes, blanks)
// and returns it as 000/0000/00000. The text is reduced to its digits in place,
// and cleared when it is wrong. Unlike makePaymentReference, a remainder of 0
// needs check digits "00".
//
// The check divides the first ten digits as a 32-bit integer: a first part
// above 2147483647 throws RuntimeError 6 (Overflow), after the text was cleaned.
CheckResult checkPaymentReference(QString &ogm);
// The same with the display notation written into the caller's storage.
Verdict checkPaymentReference(QString &ogm, QString &display);

} // namespace qor
