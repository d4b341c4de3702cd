#include "runtime/conversion.h"

#include "runtime/codepage.h"
#include "runtime/dates.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace qor {

namespace {

// --- building a double from decimal digits ----------------------------------

// Collects the significant digits of a decimal number and its power of ten, so
// that texts of any length are read in one pass with correct rounding.
class DecimalDigits
{
public:
    void addIntegerDigit(char d)
    {
        if (m_digits.empty() && d == '0')
            return;
        if (m_digits.size() < maxDigits)
            m_digits.push_back(d);
        else
            ++m_exponent;
    }
    void addFractionDigit(char d)
    {
        if (m_digits.empty() && d == '0') {
            --m_exponent;
        } else if (m_digits.size() < maxDigits) {
            m_digits.push_back(d);
            --m_exponent;
        }
    }
    void addExponent(qint64 e) { m_exponent += e; }

    // The value; +infinity when it is beyond the range of a Double.
    double value() const
    {
        if (m_digits.empty())
            return 0.0;
        const qint64 magnitude = qint64(m_digits.size()) + m_exponent; // digits before the point
        if (magnitude > 310)
            return std::numeric_limits<double>::infinity();
        if (magnitude < -400)
            return 0.0;
        const std::string text = m_digits + 'e' + std::to_string(m_exponent);
        double result = 0.0;
        const auto [ptr, ec] = std::from_chars(text.data(), text.data() + text.size(), result);
        Q_UNUSED(ptr);
        if (ec == std::errc::result_out_of_range)
            return magnitude > 0 ? std::numeric_limits<double>::infinity() : 0.0;
        return result;
    }

private:
    static constexpr size_t maxDigits = 800;
    std::string m_digits;
    qint64 m_exponent = 0;
};

constexpr qint64 exponentCap = 1000000000;

qint64 addExponentDigit(qint64 e, QChar d)
{
    return e >= exponentCap ? e : e * 10 + d.digitValue();
}

bool isAsciiDigit(QChar c)
{
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
}

bool isExponentLetter(QChar c)
{
    const QChar u = c.toUpper();
    return u == QLatin1Char('E') || u == QLatin1Char('D');
}

// --- "&H" and "&O" numbers ------------------------------------------------

int radixDigit(QChar c)
{
    const char16_t u = c.unicode();
    if (u >= '0' && u <= '9')
        return u - '0';
    if (u >= 'a' && u <= 'f')
        return u - 'a' + 10;
    if (u >= 'A' && u <= 'F')
        return u - 'A' + 10;
    return -1;
}

struct RadixNumber
{
    double value = 0;
    qsizetype end = 0; // index after the last character used
    bool found = false; // a prefix followed by at least one digit
};

// Reads "&Hxxx" or "&Oooo" at pos. Values that fit 16 bits are Integers and
// those that fit 32 bits Longs, so &HFFFF is -1 and &HFFFF& is 65535.
RadixNumber readRadix(const QString &s, qsizetype pos, bool skipBlanks)
{
    RadixNumber r;
    auto skip = [&](qsizetype i) {
        while (skipBlanks && i < s.size()
            && (s.at(i) == QLatin1Char(' ') || s.at(i) == QLatin1Char('\t')
                || s.at(i) == QLatin1Char('\n')))
            ++i;
        return i;
    };
    qsizetype i = skip(pos);
    if (i + 1 >= s.size() || s.at(i) != QLatin1Char('&'))
        return r;
    i = skip(i + 1);
    if (i >= s.size())
        return r;
    const QChar kind = s.at(i).toUpper();
    const int radix = kind == QLatin1Char('H') ? 16 : kind == QLatin1Char('O') ? 8 : 0;
    if (radix == 0)
        return r;
    quint64 value = 0;
    bool tooLarge = false;
    i = skip(i + 1);
    while (i < s.size()) {
        const int d = radixDigit(s.at(i));
        if (d < 0 || d >= radix)
            break;
        if (value > (std::numeric_limits<quint64>::max() >> 4))
            tooLarge = true;
        else
            value = value * quint64(radix) + quint64(d);
        r.found = true;
        i = skip(i + 1);
    }
    if (!r.found)
        return r;
    const bool longSuffix = i < s.size() && s.at(i) == QLatin1Char('&');
    if (longSuffix)
        ++i;
    r.end = i;
    if (tooLarge)
        r.value = std::numeric_limits<double>::infinity();
    else if (!longSuffix && value <= 0xFFFF)
        r.value = double(qint16(quint16(value)));
    else if (value <= 0xFFFFFFFFull)
        r.value = double(qint32(quint32(value)));
    else
        r.value = double(value);
    return r;
}

// --- locale-aware reading of a whole text --------------------------------------

enum class ReadStatus { Ok, NotNumeric, Overflow };

struct ReadResult
{
    ReadStatus status = ReadStatus::NotNumeric;
    double value = 0;
};

bool isGroupSeparator(QChar c, const RegionalSettings &rs)
{
    if (c == rs.groupSeparator)
        return true;
    // Blank grouping also accepts the no-break spaces that copied numbers bring.
    return rs.groupSeparator == QLatin1Char(' ') && (c == QChar(0x00A0) || c == QChar(0x202F));
}

ReadResult finish(double value, bool negative)
{
    if (std::isinf(value))
        return { ReadStatus::Overflow, 0 };
    return { ReadStatus::Ok, negative ? -value : value };
}

// The text as a number with the regional separators: blanks around it, a
// leading sign, grouping anywhere in the whole part, an exponent.
ReadResult readNumber(const QString &text, const RegionalSettings &rs)
{
    qsizetype begin = 0, end = text.size();
    while (begin < end && text.at(begin).isSpace())
        ++begin;
    while (end > begin && text.at(end - 1).isSpace())
        --end;
    qsizetype i = begin;
    bool negative = false;
    if (i < end && (text.at(i) == QLatin1Char('-') || text.at(i) == QLatin1Char('+'))) {
        negative = text.at(i) == QLatin1Char('-');
        ++i;
    }
    if (i < end && text.at(i) == QLatin1Char('&')) {
        const RadixNumber r = readRadix(text.left(end), i, false);
        if (!r.found || r.end != end)
            return {};
        return finish(r.value, negative);
    }
    DecimalDigits digits;
    int digitCount = 0;
    for (; i < end; ++i) {
        const QChar c = text.at(i);
        if (isAsciiDigit(c)) {
            digits.addIntegerDigit(char(c.unicode()));
            ++digitCount;
        } else if (c != rs.decimalSeparator && digitCount > 0 && isGroupSeparator(c, rs)) {
            continue;
        } else {
            break;
        }
    }
    if (i < end && text.at(i) == rs.decimalSeparator) {
        for (++i; i < end && isAsciiDigit(text.at(i)); ++i) {
            digits.addFractionDigit(char(text.at(i).unicode()));
            ++digitCount;
        }
    }
    if (digitCount == 0)
        return {};
    if (i < end && isExponentLetter(text.at(i))) {
        ++i;
        bool negativeExponent = false;
        if (i < end && (text.at(i) == QLatin1Char('-') || text.at(i) == QLatin1Char('+'))) {
            negativeExponent = text.at(i) == QLatin1Char('-');
            ++i;
        }
        if (i >= end || !isAsciiDigit(text.at(i)))
            return {};
        qint64 e = 0;
        for (; i < end && isAsciiDigit(text.at(i)); ++i)
            e = addExponentDigit(e, text.at(i));
        digits.addExponent(negativeExponent ? -e : e);
    }
    if (i != end)
        return {};
    return finish(digits.value(), negative);
}

ReadResult readText(const QVariant &v, const RegionalSettings &rs)
{
    return readNumber(toText(v, rs), rs);
}

[[noreturn]] void throwFor(ReadStatus status)
{
    if (status == ReadStatus::Overflow)
        throw RuntimeError::overflow();
    throw RuntimeError::typeMismatch();
}

// --- text forms ------------------------------------------------------------------

QString nonFiniteText(double v)
{
    if (std::isnan(v))
        return std::signbit(v) ? QStringLiteral("-1.#IND") : QStringLiteral("1.#QNAN");
    return v < 0 ? QStringLiteral("-1.#INF") : QStringLiteral("1.#INF");
}

// The shortest form with the given significant digits, exponent form only
// when the exponent is below -4 or reaches the digit count ("1E+15", "1E-05").
template <typename T> QString generalText(T v, int significantDigits, const RegionalSettings &rs)
{
    if (!std::isfinite(v))
        return nonFiniteText(double(v));
    if (v == 0)
        return QStringLiteral("0");
    char buffer[64];
    const auto result = std::to_chars(
        buffer, buffer + sizeof buffer, v, std::chars_format::general, significantDigits);
    QString text = QString::fromLatin1(buffer, result.ptr - buffer);
    text.replace(QLatin1Char('e'), QLatin1Char('E'));
    text.replace(QLatin1Char('.'), rs.decimalSeparator);
    return text;
}

QString timeText(const QTime &time, const RegionalSettings &rs)
{
    return time.toString(rs.timePattern);
}

// Dates show the short date, and the time unless it is midnight; a value on
// the zero date is a pure time and shows the time only.
QString dateText(const QDate &date, const QTime &time, const RegionalSettings &rs)
{
    if (date == zeroDate())
        return timeText(time, rs);
    const QString text = date.toString(rs.shortDatePattern);
    if (time == QTime(0, 0))
        return text;
    return text + QLatin1Char(' ') + timeText(time, rs);
}

// The date and time a Date subtype holds; a null date is no Date (13) and one
// outside 100..9999 cannot be a Date (6).
QDateTime dateTimeOf(const QVariant &v)
{
    QDate date;
    QTime time(0, 0);
    if (v.typeId() == QMetaType::QTime) {
        date = zeroDate();
        time = v.toTime();
    } else if (v.typeId() == QMetaType::QDate) {
        date = v.toDate();
    } else {
        date = v.toDateTime().date();
        time = v.toDateTime().time();
    }
    if (!date.isValid() || !time.isValid())
        throw RuntimeError::typeMismatch();
    if (date.year() < 100 || date.year() > 9999)
        throw RuntimeError::overflow();
    return QDateTime(date, time, Qt::UTC);
}

QString otherText(const QVariant &v)
{
    if (v.typeId() == QMetaType::QString)
        return v.toString();
    if (v.typeId() == QMetaType::QByteArray)
        return fromCp1252(v.toByteArray());
    if (v.canConvert<QString>())
        return v.toString();
    throw RuntimeError::typeMismatch();
}

bool isUnsigned(const QVariant &v)
{
    switch (v.typeId()) {
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::UShort:
    case QMetaType::UChar: return true;
    default: return false;
    }
}

QString wholeNumberText(const QVariant &v)
{
    return isUnsigned(v) ? QString::number(v.toULongLong()) : QString::number(v.toLongLong());
}

double wholeNumberValue(const QVariant &v)
{
    return isUnsigned(v) ? double(v.toULongLong()) : double(v.toLongLong());
}

qint64 roundHalfEven(double v)
{
    const double floor = std::floor(v);
    const double diff = v - floor;
    double r = floor;
    if (diff > 0.5 || (diff == 0.5 && std::fmod(floor, 2.0) != 0.0))
        r = floor + 1.0;
    return qint64(r);
}

qint64 roundChecked(double v, qint64 low, qint64 high)
{
    // Checked on the double first: NaN and huge values never reach the cast.
    if (!(v > double(low) - 1.0 && v < double(high) + 1.0))
        throw RuntimeError::overflow();
    const qint64 r = roundHalfEven(v);
    if (r < low || r > high)
        throw RuntimeError::overflow();
    return r;
}

} // namespace

