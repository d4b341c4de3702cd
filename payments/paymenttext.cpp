#include "payments/paymenttext.h"

namespace qor {

QString compactedText(QStringView text, QStringView separators)
{
    QString compact;
    compact.reserve(text.size());
    for (QChar c : text) {
        if (c == u' ' || c == QChar(0xA0) || separators.contains(c))
            continue;
        if (c >= u'a' && c <= u'z')
            c = QChar(c.unicode() - u'a' + u'A');
        compact.append(c);
    }
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
    int remainder = start;
    for (QChar c : text) {
        if (isAsciiDigit(c))
            remainder = (remainder * 10 + (c.unicode() - u'0')) % 97;
        else if (isUpperLetter(c))
            remainder = (remainder * 100 + (c.unicode() - u'A' + 10)) % 97;
        else
            return -1;
    }
    return remainder;
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
