#pragma once

#include "lib/frame/klantpc.h"

#include <QString>

namespace qor {

// On a development machine: act as a customer station or not and, when not,
// use another language; both choices are kept in the settings file. The
// object's KlantPC, Offset and FieldExt are passed in and updated. On a
// customer station nothing changes.
void setDebug(
    bool debugKlantPC, qint32 debugOffset, bool &klantPC, qint32 &offset, QString &fieldExt);

// The language suffix of an offset: "NL", "FR", "UK", "DE", "ES", "IT" for
// 0 to 50000, "" for any offset outside them.
QString fieldExtOf(qint32 offset);

// Four digits that change every clock hour: (day × month) mod 100, then
// (hour + day) mod 100, each with a leading zero.
QString getTimerCode();

} // namespace qor
