#pragma once

#include "tools/qorgen/jsonvalue.h"

#include <QByteArray>

namespace qor {

// A response as a person wants to read it: the result as plain text, and what
// the call showed or played, one entry after the other.
class HumanOutput
{
public:
    // The result as text with a line end; nothing for a method without result.
    static QByteArray result(const JsonValue &response);
    // What the user saw or heard, and the error, if any.
    static QByteArray shown(const JsonValue &response);
    static QByteArray error(const JsonValue &response);

    // A value as plain text: strings as they are, dates as their ISO text, others as JSON.
    static QString plainText(const JsonValue &value);
};

} // namespace qor
