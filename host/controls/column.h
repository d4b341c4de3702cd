#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

inline constexpr std::array columnProperties {
    // A real column is where it stands in its view.
    PropertySpec { "ColIndex", QMetaType::Int, Unit::None, 0, Side::Both, true },
    PropertySpec { "DataField", QMetaType::QString },
    PropertySpec { "Caption", QMetaType::QString },
    PropertySpec { "Alignment", QMetaType::Int }, // 0 left, 1 right, 2 centre
    PropertySpec { "Width", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
    PropertySpec { "FetchStyle", QMetaType::Bool },
    PropertySpec { "Visible", QMetaType::Bool, Unit::None, 1 },
    PropertySpec { "Merge", QMetaType::Bool },
    PropertySpec { "AllowFocus", QMetaType::Bool, Unit::None, 1 },
    PropertySpec { "AllowSizing", QMetaType::Bool, Unit::None, 1 },
    PropertySpec { "NumberFormat", QMetaType::QString },
    PropertySpec { "DividerStyle", QMetaType::Int },
    PropertySpec { "HeadAlignment", QMetaType::Int },
    PropertySpec { "Tag", QMetaType::QString },
    PropertySpec { "HeadingStyle", QMetaType::QObjectStar, Unit::Object },
    PropertySpec { "ValueItems", QMetaType::QObjectStar, Unit::Object },
    // A real column takes it from its ValueItems.
    PropertySpec { "Translate", QMetaType::Bool, Unit::None, 0, Side::Model },
};

/// One column of a grid.
inline constexpr ControlSpec column { "Column", columnProperties, {} };

} // namespace qor::controls
