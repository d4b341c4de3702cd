#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

inline constexpr auto monthViewProperties = join(placedGeometry,
    std::array {
        PropertySpec { "BackColor", QMetaType::Int, Unit::Colour, qint32(0x8000000F) },
        PropertySpec { "BorderStyle", QMetaType::Int, Unit::None, 1 },
        // A real calendar starts on today.
        PropertySpec { "Day", QMetaType::Int, Unit::None, 1, Side::Both, true },
        PropertySpec { "ForeColor", QMetaType::Int, Unit::Colour, qint32(0x80000012) },
        PropertySpec { "MonthBackColor", QMetaType::Int, Unit::Colour, qint32(0x80000005) },
        PropertySpec { "MonthColumns", QMetaType::Int, Unit::None, 1 },
        PropertySpec { "MonthRows", QMetaType::Int, Unit::None, 1 },
        PropertySpec { "TitleForeColor", QMetaType::Int, Unit::Colour, qint32(0x80000009) },
        PropertySpec { "TitleBackColor", QMetaType::Int, Unit::Colour, qint32(0x80000002) },
        PropertySpec { "TrailingForeColor", QMetaType::Int, Unit::Colour, qint32(0x80000011) },
        // A real calendar starts showing them.
        PropertySpec { "ShowWeekNumbers", QMetaType::Bool, Unit::None, 0, Side::Both, true },
        PropertySpec { "Value", QMetaType::QVariant },
        PropertySpec { "Visible", QMetaType::Bool, Unit::None, 1, Side::Both, true },
    });

/// The month calendar of the menu window.
inline constexpr ControlSpec monthView { "MonthView", monthViewProperties, placedOperations };

} // namespace qor::controls
