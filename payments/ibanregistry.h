#pragma once

#include <QStringView>

namespace qor {

/// The BBAN structure of an IBAN country from the ISO 13616 registry: one
/// character class per BBAN position ('n' a digit, 'a' an upper-case letter,
/// 'c' a letter or digit), or nullptr for a country outside the registry.
/// The IBAN is four characters longer than the BBAN.
const char *ibanBbanClasses(QStringView country);

/// The number of countries in the registry.
int ibanCountryCount();

} // namespace qor
