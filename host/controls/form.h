#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

/// What a model form keeps of its window: position and size in twips and the
/// window handle; a real form leaves them to its window.
inline constexpr std::array formWindow {
    PropertySpec { "Left", QMetaType::Float, Unit::Twips, 0, Side::Model },
    PropertySpec { "Top", QMetaType::Float, Unit::Twips, 0, Side::Model },
    PropertySpec { "Width", QMetaType::Float, Unit::Twips, 0, Side::Model },
    PropertySpec { "Height", QMetaType::Float, Unit::Twips, 0, Side::Model },
    PropertySpec { "hWnd", QMetaType::Int, Unit::None, 0, Side::Model },
};

inline constexpr auto formProperties = join(
    std::array {
        PropertySpec { "Tag", QMetaType::QString },
        PropertySpec { "Caption", QMetaType::QString, Unit::None, 0, Side::Both, true },
        PropertySpec { "Controls", QMetaType::QVariantList },
    },
    formWindow);

/// A form of the host program.
inline constexpr ControlSpec form { "Form", formProperties, {} };

} // namespace qor::controls
