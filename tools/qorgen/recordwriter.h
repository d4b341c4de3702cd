#pragma once

#include <QVariantMap>

namespace qor {

class JsonSink;

// Writes what the recording platform recorded (the "shown" and "actions" of a
// response) as JSON objects, every field with its nested lists and maps as the
// platform holds them.
class RecordWriter
{
public:
    // A shown record, its fields in the order people read them.
    static void writeShown(JsonSink &out, const QVariantMap &record);
    // An action record, its fields in the platform's order.
    static void writeAction(JsonSink &out, const QVariantMap &record);
};

} // namespace qor
