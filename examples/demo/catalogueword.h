#pragma once

#include <qorgenlib/lib/clsqorgenlib.h>

// A word of the library's catalogue in the language the object speaks now: the
// base id plus the object's Offset. A word the language lacks comes back as the
// library's marker, and is shown as such.
inline QString catalogueWord(clsqorGenLib &lib, int baseId)
{
    return lib.LLGenLib(baseId + lib.property("Offset").toInt());
}
