#include "tools/qorgen/jsonvalue.h"

namespace qor {

namespace {

const JsonValue::Array emptyArray;
const JsonValue::Object emptyObject;

} // namespace

JsonValue::JsonValue(bool value)
    : m_value(value)
{ }

JsonValue::JsonValue(int value)
    : m_value(qint64(value))
{ }

JsonValue::JsonValue(qint64 value)
    : m_value(value)
{ }

JsonValue::JsonValue(double value)
    : m_value(value)
{ }

JsonValue::JsonValue(const QString &text)
    : m_value(text)
{ }

JsonValue::JsonValue(const char *utf8)
    : m_value(QString::fromUtf8(utf8))
{ }

JsonValue::JsonValue(Array array)
    : m_value(std::move(array))
{ }

JsonValue::JsonValue(Object object)
    : m_value(std::move(object))
{ }

JsonValue JsonValue::single(float value)
{
    JsonValue json;
    json.m_value = value;
    return json;
}

bool JsonValue::isNumber() const
{
    return kind() == Kind::Integer || kind() == Kind::Single || kind() == Kind::Double;
}

bool JsonValue::toBool() const
{
    return isBool() && std::get<bool>(m_value);
}

qint64 JsonValue::toInteger() const
{
    switch (kind()) {
    case Kind::Integer: return std::get<qint64>(m_value);
    case Kind::Single: return qint64(std::get<float>(m_value));
    case Kind::Double: return qint64(std::get<double>(m_value));
    default: return 0;
    }
}

double JsonValue::toDouble() const
{
    switch (kind()) {
    case Kind::Integer: return double(std::get<qint64>(m_value));
    case Kind::Single: return double(std::get<float>(m_value));
    case Kind::Double: return std::get<double>(m_value);
    default: return 0;
    }
}

float JsonValue::toSingle() const
{
    return kind() == Kind::Single ? std::get<float>(m_value) : float(toDouble());
}

QString JsonValue::toString() const
{
    return isString() ? std::get<QString>(m_value) : QString();
}

const JsonValue::Array &JsonValue::toArray() const
{
    return isArray() ? std::get<Array>(m_value) : emptyArray;
}

const JsonValue::Object &JsonValue::toObject() const
{
    return isObject() ? std::get<Object>(m_value) : emptyObject;
}

const JsonValue *JsonValue::member(QStringView key) const
{
    for (const Member &m : toObject()) {
        if (m.first == key)
            return &m.second;
    }
    return nullptr;
}

JsonValue &JsonValue::insert(const QString &key, JsonValue value)
{
    if (!isObject())
        m_value = Object();
    std::get<Object>(m_value).emplace_back(key, std::move(value));
    return *this;
}

JsonValue &JsonValue::append(JsonValue value)
{
    if (!isArray())
        m_value = Array();
    std::get<Array>(m_value).push_back(std::move(value));
    return *this;
}

qsizetype JsonValue::size() const
{
    if (isArray())
        return qsizetype(std::get<Array>(m_value).size());
    if (isObject())
        return qsizetype(std::get<Object>(m_value).size());
    return 0;
}

QString JsonValue::kindName() const
{
    switch (kind()) {
    case Kind::Null: return QStringLiteral("null");
    case Kind::Boolean: return QStringLiteral("a Boolean");
    case Kind::Integer:
    case Kind::Single:
    case Kind::Double: return QStringLiteral("a number");
    case Kind::String: return QStringLiteral("a string");
    case Kind::Array: return QStringLiteral("an array");
    case Kind::Object: return QStringLiteral("an object");
    }
    return QString();
}

} // namespace qor
