#pragma once

#include "host/controls/listcontrol.h"

namespace qor::controls {

/// A real list box also shows the selected entry's text.
inline constexpr auto listBoxProperties = join(listProperties,
    std::array { PropertyDefinition { "Text", QMetaType::QString, Unit::None, 0, Side::Widget } });

/// The list box.
inline constexpr ControlDefinition listBox { "ListBox", listBoxProperties, listOperations };

} // namespace qor::controls
