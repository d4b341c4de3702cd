#pragma once

#include <QtGlobal>

namespace qor {

// The fixed texts and catalogue ids the grid and list helpers use.
namespace gridtext {

// Reported when the companion of a sorted array has another upper bound.
inline constexpr char UnequalBounds[]
    = "UBound(RefArray) must be equal to UBound(Array) when calling SortOrder procedure !";
inline constexpr char UnequalBoundsTitle[] = "OstGenLib";

// Payment methods: codes 0 to 19 as short and as long names.
inline constexpr qint32 PaymentShortFirst = 9810;
inline constexpr qint32 PaymentLongFirst = 9900;
// Units: codes 1 to 13.
inline constexpr qint32 UnitFirst = 9831;
// The word shown for a missing or zero house number.
inline constexpr qint32 NoHouseNumber = 9018;

} // namespace gridtext

} // namespace qor
