#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

inline constexpr std::array columnsProperties {
    PropertySpec { "Count", QMetaType::Int },
};

inline constexpr std::array columnsOperations {
    OperationSpec { "Add" },
    OperationSpec { "Remove" },
    OperationSpec { "Item" },
};

/// The columns of a grid.
inline constexpr ControlSpec columns { "Columns", columnsProperties, columnsOperations };

} // namespace qor::controls
