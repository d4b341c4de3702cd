#pragma once

#include "host/controls/propertyspec.h"

namespace qor::controls {

// A real window's position, size and handle are its own; the model keeps them.
inline constexpr auto menuFormProperties = join(
    std::array {
        PropertySpec { "Tag", QMetaType::QString, Unit::None, 0, Side::Model },
        PropertySpec { "Caption", QMetaType::QString, Unit::None, 0, Side::Both, true },
        PropertySpec { "Controls", QMetaType::QVariantList, Unit::None, 0, Side::Model },
        PropertySpec { "Left", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
        PropertySpec { "Top", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
        PropertySpec { "Width", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
        PropertySpec { "Height", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
        PropertySpec { "hWnd", QMetaType::Int, Unit::None, 0, Side::Both, true },
    },
    std::array {
        PropertySpec { "BorderStyle", QMetaType::Int, Unit::None, 2 }, // sizable
        PropertySpec { "ControlBox", QMetaType::Bool, Unit::None, 1 },
        PropertySpec { "MaxButton", QMetaType::Bool, Unit::None, 1 },
        PropertySpec { "MinButton", QMetaType::Bool, Unit::None, 1 },
        PropertySpec { "Moveable", QMetaType::Bool, Unit::None, 1 },
        PropertySpec { "ShowInTaskbar", QMetaType::Bool, Unit::None, 1 },
        PropertySpec { "StartUpPosition", QMetaType::Int, Unit::None, 3 }, // the screen's centre
        PropertySpec { "WindowState", QMetaType::Int },
        PropertySpec { "FrameMenu", QMetaType::QObjectStar, Unit::Object },
        PropertySpec { "MonthView", QMetaType::QObjectStar, Unit::Object },
        PropertySpec { "ShapeMenu", QMetaType::QVariantList },
        PropertySpec { "LabelVersie", QMetaType::QObjectStar, Unit::Object },
    });

/// The program's menu window.
inline constexpr ControlSpec menuForm { "MenuForm", menuFormProperties, {} };

} // namespace qor::controls
