#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

inline constexpr auto frameProperties = join(placedControl,
    std::array {
        PropertyDefinition { "Caption", QMetaType::QString },
        // The system's button face colour; a real frame starts with its palette's.
        PropertyDefinition {
            "BackColor", QMetaType::Int, Unit::Colour, qint32(0x8000000F), Side::Both, true },
        PropertyDefinition { "BorderStyle", QMetaType::Int, Unit::None, 1, Side::Both, true },
    });

/// The frame that holds other controls (the grid, the menu buttons).
inline constexpr ControlDefinition frame { "Frame", frameProperties, placedOperations };

} // namespace qor::controls
