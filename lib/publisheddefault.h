#pragma once

#include "qorgenlib_export.h"

#include <QJsonValue>
#include <QLatin1StringView>
#include <QMetaType>
#include <QVariant>

#include <cstddef>
#include <span>
#include <string_view>
#include <type_traits>

namespace qor {

/// The published default of one optional argument: a Boolean, a whole number
/// (an enumeration by its value), a text, or none at all: an optional argument
/// without default, whose absence the method reads as the empty value of its
/// type (a Variant as left out).
class QORGENLIB_EXPORT PublishedValue
{
public:
    enum class Kind { None, Boolean, Number, Text };

    constexpr PublishedValue(std::nullptr_t) { }
    constexpr PublishedValue(bool flag)
        : m_kind(Kind::Boolean)
        , m_flag(flag)
    { }
    constexpr PublishedValue(qint32 number)
        : m_kind(Kind::Number)
        , m_number(number)
    { }
    template <typename Enum>
    requires std::is_enum_v<Enum>
    constexpr PublishedValue(Enum value)
        : PublishedValue(qint32(value))
    { }
    constexpr PublishedValue(const char *text)
        : m_kind(Kind::Text)
        , m_text(text)
    { }

    constexpr Kind kind() const { return m_kind; }

    /// The default as a C++ argument of type T: bool for a Boolean, a number or
    /// an enumeration for a number, QLatin1StringView for a text. Without
    /// default it is the empty value of T. Asking for another type fails to
    /// compile where the value is needed at compile time.
    template <typename T> constexpr T to() const
    {
        if (m_kind == Kind::None)
            return T {};
        if constexpr (std::is_same_v<T, bool>) {
            if (m_kind == Kind::Boolean)
                return m_flag;
        } else if constexpr (std::is_arithmetic_v<T> || std::is_enum_v<T>) {
            if (m_kind == Kind::Number)
                return T(m_number);
        } else if constexpr (std::is_same_v<T, QLatin1StringView>) {
            if (m_kind == Kind::Text)
                return QLatin1StringView(m_text.data(), qsizetype(m_text.size()));
        }
        throw "a published default asked for in a type it does not have";
    }

    /// The default as the type information publishes it (null without default).
    QJsonValue toJson() const;
    /// The default as a Variant argument receives it: a whole number as an
    /// Integer, and without default the value of an argument left out.
    QVariant toVariant() const;

private:
    Kind m_kind = Kind::None;
    bool m_flag = false;
    qint32 m_number = 0;
    std::string_view m_text;
};

/// One optional argument of a published method and its default.
struct PublishedDefault
{
    std::string_view method;
    std::string_view parameter;
    PublishedValue value;
};

/// The default of a method's parameter in a table of published defaults; a
/// method or parameter the table does not hold fails to compile where the
/// value is needed at compile time (as in genLibDefault()).
constexpr PublishedValue publishedDefault(
    std::span<const PublishedDefault> table, std::string_view method, std::string_view parameter)
{
    for (const PublishedDefault &entry : table) {
        if (entry.method == method && entry.parameter == parameter)
            return entry.value;
    }
    throw "no published default for this parameter";
}

/// A published default (as JSON) in a parameter's own type, as late binding
/// passes it for an argument left out; invalid for null. A whole number
/// passed as a Variant keeps the Integer subtype an automation default has.
QORGENLIB_EXPORT QVariant publishedArgument(const QJsonValue &json, QMetaType type);

} // namespace qor
