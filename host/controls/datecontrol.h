#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

inline constexpr auto dateControlProperties = join(
    std::array {
        PropertySpec { "MinDate", QMetaType::QVariant },
        PropertySpec { "MaxDate", QMetaType::QVariant },
        PropertySpec { "Value", QMetaType::QVariant },
        PropertySpec { "Format", QMetaType::QString },
        // A real field starts with the display format of the machine's locale.
        PropertySpec { "DisplayFormat", QMetaType::QString, Unit::None, 0, Side::Both, true },
        PropertySpec { "Calendar", QMetaType::QObjectStar, Unit::Object },
        // The date as a real field shows it.
        PropertySpec { "Text", QMetaType::QString, Unit::None, 0, Side::Widget, true },
    },
    widgetPlacement);

inline constexpr std::array dateControlOperations {
    OperationSpec { "Move", Side::Widget },
    OperationSpec { "ZOrder", Side::Widget },
};

/// The date field with its drop-down calendar.
inline constexpr ControlSpec dateControl { "DateControl", dateControlProperties,
    dateControlOperations };

} // namespace qor::controls
