#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

inline constexpr auto checkBoxProperties = join(placedControl,
    std::array {
        PropertyDefinition { "Caption", QMetaType::QString },
        PropertyDefinition { "Value", QMetaType::Short }, // 0 unchecked, 1 checked, 2 greyed
    });

/// The check box.
inline constexpr ControlDefinition checkBox { "CheckBox", checkBoxProperties, placedOperations };

} // namespace qor::controls
