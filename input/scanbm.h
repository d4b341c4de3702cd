#pragma once

#include "qorgenlib_export.h"

#include <QObject>
#include <QString>

namespace qor {

// Scanner input through a host field's key-press handler. Barcode scanners and
// card readers type "%[" + data + "]"; the characters of a scan are collected
// out of sight in the module's scanner buffer, checked position by position
// against the scan format ("#" a digit, "@" anything, "_" a run of digits of
// any length, anything else literally), and the scanned value (or, with
// returnFieldOnly, only its "#" positions) is written into the field's Text
// when the closing "]" arrives. "%[OK]" and "%[ANN]" put "OK" or "ANN" into
// the field. Ordinary typing passes through.
//
// Returns the key code the host must pass on (0 swallows the key). The field
// is reached by name: Text, SelLength, SelStart. The format is rewritten in
// upper case. A key code outside 0..255 that must be collected raises
// RuntimeError 5; a missing field RuntimeError 91.
QORGENLIB_EXPORT qint16 scanBM(QObject *textBox, qint16 keyAscii, QString &scanFormat, bool returnFieldOnly,
    bool mbox, qint32 offset);

// The key codes that steer a scan.
namespace ScanKey {
enum Code : qint16 {
    Backspace = 8,
    Enter = 13,
    Escape = 27,
    Start = 37, // "%"
    End = 93, // "]"
};
} // namespace ScanKey

} // namespace qor
