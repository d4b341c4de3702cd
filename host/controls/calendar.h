#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

inline constexpr std::array calendarProperties {
    PropertySpec { "Holidays", QMetaType::QString }, // day/month pairs, comma-separated
    PropertySpec { "WeekTitles", QMetaType::QString }, // seven short names from Sunday
    // A real calendar also marks the public holidays of a country ("BE", "LU").
    PropertySpec { "Country", QMetaType::QString, Unit::None, 0, Side::Widget },
};

/// The drop-down calendar of a date field.
inline constexpr ControlSpec calendar { "Calendar", calendarProperties, {} };

} // namespace qor::controls
