#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

inline constexpr auto labelProperties = join(placedControl,
    std::array {
        PropertySpec { "Alignment", QMetaType::Int }, // 0 left, 1 right, 2 centre
        PropertySpec { "AutoSize", QMetaType::Bool },
        PropertySpec { "Caption", QMetaType::QString },
        // The system's button text colour.
        PropertySpec { "ForeColor", QMetaType::Int, Unit::Colour, qint32(0x80000012) },
    });

/// A label of a form.
inline constexpr ControlSpec label { "Label", labelProperties, placedOperations };

} // namespace qor::controls
