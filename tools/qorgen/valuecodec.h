#pragma once

#include "tools/qorgen/jsonsink.h"
#include "tools/qorgen/jsonvalue.h"

#include <QDateTime>
#include <QVariant>

#include <optional>

namespace qor {

class HostObject;

// Library values and their JSON form, both ways:
//   String <-> string, Boolean <-> true/false, numbers <-> numbers, Null <-> null,
//   Empty <-> {"$empty": true}, Date <-> {"$date": "2004-05-20[T08:30:00]"},
//   array <-> array, host object <-> {"$object": CLASS, ...properties, "$calls": [...]},
//   a left-out argument <-> {"$missing": true} (arguments only),
//   a record (WindowSize) -> an object of its fields.
// A whole number becomes an Integer when 16 bits hold it, else a Long when 32
// bits do, else a Double; a number with a fraction or exponent is a Double.
// A value of the wrong shape raises RequestError 13 naming where it sits.
class ValueCodec
{
public:
    // Host objects are made as children of `owner`; `where` names the value in messages.
    static QVariant decode(const JsonValue &json, QObject *owner, const QString &where);
    // The same, and {"$missing": true} leaves the argument out.
    static QVariant decodeArgument(const JsonValue &json, QObject *owner, const QString &where);
    // Sets the properties a JSON object gives (except "$object" and "$calls") on
    // a host object: declared properties first in declaration order, read-only
    // ones skipped, then the others in the order given.
    static void populate(HostObject *object, const JsonValue &members, const QString &where);

    static JsonValue encode(const QVariant &value);
    // The same written straight into a sink.
    static void write(JsonSink &out, const QVariant &value);
    // The Variant subtype name of a value ("Integer", "String", ...); null for a left-out argument.
    static JsonValue typeOf(const QVariant &value);
    static void writeType(JsonSink &out, const QVariant &value);

    // "2004-05-20", "2004-05-20T08:30[:00]" or a time "08:30[:00]" (on the zero date).
    static std::optional<QDateTime> readDate(const QString &text);
    static QString dateText(const QVariant &date);

    static constexpr int maxDepth = 64;
};

} // namespace qor
