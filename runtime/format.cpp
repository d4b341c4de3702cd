#include "runtime/format.h"

#include "runtime/conversion.h"
#include "runtime/formatdate.h"
#include "runtime/formatnumber.h"
#include "runtime/patternliteral.h"
#include "runtime/runtimeerror.h"
#include "runtime/textmask.h"
#include "runtime/variant.h"

#include <QStringList>

namespace qor {

namespace {

// --- pattern sections and kinds --------------------------------------------------

// Calls f(index, character) for every character outside quotes and escapes.
template <typename F> void forEachActive(const QString &pattern, F f)
{
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const QChar c = pattern.at(i);
        if (c == QLatin1Char('\\')) {
            ++i;
        } else if (c == QLatin1Char('"')) {
            const qsizetype close = pattern.indexOf(QLatin1Char('"'), i + 1);
            i = close < 0 ? pattern.size() : close;
        } else if (!f(i, c)) {
            return;
        }
    }
}

QStringList sectionsOf(const QString &pattern)
{
    QStringList sections;
    qsizetype start = 0;
    forEachActive(pattern, [&](qsizetype i, QChar c) {
        if (c == QLatin1Char(';')) {
            sections.append(pattern.mid(start, i - start));
            start = i + 1;
        }
        return true;
    });
    sections.append(pattern.mid(start));
    return sections;
}

enum class PatternKind { Text, Number, Date };

PatternKind kindOf(const QString &pattern)
{
    static const QString dateLetters = QStringLiteral("dmyhnswqc");
    PatternKind kind = PatternKind::Number;
    forEachActive(pattern, [&](qsizetype i, QChar c) {
        if (c == QLatin1Char('&') || c == QLatin1Char('@')) {
            kind = PatternKind::Text;
            return false;
        }
        if (dateLetters.contains(c.toLower())
            || startsWithNoCase(pattern, i, QLatin1String("ttttt"))
            || startsWithNoCase(pattern, i, QLatin1String("am/pm"))
            || startsWithNoCase(pattern, i, QLatin1String("a/p")))
            kind = PatternKind::Date;
        return true;
    });
    return kind;
}

// --- text masks --------------------------------------------------------------------

QString formatText(const QString &text, const QStringList &sections)
{
    const QString &section
        = text.isEmpty() && sections.size() > 1 ? sections.at(1) : sections.at(0);
    return TextMask(section).apply(text);
}

} // namespace

QString format(const QVariant &value, const QString &pattern, const RegionalSettings &rs)
{
    if (isEmpty(value) || isNull(value))
        return QString();
    if (isArray(value) || isObject(value))
        throw RuntimeError::typeMismatch();
    if (pattern.isEmpty())
        return toText(value, rs);
    const QStringList sections = sectionsOf(pattern);
    switch (kindOf(pattern)) {
    case PatternKind::Text: return formatText(toText(value, rs), sections);
    case PatternKind::Date: return formatAsDate(value, sections.at(0), rs);
    case PatternKind::Number: break;
    }
    return formatAsNumber(value, sections, rs);
}

} // namespace qor