#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

inline constexpr auto monthViewProperties = join(placedGeometry,
    std::array {
        PropertyDefinition { "BackColor", QMetaType::Int, Unit::Colour, qint32(0x8000000F) },
        PropertyDefinition { "BorderStyle", QMetaType::Int, Unit::None, 1 },
        // A real calendar starts on today.
        PropertyDefinition { "Day", QMetaType::Int, Unit::None, 1, Side::Both, true },
        PropertyDefinition { "ForeColor", QMetaType::Int, Unit::Colour, qint32(0x80000012) },
        PropertyDefinition { "MonthBackColor", QMetaType::Int, Unit::Colour, qint32(0x80000005) },
        PropertyDefinition { "MonthColumns", QMetaType::Int, Unit::None, 1 },
        PropertyDefinition { "MonthRows", QMetaType::Int, Unit::None, 1 },
        PropertyDefinition { "TitleForeColor", QMetaType::Int, Unit::Colour, qint32(0x80000009) },
        PropertyDefinition { "TitleBackColor", QMetaType::Int, Unit::Colour, qint32(0x80000002) },
        PropertyDefinition {
            "TrailingForeColor", QMetaType::Int, Unit::Colour, qint32(0x80000011) },
        // A real calendar starts showing them.
        PropertyDefinition { "ShowWeekNumbers", QMetaType::Bool, Unit::None, 0, Side::Both, true },
        PropertyDefinition { "Value", QMetaType::QVariant },
        PropertyDefinition { "Visible", QMetaType::Bool, Unit::None, 1, Side::Both, true },
    });

/// The month calendar of the menu window.
inline constexpr ControlDefinition monthView { "MonthView", monthViewProperties, placedOperations };

} // namespace qor::controls
