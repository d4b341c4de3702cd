#include "runtime/codepage.h"

#include "runtime/runtimeerror.h"

#include <array>

namespace qor {

namespace {

// Codes 0x80..0x9F; the five codes windows-1252 leaves undefined keep the
// control character of the same value so that they survive a round trip.
constexpr std::array<char16_t, 32> highControlRange = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, // 80..87
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F, // 88..8F
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90..97
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178, // 98..9F
};

constexpr int questionMark = 63;

char16_t unicodeOf(unsigned char code)
{
    if (code >= 0x80 && code <= 0x9F)
        return highControlRange[code - 0x80];
    return code;
}

// The code of a UTF-16 unit, or -1 when windows-1252 has no such character.
int codeOf(char16_t unit)
{
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return unit;
    for (int i = 0; i < int(highControlRange.size()); ++i) {
        if (highControlRange[i] == unit)
            return 0x80 + i;
    }
    return -1;
}

} // namespace

QChar chr(int code)
{
    if (code < 0 || code > 255)
        throw RuntimeError::invalidProcedureCall();
    return QChar(unicodeOf(static_cast<unsigned char>(code)));
}

int asc(QChar c)
{
    const int code = codeOf(c.unicode());
    return code < 0 ? questionMark : code;
}

int asc(const QString &text)
{
    if (text.isEmpty())
        throw RuntimeError::invalidProcedureCall();
    return asc(text.at(0));
}

QByteArray toCp1252(const QString &text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        // A character outside the basic plane is one character, so one "?".
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        bytes.append(static_cast<char>(asc(c)));
    }
    return bytes;
}

QString fromCp1252(const QByteArray &bytes)
{
    QString text;
    text.reserve(bytes.size());
    for (char b : bytes)
        text.append(QChar(unicodeOf(static_cast<unsigned char>(b))));
    return text;
}

} // namespace qor
