#include "input/textfilters.h"

namespace qor {

namespace {

constexpr char16_t acuteAccent = 0x00B4;

bool inRange(char16_t c, char16_t from, char16_t to)
{
    return c >= from && c <= to;
}

// The replacement of one character, or an empty text when it stays as it is.
QString plainFormOf(char16_t c)
{
    if (inRange(c, 0xC0, 0xC6))
        return QStringLiteral("A");
    if (inRange(c, 0xE0, 0xE6))
        return QStringLiteral("a");
    if (inRange(c, 0xC8, 0xCB))
        return QStringLiteral("E");
    if (inRange(c, 0xE8, 0xEB))
        return QStringLiteral("e");
    if (inRange(c, 0xCC, 0xCF))
        return QStringLiteral("I");
    if (inRange(c, 0xEC, 0xEF))
        return QStringLiteral("i");
    if (inRange(c, 0xD2, 0xD6))
        return QStringLiteral("O");
    if (inRange(c, 0xF2, 0xF6))
        return QStringLiteral("o");
    if (inRange(c, 0xD9, 0xDC))
        return QStringLiteral("U");
    if (inRange(c, 0xF9, 0xFC))
        return QStringLiteral("u");
    switch (c) {
    case 0x0178: return QStringLiteral("Y"); // Ÿ
    case 0xFF: return QStringLiteral("y");
    case 0xC7: return QStringLiteral("C");
    case 0xE7: return QStringLiteral("c");
    case 0xD1: return QStringLiteral("N");
    case 0xF1: return QStringLiteral("n");
    case 0xDF: return QStringLiteral("ss");
    case u'\'':
    case u'"': return QString(QChar(acuteAccent));
    default: return QString();
    }
}

// Characters after which a name starts a new word.
bool startsWord(QChar c)
{
    switch (c.unicode()) {
    case u' ':
    case u'"':
    case u'\'':
    case u',':
    case u'-':
    case u'_':
    case acuteAccent: return true;
    default: return false;
    }
}

bool isPlainLetter(QChar c)
{
    return (c >= QLatin1Char('a') && c <= QLatin1Char('z'))
        || (c >= QLatin1Char('A') && c <= QLatin1Char('Z'));
}

} // namespace

QString filterNumeric(const QString &text)
{
    QString digits;
    digits.reserve(text.size());
    for (QChar c : text) {
        if (c >= QLatin1Char('0') && c <= QLatin1Char('9'))
            digits.append(c);
    }
    return digits;
}

QString filterAccenten(const QString &text, const QString &onlyThese)
{
    QString result;
    result.reserve(text.size());
    for (QChar c : text) {
        const QString plain
            = (onlyThese.isEmpty() || onlyThese.contains(c)) ? plainFormOf(c.unicode()) : QString();
        if (plain.isEmpty())
            result.append(c);
        else
            result.append(plain);
    }
    return result;
}

QString filterText(const QString &text, bool filterAccent, const QString &doNotRemove)
{
    QString result;
    result.reserve(text.size());
    for (QChar c : text) {
        if (isPlainLetter(c)) {
            result.append(c);
        } else if (c == QLatin1Char('\'')) {
            if (!filterAccent)
                result.append(QChar(acuteAccent));
        } else if (const QString plain = plainFormOf(c.unicode()); !plain.isEmpty()) {
            if (filterAccent)
                result.append(plain);
            else
                result.append(c);
        } else if (doNotRemove.contains(c)) {
            result.append(c);
        }
    }
    return result;
}

QString lowerCase(const QString &text)
{
    QString result;
    result.reserve(text.size());
    for (QChar c : text)
        result.append(c.toLower());
    return result;
}

QString sCase(const QString &text)
{
    QString result;
    result.reserve(text.size());
    bool capital = true;
    for (QChar c : text) {
        // Character by character, so that ß stays one letter as in a single-byte code page.
        const QChar lower = c.toLower();
        result.append(capital ? lower.toUpper() : lower);
        capital = startsWord(lower);
    }
    return result;
}

} // namespace qor
