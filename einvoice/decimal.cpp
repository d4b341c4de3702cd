#include "einvoice/decimal.h"

#include <limits>

namespace qor::einvoice {

namespace {

// Intermediate products and quotients are computed on 128 bits, so that only
// the final result needs a range check.
using Wide = __int128;

constexpr int maxDigits = 18;

Wide powerOfTen(int exponent)
{
    Wide result = 1;
    for (int i = 0; i < exponent; ++i)
        result *= 10;
    return result;
}

bool fitsIn64(Wide value)
{
    return value >= std::numeric_limits<qint64>::min()
        && value <= std::numeric_limits<qint64>::max();
}

// numerator ÷ denominator rounded half away from zero; denominator > 0.
Wide divideRounded(Wide numerator, Wide denominator)
{
    const Wide quotient = numerator / denominator;
    const Wide remainder = numerator % denominator;
    const Wide twice = (remainder < 0 ? -remainder : remainder) * 2;
    if (twice >= denominator)
        return numerator < 0 ? quotient - 1 : quotient + 1;
    return quotient;
}

Decimal fromWide(Wide units, int scale)
{
    if (!fitsIn64(units))
        return Decimal::invalid();
    return Decimal(static_cast<qint64>(units), scale);
}

// Both values as units of the larger scale.
struct Aligned
{
    Wide left;
    Wide right;
    int scale;
};

Aligned align(const Decimal &a, const Decimal &b)
{
    const int scale = qMax(a.scale(), b.scale());
    return { Wide(a.units()) * powerOfTen(scale - a.scale()),
        Wide(b.units()) * powerOfTen(scale - b.scale()), scale };
}

} // namespace

Decimal::Decimal(qint64 units, int scale)
    : m_units(units)
    , m_scale(scale)
{
    if (scale < 0 || scale > maxScale) {
        m_units = 0;
        m_scale = 0;
        m_valid = false;
    }
}

Decimal Decimal::invalid()
{
    Decimal result;
    result.m_valid = false;
    return result;
}

QString Decimal::parseError(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return QStringLiteral("no number");
    qsizetype i = 0;
    if (trimmed[0] == u'+' || trimmed[0] == u'-')
        ++i;
    int digits = 0;
    int significant = 0;
    int decimals = 0;
    bool point = false;
    for (; i < trimmed.size(); ++i) {
        const QChar c = trimmed[i];
        if (c == u'.' && !point) {
            point = true;
        } else if (c >= u'0' && c <= u'9') {
            ++digits;
            if (significant > 0 || c != u'0')
                ++significant;
            if (point)
                ++decimals;
        } else {
            return QStringLiteral("\"%1\" is not a plain decimal number (character '%2')")
                .arg(trimmed.left(40).toString(), c);
        }
    }
    if (digits == 0)
        return QStringLiteral("\"%1\" has no digits").arg(trimmed.left(40).toString());
    if (point && decimals == 0)
        return QStringLiteral("\"%1\" has no digits after the point")
            .arg(trimmed.left(40).toString());
    if (decimals > maxScale)
        return QStringLiteral("\"%1\" has more than %2 decimals")
            .arg(trimmed.left(40).toString())
            .arg(maxScale);
    if (significant > maxDigits)
        return QStringLiteral("\"%1\" has more than %2 digits")
            .arg(trimmed.left(40).toString())
            .arg(maxDigits);
    return QString();
}

Decimal Decimal::parse(QStringView text)
{
    if (!parseError(text).isEmpty())
        return invalid();
    const QStringView trimmed = text.trimmed();
    Wide units = 0;
    int scale = 0;
    bool point = false;
    for (const QChar c : trimmed) {
        if (c == u'.') {
            point = true;
        } else if (c.isDigit()) {
            units = units * 10 + (c.unicode() - u'0');
            if (point)
                ++scale;
        }
    }
    if (trimmed[0] == u'-')
        units = -units;
    return fromWide(units, scale);
}

QString Decimal::toString() const
{
    if (!m_valid)
        return QStringLiteral("NaN");
    const Wide magnitude = m_units < 0 ? -Wide(m_units) : Wide(m_units);
    QString digits = QString::number(static_cast<quint64>(magnitude));
    if (m_scale > 0) {
        if (digits.size() <= m_scale)
            digits = QString(m_scale + 1 - digits.size(), u'0') + digits;
        digits.insert(digits.size() - m_scale, u'.');
    }
    return m_units < 0 ? u'-' + digits : digits;
}

Decimal Decimal::rounded(int decimals) const
{
    if (!m_valid)
        return *this;
    if (decimals >= m_scale)
        return withScale(decimals);
    return fromWide(divideRounded(m_units, powerOfTen(m_scale - decimals)), decimals);
}

Decimal Decimal::withScale(int decimals) const
{
    if (!m_valid || decimals <= m_scale)
        return *this;
    if (decimals > maxScale)
        return invalid();
    return fromWide(Wide(m_units) * powerOfTen(decimals - m_scale), decimals);
}

Decimal Decimal::normalized() const
{
    Decimal result = *this;
    while (result.m_valid && result.m_scale > 0 && result.m_units % 10 == 0) {
        result.m_units /= 10;
        --result.m_scale;
    }
    return result;
}

Decimal Decimal::operator-() const
{
    if (!m_valid)
        return *this;
    return fromWide(-Wide(m_units), m_scale);
}

Decimal Decimal::operator+(const Decimal &other) const
{
    if (!m_valid || !other.m_valid)
        return invalid();
    const Aligned a = align(*this, other);
    return fromWide(a.left + a.right, a.scale);
}

Decimal Decimal::operator-(const Decimal &other) const
{
    return *this + -other;
}

Decimal Decimal::operator*(const Decimal &other) const
{
    if (!m_valid || !other.m_valid)
        return invalid();
    Wide product = Wide(m_units) * other.m_units;
    int scale = m_scale + other.m_scale;
    // Trailing zeros beyond the largest scale are dropped; real digits there
    // cannot be kept.
    while (scale > maxScale && product % 10 == 0) {
        product /= 10;
        --scale;
    }
    if (scale > maxScale)
        return invalid();
    return fromWide(product, scale);
}

Decimal Decimal::dividedBy(const Decimal &divisor, int decimals) const
{
    if (!m_valid || !divisor.m_valid || divisor.m_units == 0 || decimals < 0 || decimals > maxScale)
        return invalid();
    // (a / 10^sa) / (b / 10^sb) = a × 10^(sb - sa) / b, wanted in units of 10^-decimals.
    int exponent = divisor.m_scale - m_scale + decimals;
    Wide numerator = m_units;
    Wide denominator = divisor.m_units;
    if (exponent >= 0)
        numerator *= powerOfTen(exponent);
    else
        denominator *= powerOfTen(-exponent);
    if (denominator < 0) {
        numerator = -numerator;
        denominator = -denominator;
    }
    return fromWide(divideRounded(numerator, denominator), decimals);
}

bool Decimal::operator==(const Decimal &other) const
{
    if (!m_valid || !other.m_valid)
        return m_valid == other.m_valid;
    const Aligned a = align(*this, other);
    return a.left == a.right;
}

bool Decimal::operator<(const Decimal &other) const
{
    if (!m_valid || !other.m_valid)
        return !m_valid && other.m_valid;
    const Aligned a = align(*this, other);
    return a.left < a.right;
}

} // namespace qor::einvoice
