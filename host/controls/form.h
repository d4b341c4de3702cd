#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

/// What a model form keeps of its window: position and size in twips and the
/// window handle; a real form leaves them to its window.
inline constexpr std::array formWindow {
    PropertyDefinition { "Left", QMetaType::Float, Unit::Twips, 0, Side::Model },
    PropertyDefinition { "Top", QMetaType::Float, Unit::Twips, 0, Side::Model },
    PropertyDefinition { "Width", QMetaType::Float, Unit::Twips, 0, Side::Model },
    PropertyDefinition { "Height", QMetaType::Float, Unit::Twips, 0, Side::Model },
    PropertyDefinition { "hWnd", QMetaType::Int, Unit::None, 0, Side::Model },
};

inline constexpr auto formProperties = join(
    std::array {
        PropertyDefinition { "Tag", QMetaType::QString },
        PropertyDefinition { "Caption", QMetaType::QString, Unit::None, 0, Side::Both, true },
        PropertyDefinition { "Controls", QMetaType::QVariantList },
    },
    formWindow);

/// A form of the host program.
inline constexpr ControlDefinition form { "Form", formProperties, {} };

} // namespace qor::controls
