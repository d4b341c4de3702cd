#include "einvoice/hostvalue.h"

#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include <algorithm>
#include <cmath>

namespace qor::einvoice {

namespace {

// Beyond this a double no longer holds every digit of a whole amount.
constexpr double largestExactNumber = 1e15;
constexpr int significantDigits = 15;

Decimal decimalOfText(QString text)
{
    text = text.trimmed();
    text.replace(QLatin1Char(','), QLatin1Char('.'));
    const Decimal value = Decimal::parse(text);
    if (value.isValid())
        return value;
    static const QString digitsOnly = QStringLiteral("+-.0123456789");
    const bool plainNumber = !text.isEmpty()
        && std::all_of(text.begin(), text.end(), [](QChar c) { return digitsOnly.contains(c); });
    throw plainNumber ? RuntimeError::overflow() : RuntimeError::typeMismatch();
}

} // namespace

Decimal decimalFromHost(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QString: return decimalOfText(value.toString());
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UChar: return Decimal::fromInt(value.toLongLong());
    case QMetaType::Float:
    case QMetaType::Double: {
        const double number = value.toDouble();
        if (!std::isfinite(number) || std::abs(number) >= largestExactNumber)
            throw RuntimeError::overflow();
        const int wholeDigits
            = std::abs(number) < 1 ? 1 : int(std::floor(std::log10(std::abs(number)))) + 1;
        const int decimals = std::min(Decimal::maxScale, significantDigits - wholeDigits);
        return Decimal::parse(QString::number(number, 'f', decimals)).normalized();
    }
    default: throw RuntimeError::typeMismatch();
    }
}

std::optional<Decimal> optionalDecimalFromHost(const QVariant &value)
{
    if (isMissing(value) || !value.isValid())
        return std::nullopt;
    return decimalFromHost(value);
}

} // namespace qor::einvoice
