#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

inline constexpr auto shapeProperties = join(placedControl,
    std::array {
        PropertyDefinition { "BorderStyle", QMetaType::Int, Unit::None, 1 },
        PropertyDefinition { "FillStyle", QMetaType::Int, Unit::None, 1 }, // transparent
        PropertyDefinition { "BorderColor", QMetaType::Int, Unit::Colour },
        PropertyDefinition { "FillColor", QMetaType::Int, Unit::Colour },
    });

inline constexpr std::array shapeOperations {
    OperationDefinition { "Move" },
    OperationDefinition { "ZOrder" },
};

/// A rectangle drawn on a form (the menu's buttons).
inline constexpr ControlDefinition shape { "Shape", shapeProperties, shapeOperations };

} // namespace qor::controls
