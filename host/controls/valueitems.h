#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

inline constexpr std::array valueItemsProperties {
    PropertyDefinition { "Count", QMetaType::Int },
    PropertyDefinition { "Translate", QMetaType::Bool },
};

inline constexpr std::array valueItemsOperations {
    OperationDefinition { "Add" },
    OperationDefinition { "Item" },
    OperationDefinition { "Remove" },
    OperationDefinition { "Clear" },
};

/// The value items of a grid column: stored values and what the cells show.
inline constexpr ControlDefinition valueItems { "ValueItems", valueItemsProperties,
    valueItemsOperations };

} // namespace qor::controls
