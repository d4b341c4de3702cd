#include "runtime/formatnumber.h"

#include "runtime/conversion.h"
#include "runtime/patternliteral.h"
#include "runtime/variant.h"

#include <QStringList>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

namespace qor {

namespace {

// --- decimal numbers -------------------------------------------------------------------

// A number as decimal digits: magnitude 0.d1d2d3... x 10^point. No digits is zero.
struct Decimal
{
    bool negative = false;
    std::string digits;
    qint64 point = 0;

    bool isZero() const { return digits.empty(); }
};

void stripTrailingZeros(Decimal &d)
{
    while (!d.digits.empty() && d.digits.back() == '0')
        d.digits.pop_back();
}

// The digits a Double (15) or Single (7) shows: rounding happens on this
// decimal form, so 2.675 rounds as the 2.675 it displays and not as the
// binary 2.67499999... behind it.
template <typename T> Decimal decimalOf(T v, int significantDigits)
{
    Decimal d;
    if (v == 0)
        return d;
    char buffer[64];
    const auto result = std::to_chars(
        buffer, buffer + sizeof buffer, v, std::chars_format::scientific, significantDigits - 1);
    const std::string text(buffer, result.ptr);
    const size_t e = text.find('e');
    for (size_t i = 0; i < e; ++i) {
        if (text[i] == '-')
            d.negative = true;
        else if (text[i] >= '0' && text[i] <= '9')
            d.digits.push_back(text[i]);
    }
    d.point = std::stoll(text.substr(e + 1)) + 1;
    stripTrailingZeros(d);
    return d;
}

Decimal decimalOfWhole(qint64 v)
{
    Decimal d;
    d.negative = v < 0;
    const quint64 magnitude = d.negative ? quint64(0) - quint64(v) : quint64(v);
    if (magnitude == 0)
        return d;
    d.digits = std::to_string(magnitude);
    d.point = qint64(d.digits.size());
    stripTrailingZeros(d);
    return d;
}

Decimal decimalOfUnsigned(quint64 v)
{
    Decimal d;
    if (v == 0)
        return d;
    d.digits = std::to_string(v);
    d.point = qint64(d.digits.size());
    stripTrailingZeros(d);
    return d;
}

// Rounds half away from zero to the given number of decimals.
void roundTo(Decimal &d, qint64 decimals)
{
    const qint64 keep = d.point + decimals;
    if (keep >= qint64(d.digits.size()))
        return;
    if (keep < 0) {
        d.digits.clear();
        return;
    }
    const bool up = d.digits[size_t(keep)] >= '5';
    d.digits.resize(size_t(keep));
    if (up) {
        qint64 i = keep - 1;
        while (i >= 0 && d.digits[size_t(i)] == '9')
            d.digits[size_t(i--)] = '0';
        if (i < 0) {
            d.digits.insert(d.digits.begin(), '1');
            ++d.point;
        } else {
            ++d.digits[size_t(i)];
        }
    }
    stripTrailingZeros(d);
}

// The whole part's digits ("" for a value below 1).
QString wholeDigits(const Decimal &d)
{
    if (d.point <= 0 || d.isZero())
        return QString();
    QString s = QString::fromLatin1(
        d.digits.data(), qsizetype(std::min<qint64>(d.point, qint64(d.digits.size()))));
    if (d.point > qint64(d.digits.size()))
        s += QString(qsizetype(d.point - qint64(d.digits.size())), QLatin1Char('0'));
    return s;
}

QString fractionDigits(const Decimal &d, qint64 count)
{
    QString s;
    s.reserve(qsizetype(count));
    for (qint64 k = 0; k < count; ++k) {
        const qint64 index = d.point + k;
        const bool inside = index >= 0 && index < qint64(d.digits.size());
        s += inside ? QLatin1Char(d.digits[size_t(index)]) : QLatin1Char('0');
    }
    return s;
}

// --- number patterns ------------------------------------------------------------------

struct NumberToken
{
    enum Kind { Zero, Hash, Point, Comma, Percent, Exponent, Literal } kind;
    QString text;
    bool exponentPlus = false;

