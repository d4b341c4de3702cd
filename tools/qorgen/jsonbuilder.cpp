#include "tools/qorgen/jsonbuilder.h"

namespace qor {

void JsonBuilder::beginObject()
{
    m_open.push_back(JsonValue::object());
    m_keys.emplace_back();
}

void JsonBuilder::endObject()
{
    m_keys.pop_back();
    close();
}

void JsonBuilder::beginArray()
{
    m_open.push_back(JsonValue::array());
}

void JsonBuilder::endArray()
{
    close();
}

void JsonBuilder::key(QStringView name)
{
    m_keys.back() = name.toString();
}

void JsonBuilder::null()
{
    place(JsonValue());
}

void JsonBuilder::boolean(bool value)
{
    place(value);
}

void JsonBuilder::integer(qint64 value)
{
    place(value);
}

void JsonBuilder::single(float value)
{
    place(JsonValue::single(value));
}

void JsonBuilder::number(double value)
{
    place(value);
}

void JsonBuilder::string(QStringView text)
{
    place(text.toString());
}

JsonValue JsonBuilder::take()
{
    return std::move(m_done);
}

void JsonBuilder::place(JsonValue value)
{
    if (m_open.empty()) {
        m_done = std::move(value);
        return;
    }
    JsonValue &container = m_open.back();
    if (container.isArray())
        container.append(std::move(value));
    else
        container.insert(m_keys.back(), std::move(value));
}

void JsonBuilder::close()
{
    JsonValue finished = std::move(m_open.back());
    m_open.pop_back();
    place(std::move(finished));
}

} // namespace qor
