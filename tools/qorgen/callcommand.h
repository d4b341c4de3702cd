#pragma once

#include "tools/qorgen/jsonvalue.h"

#include <QStringList>

#include <cstdio>

namespace qor {

// `qorgen call [OPTIONS] METHOD [ARG ...]`: one call, printed for a person or,
// with --json, as the whole response. Options: --set NAME=JSON (repeatable),
// --locale NAME, --now ISO-DATETIME, --answer JSON (repeatable), --json.
// Exit status: 0 the call ran, 1 it raised a run-time error, 2 the request
// could not be read.
class CallCommand
{
public:
    struct Parsed
    {
        JsonValue request;
        bool jsonOutput = false;
    };

    // `arguments`: what follows "call". Bad usage raises RequestError 5.
    static Parsed parse(const QStringList &arguments);
    static int run(const QStringList &arguments, std::FILE *out, std::FILE *err);

    // An ARG: its JSON value, or the text itself as a string when it is not JSON.
    static JsonValue argument(const QString &text);
};

} // namespace qor