    bool isDigit() const { return kind == Zero || kind == Hash; }
};

std::vector<NumberToken> numberTokens(const QString &section)
{
    std::vector<NumberToken> tokens;
    for (qsizetype i = 0; i < section.size();) {
        const QChar c = section.at(i);
        if (isLiteralStart(c)) {
            QString literal;
            i = readLiteral(section, i, literal);
            tokens.push_back({ NumberToken::Literal, literal });
            continue;
        }
        const QChar next = i + 1 < section.size() ? section.at(i + 1) : QChar();
        if ((c == QLatin1Char('E') || c == QLatin1Char('e'))
            && (next == QLatin1Char('+') || next == QLatin1Char('-'))) {
            tokens.push_back({ NumberToken::Exponent, QString(c), next == QLatin1Char('+') });
            i += 2;
            continue;
        }
        switch (c.unicode()) {
        case '0': tokens.push_back({ NumberToken::Zero, QString() }); break;
        case '#': tokens.push_back({ NumberToken::Hash, QString() }); break;
        case '.': tokens.push_back({ NumberToken::Point, QString() }); break;
        case ',': tokens.push_back({ NumberToken::Comma, QString() }); break;
        case '%': tokens.push_back({ NumberToken::Percent, QStringLiteral("%") }); break;
        default: tokens.push_back({ NumberToken::Literal, QString(c) }); break;
        }
        ++i;
    }
    return tokens;
}

// Digit placeholders between begin and end: how many, and how many of them
// from the first "0" on (the digits always shown).
struct DigitRun
{
    size_t begin = 0, end = 0;
    int placeholders = 0;
    int minimumDigits = 0;
};

DigitRun digitRun(const std::vector<NumberToken> &tokens, size_t begin, size_t end)
{
    DigitRun run { begin, end, 0, 0 };
    bool zeroSeen = false;
    for (size_t i = begin; i < end; ++i) {
        if (!tokens[i].isDigit())
            continue;
        ++run.placeholders;
        zeroSeen = zeroSeen || tokens[i].kind == NumberToken::Zero;
        if (zeroSeen)
            ++run.minimumDigits;
    }
    return run;
}

struct NumberLayout
{
    std::vector<NumberToken> tokens;
    DigitRun whole, fraction, exponent;
    size_t pointIndex = 0, exponentIndex = 0;
    bool hasPoint = false, hasExponent = false, grouping = false;
    int scaleCommas = 0, percents = 0;
};

// Commas between whole-part placeholders group thousands; commas after the
// last one divide by a thousand each; other commas are plain text.
void classifyCommas(NumberLayout &l)
{
    int digitsSeen = 0;
    for (size_t i = l.whole.begin; i < l.whole.end; ++i) {
        NumberToken &t = l.tokens[i];
        if (t.isDigit())
            ++digitsSeen;
        if (t.kind != NumberToken::Comma)
            continue;
        const bool digitAfter = digitsSeen < l.whole.placeholders;
        if (digitsSeen > 0 && digitAfter)
            l.grouping = true;
        else if (digitsSeen > 0)
            ++l.scaleCommas;
        else
            t = { NumberToken::Literal, QStringLiteral(",") };
    }
}

NumberLayout numberLayout(const QString &section)
{
    NumberLayout l;
    l.tokens = numberTokens(section);
    const size_t n = l.tokens.size();
    for (size_t i = 0; i < n; ++i) {
        NumberToken &t = l.tokens[i];
        if (t.kind == NumberToken::Exponent && !l.hasExponent) {
            l.hasExponent = true;
            l.exponentIndex = i;
        } else if (t.kind == NumberToken::Exponent) {
            t = { NumberToken::Literal, t.text + (t.exponentPlus ? u'+' : u'-') };
        } else if (t.kind == NumberToken::Point && !l.hasPoint && !l.hasExponent) {
            l.hasPoint = true;
            l.pointIndex = i;
        } else if (t.kind == NumberToken::Point) {
            t = { NumberToken::Literal, QStringLiteral(".") };
        } else if (t.kind == NumberToken::Percent) {
            ++l.percents;
        }
    }
    const size_t fractionEnd = l.hasExponent ? l.exponentIndex : n;
    const size_t wholeEnd = l.hasPoint ? l.pointIndex : fractionEnd;
    l.whole = digitRun(l.tokens, 0, wholeEnd);
    l.fraction = digitRun(l.tokens, l.hasPoint ? l.pointIndex + 1 : wholeEnd, fractionEnd);
    l.exponent = digitRun(l.tokens, l.hasExponent ? l.exponentIndex + 1 : n, n);
    classifyCommas(l);
    return l;
}

// Writes the whole-number digits into the placeholders from the right; the
// leftmost placeholder also takes every digit left over.
QString fillWhole(const NumberLayout &l, const DigitRun &run, QString digits, bool grouping,
    const RegionalSettings &rs)
{
    if (digits.size() < run.minimumDigits)
        digits = QString(run.minimumDigits - digits.size(), QLatin1Char('0')) + digits;
    QString reversed;
    qsizetype next = digits.size() - 1;
    auto emitDigit = [&] {
        const qsizetype fromRight = digits.size() - 1 - next;
        if (grouping && fromRight > 0 && fromRight % 3 == 0)
            reversed += rs.groupSeparator;
        reversed += digits.at(next--);
    };
    if (run.placeholders == 0) {
        while (next >= 0)
            emitDigit();
    }
    int seen = 0;
    for (size_t i = run.end; i-- > run.begin;) {
        const NumberToken &t = l.tokens[i];
        if (t.isDigit()) {
            ++seen;
            if (seen == run.placeholders) {
                while (next >= 0)
                    emitDigit();
            } else if (next >= 0) {
                emitDigit();
            }
        } else if (t.kind == NumberToken::Literal || t.kind == NumberToken::Percent) {
            for (qsizetype k = t.text.size(); k-- > 0;)
                reversed += t.text.at(k);
        }
    }
    std::reverse(reversed.begin(), reversed.end());
    return reversed;
}

// Decimals left to right; a "#" shows nothing once only zeros follow.
QString fillFraction(const NumberLayout &l, const QString &digits)
{
    qsizetype lastNonZero = -1;
    for (qsizetype k = 0; k < digits.size(); ++k) {
        if (digits.at(k) != QLatin1Char('0'))
            lastNonZero = k;
    }
    QString out;
    qsizetype k = 0;
    for (size_t i = l.fraction.begin; i < l.fraction.end; ++i) {
        const NumberToken &t = l.tokens[i];
        if (t.isDigit()) {
            if (t.kind == NumberToken::Zero || k <= lastNonZero)
                out += digits.at(k);
            ++k;
        } else if (t.kind == NumberToken::Literal || t.kind == NumberToken::Percent) {
            out += t.text;
        }
    }
    return out;
}

QString fillExponent(const NumberLayout &l, qint64 exponent, const RegionalSettings &rs)
{
    const NumberToken &e = l.tokens[l.exponentIndex];
    QString sign;
    if (exponent < 0)
        sign = QStringLiteral("-");
    else if (e.exponentPlus)
        sign = QStringLiteral("+");
    const QString digits = exponent == 0 ? QString() : QString::number(std::abs(exponent));
    return e.text + sign + fillWhole(l, l.exponent, digits, false, rs);
}

QString formatMagnitude(Decimal d, const NumberLayout &l, const RegionalSettings &rs)
{
    d.negative = false;
    d.point += 2 * l.percents - 3 * l.scaleCommas;
    qint64 exponent = 0;
    if (l.hasExponent && !d.isZero()) {
        exponent = d.point - l.whole.placeholders;
        d.point = l.whole.placeholders;
        roundTo(d, l.fraction.placeholders);
        if (d.point > l.whole.placeholders) { // rounding carried into a new digit
            d.point = l.whole.placeholders;
            ++exponent;
        }
    } else {
        roundTo(d, l.fraction.placeholders);
    }
    QString out = fillWhole(l, l.whole, wholeDigits(d), l.grouping, rs);
    if (l.hasPoint)
        out += rs.decimalSeparator;
    out += fillFraction(l, fractionDigits(d, l.fraction.placeholders));
    if (l.hasExponent)
        out += fillExponent(l, exponent, rs);
    return out;
}

// Sections: positive;negative;zero. A negative section carries its own sign
// text; with none, a minus goes in front. The sign is that of the value before
// rounding, so -0.001 with "0.00" gives "-0.00".
QString formatNumber(const Decimal &d, const QStringList &sections, const RegionalSettings &rs)
{
    QString section = sections.at(0);
    bool minus = d.negative;
    if (d.isZero() && sections.size() > 2 && !sections.at(2).isEmpty()) {
        section = sections.at(2);
    } else if (d.negative && sections.size() > 1 && !sections.at(1).isEmpty()) {
        section = sections.at(1);
        minus = false;
    }
    const QString text = formatMagnitude(d, numberLayout(section), rs);
    return minus ? QLatin1Char('-') + text : text;
}

// The value as a decimal number; nullopt for text that is not numeric.
std::optional<Decimal> decimalValue(const QVariant &v, const RegionalSettings &rs)
{
    switch (varType(v)) {
    case VarType::Boolean: return decimalOfWhole(v.toBool() ? -1 : 0);
    case VarType::Integer:
    case VarType::Long:
    case VarType::Byte:
    case VarType::Currency:
        if (v.typeId() == QMetaType::ULongLong || v.typeId() == QMetaType::ULong)
            return decimalOfUnsigned(v.toULongLong());
        return decimalOfWhole(v.toLongLong());
    case VarType::Single: return decimalOf(v.toFloat(), 7);
    case VarType::String:
        if (!isNumeric(v, rs))
            return std::nullopt;
        return decimalOf(toDouble(v, rs), 15);
    default: return decimalOf(toDouble(v, rs), 15);
    }
}

bool isFiniteNumber(const QVariant &v)
{
    const VarType t = varType(v);
    if (t != VarType::Double && t != VarType::Single)
        return true;
    return std::isfinite(v.toDouble());
}

} // namespace

QString formatAsNumber(
    const QVariant &value, const QStringList &sections, const RegionalSettings &rs)
{
    if (!isFiniteNumber(value))
        return numberText(value.toDouble(), rs);
    const auto d = decimalValue(value, rs);
    if (!d)
        return toText(value, rs);
    return formatNumber(*d, sections, rs);
}

} // namespace qor
