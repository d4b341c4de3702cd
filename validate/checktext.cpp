#include "validate/checktext.h"

#include <algorithm>

namespace qor {

namespace {

bool isDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

int digitOf(QChar c)
{
    return c.unicode() - u'0';
}

} // namespace

bool isAsciiDigits(QStringView text)
{
    return std::all_of(text.begin(), text.end(), isDigit);
}

qint64 digitsNumber(QStringView digits)
{
    qint64 value = 0;
    for (QChar c : digits)
        value = value * 10 + digitOf(c);
    return value;
}

double digitsValue(QStringView digits)
{
    // Whole numbers below 2^53 are exact in double precision, so up to fifteen
    // digits this is the integer value; longer texts round as they always did.
    double value = 0;
    for (QChar c : digits)
        value = value * 10 + digitOf(c);
    return value;
}

void keepDigits(QString &text)
{
    if (isAsciiDigits(text))
        return; // left untouched, not even detached
    QChar *characters = text.data();
    qsizetype kept = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isDigit(characters[i]))
            characters[kept++] = characters[i];
    }
    text.resize(kept);
}

void assignText(QString &storage, QStringView text)
{
    if (text.isNull()) {
        storage = QString();
        return;
    }
    // resize keeps the buffer when it is not shared and large enough.
    storage.resize(text.size());
    std::copy(text.begin(), text.end(), storage.data());
}

} // namespace qor
