#pragma once

#include "qorgenlib_export.h"

#include <QStringView>

namespace qor {

/// The BBAN structure of an IBAN country from the ISO 13616 registry: one
/// character class per BBAN position ('n' a digit, 'a' an upper-case letter,
/// 'c' a letter or digit), or nullptr for a country outside the registry.
/// The IBAN is four characters longer than the BBAN.
const char *ibanBbanClasses(QStringView country);

/// The BBAN length of an IBAN country, 0 for a country outside the registry.
QORGENLIB_EXPORT int ibanBbanLength(QStringView country);

/// The number of countries in the registry.
QORGENLIB_EXPORT int ibanCountryCount();

} // namespace qor
