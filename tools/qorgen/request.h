#pragma once

#include "tools/qorgen/environment.h"
#include "tools/qorgen/jsonvalue.h"

#include <QByteArrayView>
#include <QVariantList>

#include <optional>

namespace qor {

// One request as read from its JSON object: what to call with which
// arguments, the properties to set first, the platform, the dialog answers,
// and whether to start afresh. Values stay JSON until the session makes them
// library values. A request that is not shaped so raises RequestError.
struct Request
{
    QString call; // empty: nothing to call
    QString object; // the class whose object is called; empty: the library object
    JsonValue::Array args;
    JsonValue::Object set;
    Environment env;
    QVariantList answers;
    bool fresh = false;
    // Echoed unchanged in the response when the request has one.
    std::optional<JsonValue> id;
    // False: the response leaves out the object's properties.
    bool withProperties = true;

    static Request fromJson(const JsonValue &json);
    // A dialog answer as the recording platform takes it.
    static QVariant answer(const JsonValue &json, int index);
    // The id of a request object, whatever else is wrong with it.
    static std::optional<JsonValue> idOf(const JsonValue &json);
};

} // namespace qor
