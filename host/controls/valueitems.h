#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

inline constexpr std::array valueItemsProperties {
    PropertySpec { "Count", QMetaType::Int },
    PropertySpec { "Translate", QMetaType::Bool },
};

inline constexpr std::array valueItemsOperations {
    OperationSpec { "Add" },
    OperationSpec { "Item" },
    OperationSpec { "Remove" },
    OperationSpec { "Clear" },
};

/// The value items of a grid column: stored values and what the cells show.
inline constexpr ControlSpec valueItems { "ValueItems", valueItemsProperties,
    valueItemsOperations };

} // namespace qor::controls
