#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

// A real view starts as it is made: both scroll bars, a frame, row headers,
// editable cells and its own row height.
inline constexpr auto gridProperties = join(
    std::array {
        PropertyDefinition { "AllowAddNew", QMetaType::Bool },
        PropertyDefinition { "AllowDelete", QMetaType::Bool },
        PropertyDefinition { "AllowUpdate", QMetaType::Bool, Unit::None, 0, Side::Both, true },
        PropertyDefinition { "AllowColSelect", QMetaType::Bool },
        PropertyDefinition { "DeadAreaBackColor", QMetaType::Int, Unit::Colour },
        PropertyDefinition { "BorderStyle", QMetaType::Short, Unit::None, 0, Side::Both, true },
        PropertyDefinition { "HeadLines", QMetaType::Double, Unit::None, 1 },
        PropertyDefinition { "RecordSelectors", QMetaType::Bool, Unit::None, 0, Side::Both, true },
        PropertyDefinition { "PartialRightColumn", QMetaType::Bool, Unit::None, 1 },
        PropertyDefinition { "MultipleLines", QMetaType::Short },
        PropertyDefinition { "MarqueeStyle", QMetaType::Int },
        PropertyDefinition { "MultiSelect", QMetaType::Int },
        PropertyDefinition { "ScrollBars", QMetaType::Int, Unit::None, 0, Side::Both, true },
        PropertyDefinition { "RowDividerStyle", QMetaType::Int },
        PropertyDefinition { "FetchRowStyle", QMetaType::Bool },
    },
    join(placedControl,
        std::array {
            // One text line and its divider.
            PropertyDefinition {
                "RowHeight", QMetaType::Float, Unit::Twips, 225, Side::Both, true },
            PropertyDefinition { "Tag", QMetaType::QString },
            PropertyDefinition { "Style", QMetaType::QObjectStar, Unit::Object },
            PropertyDefinition { "HighlightRowStyle", QMetaType::QObjectStar, Unit::Object },
            PropertyDefinition { "SelectedStyle", QMetaType::QObjectStar, Unit::Object },
            PropertyDefinition { "Columns", QMetaType::QObjectStar, Unit::Object },
        }));

inline constexpr std::array gridOperations {
    OperationDefinition { "Move", Side::Widget },
    OperationDefinition { "ZOrder", Side::Widget },
};

/// The data grid.
inline constexpr ControlDefinition grid { "Grid", gridProperties, gridOperations };

} // namespace qor::controls
