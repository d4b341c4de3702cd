#include "input/amounts.h"

#include "runtime/conversion.h"
#include "runtime/format.h"
#include "runtime/variant.h"

namespace qor {

QVariant cGetal(const QVariant &number, const RegionalSettings &rs)
{
    if (isNull(number) || isEmpty(number))
        return integerVariant(0);
    if (number.typeId() == QMetaType::QString && number.toString().isEmpty())
        return integerVariant(0);
    if (!isNumeric(number, rs))
        return integerVariant(0);
    // The decimal separator is what the text form of 0 formatted "0.0" shows.
    const QChar decimal = format(0, QStringLiteral("0.0"), rs).at(1);
    if (decimal == QLatin1Char('.'))
        return doubleVariant(val(toText(number, rs)));
    return doubleVariant(toDouble(number, rs));
}

double cGetalValue(const QVariant &number, const RegionalSettings &rs)
{
    return cGetal(number, rs).toDouble();
}

QString setEuro(float value, int symbol, const RegionalSettings &rs)
{
    const QVariant amount = cGetal(QVariant::fromValue(value), rs);
    QString text = format(amount, QStringLiteral("#,##0.00;- #,##0.00"), rs);
    if (symbol == 1)
        text += QStringLiteral(" EUR");
    else if (symbol == 2)
        text += QStringLiteral(" \u20AC");
    return text;
}

} // namespace qor
