#pragma once

#include <QMetaType>

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace qor::controls {

/// What a property's number measures, as the host sees it.
enum class Unit {
    None,
    Twips, ///< a position or size; real widgets convert it at the screen's twips per pixel
    Colour, ///< &HBBGGRR, or &H800000nn for a system colour
    Object, ///< a child object (a grid's Columns); a model may hold it in a variant
};

/// Which side of a control has a member: both the model and the adapter of a
/// real widget, or one of them only (a real widget can be hidden, a model
/// text box cannot).
enum class Side { Both, Model, Widget };

/// One property of a control: its name, type, unit and the value it starts
/// with. Numbers and booleans start at `initial`; texts start empty and
/// variants, lists and objects start as their owner makes them.
struct PropertyDefinition
{
    std::string_view name;
    QMetaType::Type type = QMetaType::UnknownType;
    Unit unit = Unit::None;
    qint64 initial = 0;
    Side side = Side::Both;
    /// On a real widget the adapter reports what the widget starts with (its
    /// size, its palette); `initial` is then the model's start alone.
    bool widgetStarts = false;
};

/// One operation (a method the host calls by name) of a control.
struct OperationDefinition
{
    std::string_view name;
    Side side = Side::Both;
};

/// The one definition of a control: the class name hosts use, its properties
/// and its operations. The model (host/) and the adapter of a real widget
/// (host/qt/) both start from it; a test holds their declarations to it.
struct ControlDefinition
{
    std::string_view hostClass;
    std::span<const PropertyDefinition> properties;
    std::span<const OperationDefinition> operations;
};

/// The members a control shares with another, followed by its own.
template <typename Definition, std::size_t First, std::size_t Second>
constexpr std::array<Definition, First + Second> join(
    const std::array<Definition, First> &first, const std::array<Definition, Second> &second)
{
    std::array<Definition, First + Second> all {};
    std::copy(first.begin(), first.end(), all.begin());
    std::copy(second.begin(), second.end(), all.begin() + First);
    return all;
}

/// The value a property starts with, in the type its holder keeps. A name the
/// control does not define stops the build.
template <typename T> consteval T initial(const ControlDefinition &control, std::string_view name)
{
    for (const PropertyDefinition &property : control.properties) {
        if (property.name == name)
            return T(property.initial);
    }
    throw "the control defines no property of this name";
}

/// What every placed control of a form has: position and size in twips.
inline constexpr std::array placedGeometry {
    PropertyDefinition { "Left", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
    PropertyDefinition { "Top", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
    PropertyDefinition { "Width", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
    PropertyDefinition { "Height", QMetaType::Float, Unit::Twips, 0, Side::Both, true },
};

/// Whether a real widget is shown; model controls do not keep it.
inline constexpr std::array widgetVisibility {
    PropertyDefinition { "Visible", QMetaType::Bool, Unit::None, 1, Side::Widget, true },
};

/// The operations of a placed control: Move on both, ZOrder on real widgets.
inline constexpr std::array placedOperations {
    OperationDefinition { "Move" },
    OperationDefinition { "ZOrder", Side::Widget },
};

/// Position, size and visibility of a placed control.
inline constexpr auto placedControl = join(placedGeometry, widgetVisibility);

/// Position, size and visibility that only a real widget has: its model is
/// not placed (a list, a date field).
inline constexpr std::array widgetPlacement {
    PropertyDefinition { "Left", QMetaType::Float, Unit::Twips, 0, Side::Widget, true },
    PropertyDefinition { "Top", QMetaType::Float, Unit::Twips, 0, Side::Widget, true },
    PropertyDefinition { "Width", QMetaType::Float, Unit::Twips, 0, Side::Widget, true },
    PropertyDefinition { "Height", QMetaType::Float, Unit::Twips, 0, Side::Widget, true },
    widgetVisibility[0],
};

/// Any placed control of a form, known by nothing more.
inline constexpr ControlDefinition control { "Control", placedControl, placedOperations };

} // namespace qor::controls
