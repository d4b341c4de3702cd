#include "runtime/coercion.h"

#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include <QDateTime>

#include <cmath>
#include <limits>

namespace qor {

namespace {

QObject *objectOf(const QVariant &value)
{
    if (isObject(value))
        return value.value<QObject *>();
    throw RuntimeError::typeMismatch();
}

} // namespace

QVariant coerceTo(const QVariant &value, QMetaType target, const RegionalSettings &rs)
{
    switch (target.id()) {
    case QMetaType::QVariant: return value;
    case QMetaType::QString: return toText(value, rs);
    case QMetaType::Bool: return toBoolean(value, rs);
    case QMetaType::Int: return QVariant::fromValue<int>(toLong(value, rs));
    case QMetaType::Short: return QVariant::fromValue<short>(toInteger(value, rs));
    case QMetaType::Double: return toDouble(value, rs);
    case QMetaType::Float: {
        const double d = toDouble(value, rs);
        if (std::isfinite(d) && std::fabs(d) > std::numeric_limits<float>::max())
            throw RuntimeError::overflow();
        return QVariant::fromValue<float>(float(d));
    }
    case QMetaType::QObjectStar: return QVariant::fromValue(objectOf(value));
    case QMetaType::QDateTime: {
        if (varType(value) != VarType::Date)
            throw RuntimeError::typeMismatch();
        return value.toDateTime();
    }
    case QMetaType::QVariantList: {
        if (!isArray(value))
            throw RuntimeError::typeMismatch();
        return value.toList();
    }
    case QMetaType::QStringList: {
        // An array of String: every element through CStr (Null stops it with 94).
        if (!isArray(value))
            throw RuntimeError::typeMismatch();
        QStringList texts;
        for (const QVariant &element : value.toList())
            texts.append(toText(element, rs));
        return texts;
    }
    default: break;
    }
    if (target.flags() & QMetaType::IsEnumeration) {
        const int number = toLong(value, rs);
        return QVariant(target, &number);
    }
    if (target.flags() & QMetaType::PointerToQObject) {
        QObject *object = objectOf(value);
        if (object && !object->metaObject()->inherits(target.metaObject()))
            throw RuntimeError::typeMismatch();
        return QVariant(target, &object);
    }
    QVariant converted = value;
    if (!converted.convert(target))
        throw RuntimeError::typeMismatch();
    return converted;
}

} // namespace qor