// --- public conversions --------------------------------------------------------------

QString numberText(double v, const RegionalSettings &rs)
{
    return generalText(v, 15, rs);
}

QString toText(const QVariant &v, const RegionalSettings &rs)
{
    switch (varType(v)) {
    case VarType::Empty: return QString();
    case VarType::Null: throw RuntimeError::invalidUseOfNull();
    case VarType::Boolean: return v.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case VarType::Integer:
    case VarType::Long:
    case VarType::Byte:
    case VarType::Currency: return wholeNumberText(v);
    case VarType::Single: return generalText(v.toFloat(), 7, rs);
    case VarType::Double: return numberText(v.toDouble(), rs);
    case VarType::Date: {
        const QDateTime dateTime = dateTimeOf(v);
        return dateText(dateTime.date(), dateTime.time(), rs);
    }
    case VarType::String: return otherText(v);
    case VarType::Object:
    case VarType::Array: throw RuntimeError::typeMismatch();
    }
    throw RuntimeError::typeMismatch();
}

double toDouble(const QVariant &v, const RegionalSettings &rs)
{
    switch (varType(v)) {
    case VarType::Empty: return 0.0;
    case VarType::Null: throw RuntimeError::invalidUseOfNull();
    case VarType::Boolean: return v.toBool() ? -1.0 : 0.0;
    case VarType::Integer:
    case VarType::Long:
    case VarType::Byte:
    case VarType::Currency: return wholeNumberValue(v);
    case VarType::Single: return double(v.toFloat());
    case VarType::Double: return v.toDouble();
    case VarType::Date: return dateToSerial(dateTimeOf(v));
    case VarType::String: {
        const ReadResult r = readText(v, rs);
        if (r.status != ReadStatus::Ok)
            throwFor(r.status);
        return r.value;
    }
    case VarType::Object:
    case VarType::Array: throw RuntimeError::typeMismatch();
    }
    throw RuntimeError::typeMismatch();
}

