#include "einvoice/isodate.h"

namespace qor::einvoice {

namespace {

// The number of the digits text[from, from + count), or -1.
int digitsAt(QStringView text, qsizetype from, qsizetype count)
{
    int value = 0;
    for (qsizetype i = from; i < from + count; ++i) {
        const char16_t c = text[i].unicode();
        if (c < u'0' || c > u'9')
            return -1;
        value = value * 10 + (c - u'0');
    }
    return value;
}

} // namespace

QDate parseIsoDate(QStringView text)
{
    if (text.size() != 10 || text[4] != u'-' || text[7] != u'-')
        return QDate();
    const int year = digitsAt(text, 0, 4);
    const int month = digitsAt(text, 5, 2);
    const int day = digitsAt(text, 8, 2);
    if (year < 0 || month < 0 || day < 0)
        return QDate();
    return QDate(year, month, day);
}

} // namespace qor::einvoice
