#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

inline constexpr std::array gridStyleProperties {
    // A real view starts with its palette (white cells).
    PropertyDefinition { "BackColor", QMetaType::Int, Unit::Colour, 0, Side::Both, true },
    PropertyDefinition { "ForeColor", QMetaType::Int, Unit::Colour },
    // A real view starts wrapping, as a table view does.
    PropertyDefinition { "WrapText", QMetaType::Bool, Unit::None, 0, Side::Both, true },
    PropertyDefinition { "BorderAppearance", QMetaType::Int },
};

/// One of a grid's style objects (Style, HighlightRowStyle, SelectedStyle).
inline constexpr ControlDefinition gridStyle { "Style", gridStyleProperties, {} };

} // namespace qor::controls
