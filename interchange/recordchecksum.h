#pragma once

#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

namespace qor {

// The checksum of a record: the windows-1252 codes of its characters added up
// modulo 256. A character the code page lacks counts as "?" (63), once for a
// character outside the basic plane, exactly as it is written to a file.
class RecordChecksum
{
public:
    static quint8 of(QStringView text);
    static quint8 of(QByteArrayView bytes);

    // Two upper-case hexadecimal digits, "0A" for 10.
    static QString digits(quint8 sum);
    // Two hexadecimal digits in either case; anything else is no checksum.
    static std::optional<quint8> read(char16_t high, char16_t low);
};

} // namespace qor
