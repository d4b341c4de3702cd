#pragma once

#include "qorgenlib_export.h"
#include <QString>
#include <QtGlobal>

namespace qor::einvoice {

/// An exact decimal number: a 64-bit count of units of 10^-scale.
///
/// Money is never held in binary floating point here: 0.1 + 0.2 is not 0.3 in
/// a double, and an e-invoice's totals are checked to the cent by the
/// receiving network, so every amount, quantity, price and rate is an exact
/// decimal. The scale (digits after the point) is kept as written, so that
/// "12.50" read from a document is written back as "12.50".
///
/// An operation whose result does not fit (more than 18 significant digits,
/// or a scale above maxScale) gives an invalid decimal, which every further
/// operation passes on; isValid() tells it. Nothing ever wraps around.
class QORGENLIB_EXPORT Decimal
{
public:
    /// The largest number of digits after the point.
    static constexpr int maxScale = 12;

    /// Zero with no decimals.
    Decimal() = default;
    /// units × 10^-scale, e.g. Decimal(1250, 2) is 12.50. A scale outside
    /// 0..maxScale gives an invalid decimal.
    Decimal(qint64 units, int scale);
    /// A whole number.
    static Decimal fromInt(qint64 value) { return Decimal(value, 0); }
    /// Reads "123", "-0.5", "+12.50": an optional sign, digits and at most one
    /// point followed by digits. Blanks around it are ignored. No exponent, no
    /// thousands separators, at most 18 significant digits: anything else
    /// gives an invalid decimal (see parseError()).
    static Decimal parse(QStringView text);
    /// Why parse() refused a text; empty when it is a valid decimal.
    static QString parseError(QStringView text);
    /// The invalid decimal.
    static Decimal invalid();

    bool isValid() const { return m_valid; }
    bool isZero() const { return m_valid && m_units == 0; }
    bool isNegative() const { return m_valid && m_units < 0; }
    qint64 units() const { return m_units; }
    int scale() const { return m_scale; }

    /// The text with exactly scale() decimals and a point ("-12.50", "3");
    /// "NaN" for an invalid decimal.
    QString toString() const;
    /// The value rounded to the given number of decimals, half away from
    /// zero (12.345 → 12.35, -12.345 → -12.35), with that many decimals.
    Decimal rounded(int decimals) const;
    /// The same value with at least the given number of decimals (2 → "3.00").
    Decimal withScale(int decimals) const;
    /// The same value without trailing zero decimals ("3.500" → "3.5").
    Decimal normalized() const;

    Decimal operator-() const;
    Decimal operator+(const Decimal &other) const;
    Decimal operator-(const Decimal &other) const;
    /// The exact product; its scale is the sum of both scales.
    Decimal operator*(const Decimal &other) const;
    Decimal &operator+=(const Decimal &other) { return *this = *this + other; }
    Decimal &operator-=(const Decimal &other) { return *this = *this - other; }
    /// this ÷ divisor rounded half away from zero to the given number of
    /// decimals; invalid when the divisor is zero.
    Decimal dividedBy(const Decimal &divisor, int decimals) const;

    /// Equal values compare equal whatever their scales (1.5 == 1.50).
    /// Invalid decimals equal only each other.
    bool operator==(const Decimal &other) const;
    bool operator!=(const Decimal &other) const { return !(*this == other); }
    bool operator<(const Decimal &other) const;

private:
    qint64 m_units = 0;
    int m_scale = 0;
    bool m_valid = true;
};

} // namespace qor::einvoice
