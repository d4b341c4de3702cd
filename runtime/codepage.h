#pragma once

#include "qorgenlib_export.h"

#include <QByteArray>
#include <QChar>
#include <QString>

namespace qor {

// The windows-1252 code page: the single-byte character codes the library's
// key codes, filters and checksums are defined in.

// Chr: code 0..255 to its character (undefined codes 0x81, 0x8D, 0x8F, 0x90,
// 0x9D map to the control character of the same value); other codes -> RuntimeError 5.
QORGENLIB_EXPORT QChar chr(int code);
// Asc of one character: its code; a character outside the code page -> 63 ("?").
QORGENLIB_EXPORT int asc(QChar c);
// Asc of a text: the code of its first character; an empty text -> RuntimeError 5.
QORGENLIB_EXPORT int asc(const QString &text);

QORGENLIB_EXPORT QByteArray toCp1252(const QString &text);
QORGENLIB_EXPORT QString fromCp1252(const QByteArray &bytes);

} // namespace qor
