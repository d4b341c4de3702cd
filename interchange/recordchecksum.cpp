#include "interchange/recordchecksum.h"

#include "runtime/codepage.h"

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
    unsigned sum = 0;
    const qsizetype n = text.size();
    const QChar *c = text.data();
    for (qsizetype i = 0; i < n; ++i) {
        const char16_t unit = c[i].unicode();
        if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF)) {
            sum += unit;
            continue;
        }
        // A surrogate pair is one character the code page lacks.
        if (c[i].isHighSurrogate() && i + 1 < n && c[i + 1].isLowSurrogate())
            ++i;
        sum += unsigned(asc(c[i]));
    }
    return quint8(sum & 0xFF);
}

quint8 RecordChecksum::of(QByteArrayView bytes)
{
    unsigned sum = 0;
    for (const char b : bytes)
        sum += static_cast<unsigned char>(b);
    return quint8(sum & 0xFF);
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
