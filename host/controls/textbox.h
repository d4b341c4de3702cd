#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

inline constexpr auto textBoxProperties = join(placedControl,
    std::array {
        PropertyDefinition { "Text", QMetaType::QString },
        PropertyDefinition { "SelStart", QMetaType::Int },
        PropertyDefinition { "SelLength", QMetaType::Int },
        PropertyDefinition { "MaxLength", QMetaType::Int }, // 0: no limit
        PropertyDefinition { "Enabled", QMetaType::Bool, Unit::None, 1 },
    });

inline constexpr std::array textBoxOperations {
    OperationDefinition { "SetFocus" },
    OperationDefinition { "Move", Side::Widget },
    OperationDefinition { "ZOrder", Side::Widget },
};

/// The edit control.
inline constexpr ControlDefinition textBox { "TextBox", textBoxProperties, textBoxOperations };

} // namespace qor::controls
