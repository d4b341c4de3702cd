#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

inline constexpr std::array calendarProperties {
    PropertyDefinition { "Holidays", QMetaType::QString }, // day/month pairs, comma-separated
    PropertyDefinition { "WeekTitles", QMetaType::QString }, // seven short names from Sunday
    // A real calendar also marks the public holidays of a country ("BE", "LU").
    PropertyDefinition { "Country", QMetaType::QString, Unit::None, 0, Side::Widget },
};

/// The drop-down calendar of a date field.
inline constexpr ControlDefinition calendar { "Calendar", calendarProperties, {} };

} // namespace qor::controls
