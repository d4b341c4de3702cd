#pragma once

#include <QStringView>

namespace qor {

class JsonValue;

// Receives a JSON value piece by piece, in order: the bridge's encoders write
// through it, so that a response goes straight into the output (JsonWriter) or
// into a JsonValue (JsonBuilder) by the same code. Inside an object every value
// follows its key().
class JsonSink
{
public:
    virtual ~JsonSink() = default;

    virtual void beginObject() = 0;
    virtual void endObject() = 0;
    virtual void beginArray() = 0;
    virtual void endArray() = 0;
    virtual void key(QStringView name) = 0;

    virtual void null() = 0;
    virtual void boolean(bool value) = 0;
    virtual void integer(qint64 value) = 0;
    virtual void single(float value) = 0;
    virtual void number(double value) = 0;
    virtual void string(QStringView text) = 0;

    // A whole value at once.
    void value(const JsonValue &value);
};

} // namespace qor
