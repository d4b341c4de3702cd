#include "validate/checktext.h"

#include "runtime/conversion.h"

namespace qor {

bool isBlank(const QString &text)
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

bool isAsciiDigits(QStringView text)
{
    for (QChar c : text) {
        if (c < QLatin1Char('0') || c > QLatin1Char('9'))
            return false;
    }
    return true;
}

double digitsValue(QStringView digits)
{
    double value = 0;
    for (QChar c : digits)
        value = value * 10 + (c.unicode() - '0');
    return value;
}

double remainder97(double value)
{
    return value - vbInt(value / 97) * 97;
}

} // namespace qor
