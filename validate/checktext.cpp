#include "validate/checktext.h"

namespace qor {

bool isBlank(QStringView text)
{
    for (QChar c : text) {
        if (c != QLatin1Char(' '))
            return false;
    }
    return true;
}

QStringView leftPart(QStringView text, qsizetype n)
{
    return text.first(std::min(n, text.size()));
}

QStringView rightPart(QStringView text, qsizetype n)
{
    return text.last(std::min(n, text.size()));
}

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

qint64 digitsNumber(QStringView digits)
{
    qint64 value = 0;
    for (QChar c : digits)
        value = value * 10 + (c.unicode() - '0');
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

void keepDigits(QString &text)
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
    for (qsizetype i = first + 1; i < size; ++i) {
        if (isDigit(data[i]))
            data[kept++] = data[i];
    }
    text.resize(kept);
}

void assignText(QString &storage, QStringView text)
{
    if (text.isNull()) {
        storage = QString();
        return;
    }
    storage.resize(text.size());
    std::copy(text.begin(), text.end(), storage.begin());
}

} // namespace qor
