#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

/// What list boxes and combo boxes share; a real one is also a placed control.
inline constexpr auto listProperties = join(
    std::array {
        PropertySpec { "List", QMetaType::QVariantList },
        PropertySpec { "ItemData", QMetaType::QVariantList },
        PropertySpec { "ListIndex", QMetaType::Int, Unit::None, -1 }, // -1: nothing selected
        PropertySpec { "ListCount", QMetaType::Int },
        PropertySpec { "NewIndex", QMetaType::Int, Unit::None, -1 },
    },
    widgetPlacement);

inline constexpr std::array listOperations {
    OperationSpec { "Clear" },
    OperationSpec { "AddItem" },
    OperationSpec { "RemoveItem", Side::Model },
    OperationSpec { "Move", Side::Widget },
    OperationSpec { "ZOrder", Side::Widget },
};

} // namespace qor::controls
