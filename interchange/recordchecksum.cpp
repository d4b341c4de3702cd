#include "interchange/recordchecksum.h"

#include "runtime/codepage.h"

#include <cstring>

namespace qor {

namespace {

int hexValue(char16_t c)
{
    if (c >= u'0' && c <= u'9')
        return c - u'0';
    if (c >= u'A' && c <= u'F')
        return c - u'A' + 10;
    if (c >= u'a' && c <= u'f')
        return c - u'a' + 10;
    return -1;
}

} // namespace

quint8 RecordChecksum::of(QStringView text)
{
    // Most records hold only characters whose code is their own value (below
    // 0x80, or 0xA0 to 0xFF): four at a time, each in a 16-bit lane.
    constexpr quint64 highBytes = 0xFF00FF00FF00FF00ull;
    constexpr quint64 rangeBits = 0x00E000E000E000E0ull; // 0x80..0x9F: bits 0x80 alone
    constexpr quint64 rangeValue = 0x0080008000800080ull;
    constexpr quint64 ones = 0x0001000100010001ull;
    constexpr quint64 signs = 0x8000800080008000ull;
    const char16_t *units = text.utf16();
    const qsizetype n = text.size();
    qsizetype i = 0;
    quint64 total = 0;
    bool plain = true;
    while (plain && n - i >= 4) {
        quint64 lanes = 0;
        const qsizetype end = i + qMin<qsizetype>((n - i) / 4, 256) * 4;
        for (; i < end; i += 4) {
            quint64 word;
            std::memcpy(&word, units + i, 8);
            const quint64 range = (word & rangeBits) ^ rangeValue;
            if ((word & highBytes) || ((range - ones) & ~range & signs)) {
                plain = false;
                break;
            }
            lanes += word;
        }
        for (int lane = 0; lane < 4; ++lane)
            total += (lanes >> (16 * lane)) & 0xFFFF;
    }
    for (; plain && i < n; ++i) {
        const char16_t unit = units[i];
        plain = unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF);
        total += unit;
    }
    if (plain)
        return quint8(total & 0xFF);

    unsigned sum = 0;
    for (i = 0; i < n; ++i) {
        const QChar c = text[i];
        // A surrogate pair is one character the code page lacks.
        if (c.isHighSurrogate() && i + 1 < n && text[i + 1].isLowSurrogate())
            ++i;
        sum += unsigned(asc(c));
    }
    return quint8(sum & 0xFF);
}

quint8 RecordChecksum::of(QByteArrayView bytes)
{
    // Eight bytes at a time: each 16-bit lane of the accumulator gathers the
    // bytes of two columns, and is emptied before it can overflow.
    const char *data = bytes.data();
    qsizetype n = bytes.size();
    quint64 total = 0;
    while (n >= 8) {
        quint64 lanes = 0;
        const qsizetype words = qMin<qsizetype>(n / 8, 128);
        for (qsizetype w = 0; w < words; ++w, data += 8) {
            quint64 word;
            std::memcpy(&word, data, 8);
            lanes += (word & 0x00FF00FF00FF00FFull) + ((word >> 8) & 0x00FF00FF00FF00FFull);
        }
        n -= words * 8;
        for (int lane = 0; lane < 4; ++lane)
            total += (lanes >> (16 * lane)) & 0xFFFF;
    }
    for (; n > 0; --n)
        total += static_cast<unsigned char>(*data++);
    return quint8(total & 0xFF);
}

QString RecordChecksum::digits(quint8 sum)
{
    static const char hex[] = "0123456789ABCDEF";
    const QChar pair[2] = { QLatin1Char(hex[sum >> 4]), QLatin1Char(hex[sum & 0xF]) };
    return QString(pair, 2);
}

std::optional<quint8> RecordChecksum::read(char16_t high, char16_t low)
{
    const int h = hexValue(high);
    const int l = hexValue(low);
    if (h < 0 || l < 0)
        return std::nullopt;
    return quint8(h * 16 + l);
}

} // namespace qor
