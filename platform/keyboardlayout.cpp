#include "platform/keyboardlayout.h"

#include <QByteArray>
#include <QString>

#include <cstring>

namespace qor {

namespace {

constexpr int shiftBit = 0x100;

// Unshifted and shifted characters of the punctuation keys with their virtual keys.
struct PunctuationKey
{
    char plain;
    char shifted;
    int virtualKey;
};

constexpr PunctuationKey punctuationKeys[] = {
    { ';', ':', 0xBA },
    { '=', '+', 0xBB },
    { ',', '<', 0xBC },
    { '-', '_', 0xBD },
    { '.', '>', 0xBE },
    { '/', '?', 0xBF },
    { '`', '~', 0xC0 },
    { '[', '{', 0xDB },
    { '\\', '|', 0xDC },
    { ']', '}', 0xDD },
    { '\'', '"', 0xDE },
};

constexpr char shiftedDigits[] = ")!@#$%^&*(";

// Set-1 scan codes of the main block, indexed by unshifted character.
int scanCodeOfPlain(char c)
{
    static const char *rows[] = { "1234567890-=", "qwertyuiop[]", "asdfghjkl;'`", "zxcvbnm,./" };
    static const int firstCode[] = { 0x02, 0x10, 0x1E, 0x2C };
    for (int row = 0; row < 4; ++row) {
        const QByteArray keys(rows[row]);
        const int at = keys.indexOf(c);
        if (at >= 0)
            return firstCode[row] + at;
    }
    switch (c) {
    case '\\': return 0x2B;
    case ' ': return 0x39;
    case '\r': return 0x1C;
    case '\b': return 0x0E;
    case '\t': return 0x0F;
    case 27: return 0x01;
    default: return -1;
    }
}

// The unshifted character of the key that types c, or 0.
char plainCharOf(char c)
{
    if (c >= 'A' && c <= 'Z')
        return char(c - 'A' + 'a');
    const char *digit = static_cast<const char *>(memchr(shiftedDigits, c, 10));
    if (digit && c != 0)
        return char('0' + (digit - shiftedDigits));
    for (const auto &key : punctuationKeys) {
        if (key.shifted == c)
            return key.plain;
    }
    return c;
}

} // namespace

int virtualKeyScan(int ansiCode)
{
    if (ansiCode < 0 || ansiCode > 127)
        return -1;
    const char c = char(ansiCode);
    if (c >= 'a' && c <= 'z')
        return c - 'a' + 'A';
    if (c >= 'A' && c <= 'Z')
        return shiftBit | c;
    if (c >= '0' && c <= '9')
        return c;
    for (int i = 0; i < 10; ++i) {
        if (shiftedDigits[i] == c)
            return shiftBit | ('0' + i);
    }
    for (const auto &key : punctuationKeys) {
        if (key.plain == c)
            return key.virtualKey;
        if (key.shifted == c)
            return shiftBit | key.virtualKey;
    }
    switch (c) {
    case ' ': return 0x20;
    case '\r': return 0x0D;
    case '\b': return 0x08;
    case '\t': return 0x09;
    case 27: return 0x1B;
    default: return -1;
    }
}

int oemScanCode(int oemCode)
{
    if (oemCode < 0 || oemCode > 127)
        return -1;
    return scanCodeOfPlain(plainCharOf(char(oemCode)));
}

int ansiToOem(int ansiCode)
{
    if (ansiCode < 0 || ansiCode > 255)
        return 63;
    if (ansiCode < 128)
        return ansiCode;
    static const QString oemUpper
        = QStringLiteral(u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»");
    const QChar c = QString::fromLatin1(QByteArray(1, char(ansiCode))).at(0);
    const int at = oemUpper.indexOf(c);
    return at >= 0 ? 128 + at : 63;
}

} // namespace qor
