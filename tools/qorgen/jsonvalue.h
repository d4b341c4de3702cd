#pragma once

#include <QString>

#include <utility>
#include <variant>
#include <vector>

namespace qor {

// A JSON value as the bridge reads and writes it. Unlike Qt's own JSON types it
// keeps the members of an object in the order they came, and tells a whole
// number written without fraction ("12") from one written with it ("12.0"), so
// that the Variant subtypes Integer and Long can be told from Double.
// A Single remembers its precision so that it is written in its shortest form.
class JsonValue
{
public:
    enum class Kind { Null, Boolean, Integer, Single, Double, String, Array, Object };
    using Array = std::vector<JsonValue>;
    using Member = std::pair<QString, JsonValue>;
    using Object = std::vector<Member>;

    JsonValue() = default;
    JsonValue(std::nullptr_t) { }
    JsonValue(bool value);
    JsonValue(int value);
    JsonValue(qint64 value);
    JsonValue(double value);
    JsonValue(const QString &text);
    JsonValue(const char *utf8);
    JsonValue(Array array);
    JsonValue(Object object);
    static JsonValue single(float value);
    static JsonValue array() { return JsonValue(Array()); }
    static JsonValue object() { return JsonValue(Object()); }

    Kind kind() const { return Kind(m_value.index()); }
    bool isNull() const { return kind() == Kind::Null; }
    bool isBool() const { return kind() == Kind::Boolean; }
    bool isNumber() const;
    bool isString() const { return kind() == Kind::String; }
    bool isArray() const { return kind() == Kind::Array; }
    bool isObject() const { return kind() == Kind::Object; }

    bool toBool() const;
    qint64 toInteger() const; // a Double is truncated
    double toDouble() const;
    float toSingle() const;
    QString toString() const; // empty for anything but a string
    const Array &toArray() const;
    const Object &toObject() const;

    // Object members: the value of `key` (exact), or nullptr.
    const JsonValue *member(QStringView key) const;
    JsonValue &insert(const QString &key, JsonValue value); // appends; returns *this
    // Array elements.
    JsonValue &append(JsonValue value); // returns *this
    qsizetype size() const; // elements or members; 0 for a scalar

    // "null", "a Boolean", "a number", "a string", "an array", "an object": for messages.
    QString kindName() const;

    bool operator==(const JsonValue &other) const = default;

private:
    std::variant<std::monostate, bool, qint64, float, double, QString, Array, Object> m_value;
};

} // namespace qor
