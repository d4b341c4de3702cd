#pragma once

#include "qorgenlib_export.h"

#include "payments/paymentcheck.h"

#include <QString>
#include <QStringView>

namespace qor {

/// The electronic form of an IBAN as typed: without blanks, dashes and dots,
/// letters in upper case. Nothing else is removed, so a check refuses it.
QORGENLIB_EXPORT QString ibanElectronicForm(QStringView iban);

/// Checks an IBAN in electronic form, in this order:
/// - empty, or a character other than 0-9 and A-Z: InvalidFormat;
/// - the ISO 7064 mod 97-10 check (the first four characters moved to the end,
///   letters as 10 to 35, remainder 1): InvalidChecksum;
/// - a country outside the IBAN registry: InvalidComponent;
/// - a length or a BBAN character that does not fit the registry's format:
///   InvalidFormat.
QORGENLIB_EXPORT PaymentCheck ibanValidity(QStringView electronic);

/// The same for an IBAN as typed (ibanElectronicForm first).
QORGENLIB_EXPORT PaymentCheck checkIban(QStringView iban);

/// The print form of an IBAN in electronic form: groups of four characters
/// separated by one space ("BE71 0961 2345 6769"). Not checked.
QORGENLIB_EXPORT QString ibanPrintForm(QStringView electronic);

/// Checks a Belgian IBAN in electronic form: ibanValidity, then
/// InvalidComponent for another country and InvalidChecksum when the BBAN's
/// own check fails (its first ten digits modulo 97, 0 counting as 97, equal its
/// last two). A bank code missing from the National Bank's list is not refused.
QORGENLIB_EXPORT PaymentCheck belgianIbanValidity(QStringView electronic);

/// An IBAN in electronic form as the library's IBAN check takes it:
/// belgianIbanValidity for a Belgian IBAN, ibanValidity for any other.
QORGENLIB_EXPORT PaymentCheck ibanAndAccountValidity(QStringView electronic);

/// The Belgian account number in the notation before IBAN (twelve digits;
/// blanks, dashes, dots and slashes between them are allowed) to its IBAN in
/// electronic form ("BE71096123456769"). "" when the number is not twelve
/// digits or its own check fails.
QORGENLIB_EXPORT QString ibanFromBelgianAccount(QStringView account);

/// A Belgian IBAN (as typed) to the account number in the notation before IBAN
/// ("096-1234567-69"). "" for another country or a wrong IBAN.
QORGENLIB_EXPORT QString belgianAccountFromIban(QStringView iban);

/// True when twelve digits pass the Belgian account check: the first ten
/// modulo 97 (0 counting as 97) equal the last two.
QORGENLIB_EXPORT bool belgianAccountDigitsMatch(QStringView twelveDigits);

} // namespace qor
