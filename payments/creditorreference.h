#pragma once

#include "qorgenlib_export.h"

#include "payments/paymentcheck.h"

#include <QString>
#include <QStringView>

namespace qor {

/// The electronic form of a creditor reference as typed: without blanks,
/// dashes and dots, letters in upper case.
QORGENLIB_EXPORT QString creditorReferenceElectronicForm(QStringView reference);

/// Checks an ISO 11649 creditor reference in electronic form, in this order:
/// - fewer than 5 or more than 25 characters: InvalidLength;
/// - not "RF", or a character other than 0-9 and A-Z: InvalidFormat;
/// - the mod 97-10 check of the rearranged reference: InvalidChecksum.
QORGENLIB_EXPORT PaymentCheck creditorReferenceValidity(QStringView electronic);

/// The same for a reference as typed (creditorReferenceElectronicForm first).
QORGENLIB_EXPORT PaymentCheck checkCreditorReference(QStringView reference);

/// The creditor reference of the creditor's own reference (1 to 21 letters
/// and digits; blanks, dashes and dots are ignored, letters taken in upper case), in electronic
/// form: "RF", two check digits (02 to 98), the reference. "" when the
/// reference is empty, too long or holds another character.
QORGENLIB_EXPORT QString makeCreditorReference(QStringView reference);

/// The print form of a creditor reference in electronic form: groups of four
/// separated by one space ("RF18 5390 0754 7034"). Not checked.
QORGENLIB_EXPORT QString creditorReferencePrintForm(QStringView electronic);

} // namespace qor
