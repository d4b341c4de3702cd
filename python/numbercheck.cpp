#include "python/numbercheck.h"

#include <algorithm>

namespace qor::python {

namespace {

constexpr char16_t fullWidthFirst = 0xFF01; // FULLWIDTH EXCLAMATION MARK
constexpr char16_t fullWidthLast = 0xFF5E; // FULLWIDTH TILDE
constexpr char16_t fullWidthOffset = 0xFEE0; // from a full-width form to its ASCII character

char16_t plainCharacter(char16_t c)
{
    if (c < 0x80)
        return c;
    if (c >= fullWidthFirst && c <= fullWidthLast)
        return char16_t(c - fullWidthOffset);
    if (QChar(c).category() == QChar::Separator_Space)
        return u' ';
    return c;
}

// White space as Python's str.strip() sees it.
bool isStrippedSpace(char16_t c)
{
    return (c >= 0x09 && c <= 0x0D) || (c >= 0x1C && c <= 0x20) || c == 0x85
        || (c >= 0x80 && QChar(c).isSpace());
}

} // namespace

QString cleanNumber(QStringView number, QStringView removed)
{
    QString clean(number.size(), Qt::Uninitialized);
    char16_t *const out = reinterpret_cast<char16_t *>(clean.data());
    qsizetype kept = 0;
    for (QChar c : number) {
        const char16_t plain = plainCharacter(c.unicode());
        if (std::find(removed.begin(), removed.end(), QChar(plain)) == removed.end())
            out[kept++] = plain;
    }
    qsizetype first = 0;
    while (first < kept && isStrippedSpace(out[first]))
        ++first;
    while (kept > first && isStrippedSpace(out[kept - 1]))
        --kept;
    std::copy(out + first, out + kept, out);
    clean.truncate(kept - first);
    return clean;
}

bool isPlainDigits(QStringView text)
{
    if (text.isEmpty())
        return false;
    for (QChar c : text) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
    }
    return true;
}

bool isZero(QStringView digits)
{
    for (QChar c : digits) {
        if (c != QLatin1Char('0'))
            return false;
    }
    return true;
}

QString grouped(QStringView text, std::initializer_list<qsizetype> groups,
    std::initializer_list<QChar> separators)
{
    QString out;
    qsizetype at = 0;
    auto separator = separators.begin();
    for (qsizetype size : groups) {
        out += text.mid(at, size);
        out += *separator++;
        at += size;
    }
    out += text.mid(at);
    return out;
}

} // namespace qor::python
