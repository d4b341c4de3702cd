#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

inline constexpr auto shapeProperties = join(placedControl,
    std::array {
        PropertySpec { "BorderStyle", QMetaType::Int, Unit::None, 1 },
        PropertySpec { "FillStyle", QMetaType::Int, Unit::None, 1 }, // transparent
        PropertySpec { "BorderColor", QMetaType::Int, Unit::Colour },
        PropertySpec { "FillColor", QMetaType::Int, Unit::Colour },
    });

inline constexpr std::array shapeOperations {
    OperationSpec { "Move" },
    OperationSpec { "ZOrder" },
};

/// A rectangle drawn on a form (the menu's buttons).
inline constexpr ControlSpec shape { "Shape", shapeProperties, shapeOperations };

} // namespace qor::controls
