#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

inline constexpr std::array gridStyleProperties {
    // A real view starts with its palette (white cells).
    PropertySpec { "BackColor", QMetaType::Int, Unit::Colour, 0, Side::Both, true },
    PropertySpec { "ForeColor", QMetaType::Int, Unit::Colour },
    // A real view starts wrapping, as a table view does.
    PropertySpec { "WrapText", QMetaType::Bool, Unit::None, 0, Side::Both, true },
    PropertySpec { "BorderAppearance", QMetaType::Int },
};

/// One of a grid's style objects (Style, HighlightRowStyle, SelectedStyle).
inline constexpr ControlSpec gridStyle { "Style", gridStyleProperties, {} };

} // namespace qor::controls
