#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

inline constexpr auto frameProperties = join(placedControl,
    std::array {
        PropertySpec { "Caption", QMetaType::QString },
        // The system's button face colour; a real frame starts with its palette's.
        PropertySpec {
            "BackColor", QMetaType::Int, Unit::Colour, qint32(0x8000000F), Side::Both, true },
        PropertySpec { "BorderStyle", QMetaType::Int, Unit::None, 1, Side::Both, true },
    });

/// The frame that holds other controls (the grid, the menu buttons).
inline constexpr ControlSpec frame { "Frame", frameProperties, placedOperations };

} // namespace qor::controls
