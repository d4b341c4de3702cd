#pragma once

#include "qorgenlib_export.h"

#include "payments/paymentcheck.h"

#include <QString>
#include <QStringView>

namespace qor {

/// The electronic form of a BIC as typed: without blanks and dashes, letters
/// in upper case.
QORGENLIB_EXPORT QString bicElectronicForm(QStringView bic);

/// Checks a BIC (ISO 9362) in electronic form, in this order:
/// - not 8 or 11 characters: InvalidLength;
/// - not four letters (the bank), two letters (the country), two letters or
///   digits (the location) and optionally three letters or digits (the branch):
///   InvalidFormat;
/// - a country code that ISO 3166 does not assign (XK, Kosovo, is taken as
///   the banks use it): InvalidComponent.
QORGENLIB_EXPORT PaymentCheck bicValidity(QStringView electronic);

/// The same for a BIC as typed (bicElectronicForm first).
QORGENLIB_EXPORT PaymentCheck checkBic(QStringView bic);

/// True for a country code ISO 3166-1 assigns, and XK.
QORGENLIB_EXPORT bool isCountryCode(QStringView code);

} // namespace qor
