#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

inline constexpr auto labelProperties = join(placedControl,
    std::array {
        PropertyDefinition { "Alignment", QMetaType::Int }, // 0 left, 1 right, 2 centre
        PropertyDefinition { "AutoSize", QMetaType::Bool },
        PropertyDefinition { "Caption", QMetaType::QString },
        // The system's button text colour.
        PropertyDefinition { "ForeColor", QMetaType::Int, Unit::Colour, qint32(0x80000012) },
    });

/// A label of a form.
inline constexpr ControlDefinition label { "Label", labelProperties, placedOperations };

} // namespace qor::controls
