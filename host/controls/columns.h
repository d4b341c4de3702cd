#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

inline constexpr std::array columnsProperties {
    PropertyDefinition { "Count", QMetaType::Int },
};

inline constexpr std::array columnsOperations {
    OperationDefinition { "Add" },
    OperationDefinition { "Remove" },
    OperationDefinition { "Item" },
};

/// The columns of a grid.
inline constexpr ControlDefinition columns { "Columns", columnsProperties, columnsOperations };

} // namespace qor::controls
