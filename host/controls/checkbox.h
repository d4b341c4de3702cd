#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

inline constexpr auto checkBoxProperties = join(placedControl,
    std::array {
        PropertySpec { "Caption", QMetaType::QString },
        PropertySpec { "Value", QMetaType::Short }, // 0 unchecked, 1 checked, 2 greyed
    });

/// The check box.
inline constexpr ControlSpec checkBox { "CheckBox", checkBoxProperties, placedOperations };

} // namespace qor::controls
