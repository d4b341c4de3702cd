#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

inline constexpr std::array columnProperties {
    // A real column is where it stands in its view.
    PropertyDefinition { "ColIndex", QMetaType::Int, Unit::None, 0, Side::Both, true },
    PropertyDefinition { "DataField", QMetaType::QString },
    PropertyDefinition { "Caption", QMetaType::QString },
    PropertyDefinition { "Alignment", QMetaType::Int }, // 0 left, 1 right, 2 centre
    PropertyDefinition { "Width", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
    PropertyDefinition { "FetchStyle", QMetaType::Bool },
    PropertyDefinition { "Visible", QMetaType::Bool, Unit::None, 1 },
    PropertyDefinition { "Merge", QMetaType::Bool },
    PropertyDefinition { "AllowFocus", QMetaType::Bool, Unit::None, 1 },
    PropertyDefinition { "AllowSizing", QMetaType::Bool, Unit::None, 1 },
    PropertyDefinition { "NumberFormat", QMetaType::QString },
    PropertyDefinition { "DividerStyle", QMetaType::Int },
    PropertyDefinition { "HeadAlignment", QMetaType::Int },
    PropertyDefinition { "Tag", QMetaType::QString },
    PropertyDefinition { "HeadingStyle", QMetaType::QObjectStar, Unit::Object },
    PropertyDefinition { "ValueItems", QMetaType::QObjectStar, Unit::Object },
    // A real column takes it from its ValueItems.
    PropertyDefinition { "Translate", QMetaType::Bool, Unit::None, 0, Side::Model },
};

/// One column of a grid.
inline constexpr ControlDefinition column { "Column", columnProperties, {} };

} // namespace qor::controls
