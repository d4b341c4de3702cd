#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

inline constexpr auto textBoxProperties = join(placedControl,
    std::array {
        PropertySpec { "Text", QMetaType::QString },
        PropertySpec { "SelStart", QMetaType::Int },
        PropertySpec { "SelLength", QMetaType::Int },
        PropertySpec { "MaxLength", QMetaType::Int }, // 0: no limit
        PropertySpec { "Enabled", QMetaType::Bool, Unit::None, 1 },
    });

inline constexpr std::array textBoxOperations {
    OperationSpec { "SetFocus" },
    OperationSpec { "Move", Side::Widget },
    OperationSpec { "ZOrder", Side::Widget },
};

/// The edit control.
inline constexpr ControlSpec textBox { "TextBox", textBoxProperties, textBoxOperations };

} // namespace qor::controls
