#include "tools/qorgen/jsonsink.h"

#include "tools/qorgen/jsonvalue.h"

namespace qor {

void JsonSink::value(const JsonValue &value)
{
    switch (value.kind()) {
    case JsonValue::Kind::Null: null(); return;
    case JsonValue::Kind::Boolean: boolean(value.toBool()); return;
    case JsonValue::Kind::Integer: integer(value.toInteger()); return;
    case JsonValue::Kind::Single: single(value.toSingle()); return;
    case JsonValue::Kind::Double: number(value.toDouble()); return;
    case JsonValue::Kind::String: string(value.toString()); return;
    case JsonValue::Kind::Array:
        beginArray();
        for (const JsonValue &element : value.toArray())
            this->value(element);
        endArray();
        return;
    case JsonValue::Kind::Object:
        beginObject();
        for (const JsonValue::Member &member : value.toObject()) {
            key(member.first);
            this->value(member.second);
        }
        endObject();
        return;
    }
}

} // namespace qor
