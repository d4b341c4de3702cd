#include "lib/publisheddefault.h"

#include "runtime/variant.h"

#include <cmath>
#include <limits>

namespace qor {

namespace {

// A whole number within the Integer subtype's range.
bool isIntegerValue(double number)
{
    return number >= std::numeric_limits<qint16>::min()
        && number <= std::numeric_limits<qint16>::max() && number == std::trunc(number);
}

} // namespace

QJsonValue PublishedValue::toJson() const
{
    switch (m_kind) {
    case Kind::None: return QJsonValue::Null;
    case Kind::Boolean: return m_flag;
    case Kind::Number: return m_number;
    case Kind::Text: return QString::fromLatin1(m_text.data(), qsizetype(m_text.size()));
    }
    return QJsonValue::Null;
}

QVariant PublishedValue::toVariant() const
{
    if (m_kind == Kind::None)
        return missingVariant();
    return publishedArgument(toJson(), QMetaType::fromType<QVariant>());
}

QVariant publishedArgument(const QJsonValue &json, QMetaType type)
{
    if (json.isNull() || json.isUndefined())
        return {};
    QVariant value = json.toVariant();
    if (type.id() == QMetaType::QVariant) {
        if (json.isDouble() && isIntegerValue(json.toDouble()))
            return QVariant::fromValue<short>(qint16(json.toDouble()));
        return value;
    }
    if (type.flags() & QMetaType::IsEnumeration)
        return QVariant::fromValue<int>(json.toInt());
    value.convert(type);
    return value;
}

} // namespace qor
