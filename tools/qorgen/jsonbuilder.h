#pragma once

#include "tools/qorgen/jsonsink.h"
#include "tools/qorgen/jsonvalue.h"

#include <vector>

namespace qor {

// Makes a JsonValue of what is written to it.
class JsonBuilder : public JsonSink
{
public:
    void beginObject() override;
    void endObject() override;
    void beginArray() override;
    void endArray() override;
    void key(QStringView name) override;

    void null() override;
    void boolean(bool value) override;
    void integer(qint64 value) override;
    void single(float value) override;
    void number(double value) override;
    void string(QStringView text) override;

    // The value written, once every object and array is closed.
    JsonValue take();

private:
    void place(JsonValue value);
    void close();

    std::vector<JsonValue> m_open; // the objects and arrays being filled
    std::vector<QString> m_keys; // of the members being written, one per open object
    JsonValue m_done;
};

} // namespace qor
