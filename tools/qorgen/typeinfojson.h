#pragma once

#include "tools/qorgen/jsonvalue.h"

namespace qor {

class TypeLibrary;

// The published type information as JSON: methods with their parameters
// (name, type, byRef, optional, default), properties with their types,
// enumerations with their members in declaration order, and records.
class TypeInfoJson
{
public:
    static JsonValue describe(const TypeLibrary &library);
    // The library object's information as describe() gives it, and under
    // "classes" that of each further creatable class, by name.
    static JsonValue describeAll();
};

} // namespace qor
