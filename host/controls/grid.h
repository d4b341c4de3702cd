#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

// A real view starts as it is made: both scroll bars, a frame, row headers,
// editable cells and its own row height.
inline constexpr auto gridProperties = join(
    std::array {
        PropertySpec { "AllowAddNew", QMetaType::Bool },
        PropertySpec { "AllowDelete", QMetaType::Bool },
        PropertySpec { "AllowUpdate", QMetaType::Bool, Unit::None, 0, Side::Both, true },
        PropertySpec { "AllowColSelect", QMetaType::Bool },
        PropertySpec { "DeadAreaBackColor", QMetaType::Int, Unit::Colour },
        PropertySpec { "BorderStyle", QMetaType::Short, Unit::None, 0, Side::Both, true },
        PropertySpec { "HeadLines", QMetaType::Double, Unit::None, 1 },
        PropertySpec { "RecordSelectors", QMetaType::Bool, Unit::None, 0, Side::Both, true },
        PropertySpec { "PartialRightColumn", QMetaType::Bool, Unit::None, 1 },
        PropertySpec { "MultipleLines", QMetaType::Short },
        PropertySpec { "MarqueeStyle", QMetaType::Int },
        PropertySpec { "MultiSelect", QMetaType::Int },
        PropertySpec { "ScrollBars", QMetaType::Int, Unit::None, 0, Side::Both, true },
        PropertySpec { "RowDividerStyle", QMetaType::Int },
        PropertySpec { "FetchRowStyle", QMetaType::Bool },
    },
    join(placedControl,
        std::array {
            // One text line and its divider.
            PropertySpec { "RowHeight", QMetaType::Float, Unit::Twips, 225, Side::Both, true },
            PropertySpec { "Tag", QMetaType::QString },
            PropertySpec { "Style", QMetaType::QObjectStar, Unit::Object },
            PropertySpec { "HighlightRowStyle", QMetaType::QObjectStar, Unit::Object },
            PropertySpec { "SelectedStyle", QMetaType::QObjectStar, Unit::Object },
            PropertySpec { "Columns", QMetaType::QObjectStar, Unit::Object },
        }));

inline constexpr std::array gridOperations {
    OperationSpec { "Move", Side::Widget },
    OperationSpec { "ZOrder", Side::Widget },
};

/// The data grid.
inline constexpr ControlSpec grid { "Grid", gridProperties, gridOperations };

} // namespace qor::controls
