#pragma once

#include <QString>
#include <QStringView>

namespace qor {

// Text helpers shared by the payment identifiers.

/// The text without blanks (space, no-break space) and without the separators
/// given, ASCII letters in upper case. Other characters stay, so that a check
/// can refuse them.
QString compactedText(QStringView text, QStringView separators);

/// The text in groups of four characters separated by one space.
QString groupsOfFour(QStringView text);

/// True for 0-9 and A-Z.
inline bool isUpperAlphanumeric(QChar c)
{
    return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'Z');
}
inline bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}
inline bool isUpperLetter(QChar c)
{
    return c >= u'A' && c <= u'Z';
}

/// The ISO 7064 mod 97-10 remainder of the text read with its first four
/// characters moved to the end, letters counting as 10 (A) to 35 (Z): 1 for
/// a right IBAN or creditor reference. -1 when a character is not 0-9 or A-Z.
int rearrangedRemainder97(QStringView text);

/// The remainder modulo 97 of a text of digits and upper-case letters (letters
/// as 10 to 35), continuing from an earlier remainder. -1 for another character.
int remainder97(QStringView text, int start = 0);

} // namespace qor
