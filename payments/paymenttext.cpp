#include "payments/paymenttext.h"

namespace qor {

namespace {

// A plain loop: the separators are one or two characters, and a call into
// the general search for each character of the text costs more than it.
bool isOneOf(QChar c, QStringView characters)
{
    for (QChar candidate : characters) {
        if (c == candidate)
            return true;
    }
    return false;
}

} // namespace

QString compactedText(QStringView text, QStringView separators)
{
    // Written into a buffer of the text's size, cut to what was kept.
    QString compact(text.size(), Qt::Uninitialized);
    QChar *write = compact.data();
    for (QChar c : text) {
        if (c == u' ' || c == QChar(0xA0) || isOneOf(c, separators))
            continue;
        if (c >= u'a' && c <= u'z')
            c = QChar(c.unicode() - u'a' + u'A');
        *write++ = c;
    }
    compact.truncate(write - compact.constData());
    return compact;
}

QString groupsOfFour(QStringView text)
{
    QString grouped;
    grouped.reserve(text.size() + text.size() / 4);
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (i > 0 && i % 4 == 0)
            grouped.append(u' ');
        grouped.append(text[i]);
    }
    return grouped;
}

int remainder97(QStringView text, int start)
{
    // The number grows digit by digit in 64 bits and is reduced only when one
    // more step could overflow: the remainder is the same, the divisions fewer.
    constexpr quint64 reduceAbove = 10'000'000'000'000'000ull;
    quint64 number = quint64(start);
    for (QChar c : text) {
        if (number >= reduceAbove)
            number %= 97;
        if (isAsciiDigit(c))
            number = number * 10 + (c.unicode() - u'0');
        else if (isUpperLetter(c))
            number = number * 100 + (c.unicode() - u'A' + 10);
        else
            return -1;
    }
    return int(number % 97);
}

int rearrangedRemainder97(QStringView text)
{
    const qsizetype head = std::min<qsizetype>(4, text.size());
    const int tail = remainder97(text.sliced(head));
    if (tail < 0)
        return -1;
    return remainder97(text.first(head), tail);
}

} // namespace qor
