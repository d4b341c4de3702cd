#pragma once

#include "platform/recordedevent.h"

#include <QVariantMap>

namespace qor {

class JsonSink;

// Writes what the recording platform recorded (the "shown" and "actions" of a
// response) as JSON objects: a "kind" and the fields of the record, with their
// nested lists and maps.
class RecordWriter
{
public:
    // A shown record, its fields in the order people read them.
    static void writeShown(JsonSink &out, const ShownEvent &record);
    // The "actions" array. Key events that follow each other make one "keys"
    // record: "codes" holds the virtual keys pressed, in order, and "events" each
    // event as it went out (virtual key, scan code, flags 0 down or 2 up).
    static void writeActions(JsonSink &out, const QList<MachineAction> &records);

private:
    // The fields a record is written with, its kind among them.
    static QVariantMap fields(const ShownEvent &record);
    static QVariantMap fields(const MachineAction &record);
    // An action record, its fields in the order of their names.
    static void writeAction(JsonSink &out, const MachineAction &record);
};

} // namespace qor
