#pragma once

#include "host/controls/propertydefinition.h"

namespace qor::controls {

// A real window's position, size and handle are its own; the model keeps them.
inline constexpr auto menuFormProperties = join(
    std::array {
        PropertyDefinition { "Tag", QMetaType::QString, Unit::None, 0, Side::Model },
        PropertyDefinition { "Caption", QMetaType::QString, Unit::None, 0, Side::Both, true },
        PropertyDefinition { "Controls", QMetaType::QVariantList, Unit::None, 0, Side::Model },
        PropertyDefinition { "Left", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
        PropertyDefinition { "Top", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
        PropertyDefinition { "Width", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
        PropertyDefinition { "Height", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
        PropertyDefinition { "hWnd", QMetaType::Int, Unit::None, 0, Side::Both, true },
    },
    std::array {
        PropertyDefinition { "BorderStyle", QMetaType::Int, Unit::None, 2 }, // sizable
        PropertyDefinition { "ControlBox", QMetaType::Bool, Unit::None, 1 },
        PropertyDefinition { "MaxButton", QMetaType::Bool, Unit::None, 1 },
        PropertyDefinition { "MinButton", QMetaType::Bool, Unit::None, 1 },
        PropertyDefinition { "Moveable", QMetaType::Bool, Unit::None, 1 },
        PropertyDefinition { "ShowInTaskbar", QMetaType::Bool, Unit::None, 1 },
        PropertyDefinition {
            "StartUpPosition", QMetaType::Int, Unit::None, 3 }, // the screen's centre
        PropertyDefinition { "WindowState", QMetaType::Int },
        PropertyDefinition { "FrameMenu", QMetaType::QObjectStar, Unit::Object },
        PropertyDefinition { "MonthView", QMetaType::QObjectStar, Unit::Object },
        PropertyDefinition { "ShapeMenu", QMetaType::QVariantList },
        PropertyDefinition { "LabelVersie", QMetaType::QObjectStar, Unit::Object },
    });

/// The program's menu window.
inline constexpr ControlDefinition menuForm { "MenuForm", menuFormProperties, {} };

} // namespace qor::controls