qint32 toLong(const QVariant &v, const RegionalSettings &rs)
{
    return roundToLong(toDouble(v, rs));
}

qint16 toInteger(const QVariant &v, const RegionalSettings &rs)
{
    return roundToInteger(toDouble(v, rs));
}

bool toBoolean(const QVariant &v, const RegionalSettings &rs)
{
    if (varType(v) == VarType::Boolean)
        return v.toBool();
    if (varType(v) == VarType::String) {
        const QString text = toText(v, rs).trimmed();
        if (text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
            return true;
        if (text.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
            return false;
    }
    return toDouble(v, rs) != 0.0;
}

QDateTime toDate(const QVariant &v, const RegionalSettings &rs)
{
    switch (varType(v)) {
    case VarType::Date: return dateTimeOf(v);
    case VarType::String: {
        const QString text = toText(v, rs);
        if (const auto date = readDate(text, rs))
            return *date;
        const ReadResult r = readNumber(text, rs);
        if (r.status != ReadStatus::Ok)
            throwFor(r.status);
        return serialToDate(r.value);
    }
    default: return serialToDate(toDouble(v, rs));
    }
}

bool isDate(const QVariant &v, const RegionalSettings &rs)
{
    if (varType(v) == VarType::Date)
        return true;
    if (varType(v) != VarType::String)
        return false;
    try {
        return readDate(toText(v, rs), rs).has_value();
    } catch (const RuntimeError &) {
        return false;
    }
}

bool isNumeric(const QVariant &v, const RegionalSettings &rs)
{
    switch (varType(v)) {
    case VarType::Empty:
    case VarType::Boolean:
    case VarType::Integer:
    case VarType::Long:
    case VarType::Byte:
    case VarType::Currency:
    case VarType::Single:
    case VarType::Double: return true;
    case VarType::String: try { return readText(v, rs).status == ReadStatus::Ok;
        } catch (const RuntimeError &) {
            return false;
        }
    default: return false;
    }
}

double val(const QString &text)
{
    auto isSkipped = [](QChar c) {
        return c == QLatin1Char(' ') || c == QLatin1Char('\t') || c == QLatin1Char('\n');
    };
    const qsizetype n = text.size();
    qsizetype i = 0;
    auto skip = [&] {
        while (i < n && isSkipped(text.at(i)))
            ++i;
    };
    skip();
    if (i < n && text.at(i) == QLatin1Char('&')) {
        const RadixNumber r = readRadix(text, i, true);
        if (!r.found)
            return 0.0;
        return std::isfinite(r.value) ? r.value : std::numeric_limits<double>::max();
    }
    bool negative = false;
    if (i < n && (text.at(i) == QLatin1Char('-') || text.at(i) == QLatin1Char('+'))) {
        negative = text.at(i) == QLatin1Char('-');
        ++i;
        skip();
    }
    DecimalDigits digits;
    for (; i < n && isAsciiDigit(text.at(i)); ++i, skip())
        digits.addIntegerDigit(char(text.at(i).unicode()));
    if (i < n && text.at(i) == QLatin1Char('.')) {
        ++i;
        skip();
        for (; i < n && isAsciiDigit(text.at(i)); ++i, skip())
            digits.addFractionDigit(char(text.at(i).unicode()));
    }
    if (i < n && isExponentLetter(text.at(i))) {
        // The exponent counts only when digits follow; "1E" is 1.
        qsizetype j = i + 1;
        while (j < n && isSkipped(text.at(j)))
            ++j;
        bool negativeExponent = false;
        if (j < n && (text.at(j) == QLatin1Char('-') || text.at(j) == QLatin1Char('+'))) {
            negativeExponent = text.at(j) == QLatin1Char('-');
            ++j;
            while (j < n && isSkipped(text.at(j)))
                ++j;
        }
        qint64 e = 0;
        for (; j < n && (isAsciiDigit(text.at(j)) || isSkipped(text.at(j))); ++j) {
            if (!isSkipped(text.at(j)))
                e = addExponentDigit(e, text.at(j));
        }
        digits.addExponent(negativeExponent ? -e : e);
    }
    double value = digits.value();
    // Val never fails: a value beyond the Double range stays at its largest.
    if (std::isinf(value))
        value = std::numeric_limits<double>::max();
    return negative ? -value : value;
}

qint32 roundToLong(double v)
{
    return qint32(
        roundChecked(v, std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max()));
}

qint16 roundToInteger(double v)
{
    return qint16(
        roundChecked(v, std::numeric_limits<qint16>::min(), std::numeric_limits<qint16>::max()));
}

double vbInt(double v)
{
    return std::floor(v);
}

double vbFix(double v)
{
    return std::trunc(v);
}

qint32 vbMod(double dividend, double divisor)
{
    const qint32 a = roundToLong(dividend);
    const qint32 b = roundToLong(divisor);
    if (b == 0)
        throw RuntimeError::divisionByZero();
    if (b == -1) // avoids the one quotient that does not fit
        return 0;
    return a % b;
}

qint32 vbIntDiv(double dividend, double divisor)
{
    const qint32 a = roundToLong(dividend);
    const qint32 b = roundToLong(divisor);
    if (b == 0)
        throw RuntimeError::divisionByZero();
    if (b == -1 && a == std::numeric_limits<qint32>::min())
        throw RuntimeError::overflow();
    return a / b;
}

} // namespace qor
