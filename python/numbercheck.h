#pragma once

#include <QString>
#include <QStringView>

#include <initializer_list>

namespace qor::python {

// What is wrong with a number, in the classes Python programs know from the
// usual identifier packages.
enum class Fault { None, Length, Format, Checksum, Component };

// One kind of number as the plain Python functions offer it: how it is
// compacted, checked (on its compact form) and written out.
struct NumberKind
{
    QString (*compact)(QStringView number);
    Fault (*check)(const QString &compacted);
    QString (*format)(const QString &compacted);
};

// The text without the characters in `removed` and without white space at
// either end. Full-width forms count as their ASCII letters and digits, other
// spaces as the plain space.
QString cleanNumber(QStringView number, QStringView removed);

// True when the text is not empty and holds the ASCII digits 0 to 9 only.
bool isPlainDigits(QStringView text);
// True when a text of plain digits stands for zero.
bool isZero(QStringView digits);
// The text cut into groups of the given sizes, each followed by its separator,
// and the rest; as a slice, a text too short gives empty groups.
QString grouped(QStringView text, std::initializer_list<qsizetype> groups,
    std::initializer_list<QChar> separators);

} // namespace qor::python
