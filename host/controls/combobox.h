#pragma once

#include "host/controls/listcontrol.h"

namespace qor::controls {

inline constexpr auto comboBoxProperties
    = join(listProperties, std::array { PropertyDefinition { "Text", QMetaType::QString } });

/// The combo box: a list with the text of its edit part.
inline constexpr ControlDefinition comboBox { "ComboBox", comboBoxProperties, listOperations };

} // namespace qor::controls
