#include "validate/checktext.h"

#include "validate/digitcompaction.h"

#include <algorithm>

namespace qor {

namespace {

bool isDigit(char16_t c)
{
    return c >= u'0' && c <= u'9';
}

} // namespace

bool isAsciiDigits(QStringView text)
{
    for (QChar c : text) {
        if (!isDigit(c.unicode()))
            return false;
    }
    return true;
}

namespace {

// The value of four digits, worked out apart from the running sum.
qint64 fourDigits(const char16_t *p)
{
    return ((p[0] - u'0') * 10 + (p[1] - u'0')) * 100 + (p[2] - u'0') * 10 + (p[3] - u'0');
}

} // namespace

qint64 digitsNumber(QStringView digits)
{
    const char16_t *p = reinterpret_cast<const char16_t *>(digits.data());
    const qsizetype size = digits.size();
    const qsizetype lead = size % 4;
    qint64 value = 0;
    for (qsizetype i = 0; i < lead; ++i)
        value = value * 10 + (p[i] - u'0');
    // Four digits a step: the same sum with a quarter of the dependent steps.
    for (qsizetype i = lead; i < size; i += 4)
        value = value * 10000 + fourDigits(p + i);
    return value;
}

double digitsValue(QStringView digits)
{
    // Whole numbers of up to fifteen digits are exact either way; the integer
    // sum is quicker. Longer texts add up in double precision as ever.
    if (digits.size() <= 15)
        return double(digitsNumber(digits));
    double value = 0;
    for (QChar c : digits)
        value = value * 10 + (c.unicode() - '0');
    return value;
}

namespace {

// FilterNumeric one character at a time.
void keepDigitsOneByOne(QString &text)
{
    const char16_t *begin = reinterpret_cast<const char16_t *>(text.constData());
    const qsizetype size = text.size();
    qsizetype first = 0;
    while (first < size && isDigit(begin[first]))
        ++first;
    if (first == size)
        return;
    char16_t *data = reinterpret_cast<char16_t *>(text.data());
    qsizetype kept = first;
    // Every character is written and only a digit moves the write on, without a
    // branch to mispredict on numbers that mix digits and separators.
    for (qsizetype i = first + 1; i < size; ++i) {
        const char16_t c = data[i];
        data[kept] = c;
        kept += isDigit(c) ? 1 : 0;
    }
    setLength(text, kept);
}

} // namespace

void keepDigits(QString &text)
{
    // Identifiers are short: eight characters at a time into a buffer on the
    // stack. Working in place saves the copy back but measured no faster: the
    // last eight characters are then read straight after being partly written.
    constexpr qsizetype longestAtOnce = 64;
    const qsizetype size = text.size();
    if (size > longestAtOnce || !canCompactDigitsEightAtATime())
        return keepDigitsOneByOne(text);
    char16_t digits[longestAtOnce + 8];
    const qsizetype kept = compactDigitsEightAtATime(
        reinterpret_cast<const char16_t *>(text.constData()), size, digits);
    if (kept == size)
        return; // all digits: left untouched, not even detached
    std::copy_n(digits, kept, reinterpret_cast<char16_t *>(text.data()));
    setLength(text, kept);
}

void assignText(QString &storage, QStringView text)
{
    if (text.isNull()) {
        storage = QString();
        return;
    }
    const char16_t *from = text.utf16();
    std::copy(from, from + text.size(), sizedForWriting(storage, text.size()));
}

} // namespace qor
