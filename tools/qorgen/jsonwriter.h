#pragma once

#include "tools/qorgen/jsonvalue.h"

#include <QByteArray>

namespace qor {

// Writes a JsonValue as UTF-8 JSON: compact on one line (the bridge's
// responses) or indented for people. Members keep their order. Numbers are
// written in their shortest exact form; a Double or Single with a whole value
// keeps a ".0" so that a reader can tell it from an Integer. A number that JSON
// cannot hold (infinite, not a number) is written as null.
class JsonWriter
{
public:
    static QByteArray compact(const JsonValue &value);
    // The compact form appended to `out`, whose buffer is reused from call to call.
    static void appendCompact(QByteArray &out, const JsonValue &value);
    static QByteArray indented(const JsonValue &value);

private:
    explicit JsonWriter(bool indent);

    void write(const JsonValue &value, int level);
    void writeArray(const JsonValue::Array &array, int level);
    void writeObject(const JsonValue::Object &object, int level);
    void writeString(const QString &text);
    void writeDouble(double value);
    void writeSingle(float value);
    void newLine(int level);

    bool m_indent;
    QByteArray m_out;
};

} // namespace qor
