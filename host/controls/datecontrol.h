#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

inline constexpr auto dateControlProperties = join(
    std::array {
        PropertyDefinition { "MinDate", QMetaType::QVariant },
        PropertyDefinition { "MaxDate", QMetaType::QVariant },
        PropertyDefinition { "Value", QMetaType::QVariant },
        PropertyDefinition { "Format", QMetaType::QString },
        // A real field starts with the display format of the machine's locale.
        PropertyDefinition { "DisplayFormat", QMetaType::QString, Unit::None, 0, Side::Both, true },
        PropertyDefinition { "Calendar", QMetaType::QObjectStar, Unit::Object },
        // The date as a real field shows it.
        PropertyDefinition { "Text", QMetaType::QString, Unit::None, 0, Side::Widget, true },
    },
    widgetPlacement);

inline constexpr std::array dateControlOperations {
    OperationDefinition { "Move", Side::Widget },
    OperationDefinition { "ZOrder", Side::Widget },
};

/// The date field with its drop-down calendar.
inline constexpr ControlDefinition dateControl { "DateControl", dateControlProperties,
    dateControlOperations };

} // namespace qor::controls
