#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

/// What list boxes and combo boxes share; a real one is also a placed control.
inline constexpr auto listProperties = join(
    std::array {
        PropertyDefinition { "List", QMetaType::QVariantList },
        PropertyDefinition { "ItemData", QMetaType::QVariantList },
        PropertyDefinition { "ListIndex", QMetaType::Int, Unit::None, -1 }, // -1: nothing selected
        PropertyDefinition { "ListCount", QMetaType::Int },
        PropertyDefinition { "NewIndex", QMetaType::Int, Unit::None, -1 },
    },
    widgetPlacement);

inline constexpr std::array listOperations {
    OperationDefinition { "Clear" },
    OperationDefinition { "AddItem" },
    OperationDefinition { "RemoveItem", Side::Model },
    OperationDefinition { "Move", Side::Widget },
    OperationDefinition { "ZOrder", Side::Widget },
};

} // namespace qor::controls
