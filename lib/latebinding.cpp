#include "lib/latebinding.h"

#include "platform/platform.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include <QDateTime>
#include <QMetaProperty>

#include <cmath>
#include <limits>
#include <vector>

namespace qor {

namespace {

// Storage of exactly the declared type; a Variant parameter keeps its value wrapped.
QVariant storageFor(const QVariant &value, QMetaType type)
{
    if (type.id() == QMetaType::QVariant)
        return QVariant(type, &value);
    if (value.metaType() == type)
        return value;
    // The call reads the slot as the declared type, so nothing else may sit there.
    QVariant converted = value;
    if (!converted.convert(type))
        throw RuntimeError::typeMismatch();
    return converted;
}

QVariant unwrap(const QVariant &storage)
{
    if (storage.metaType().id() == QMetaType::QVariant)
        return *static_cast<const QVariant *>(storage.constData());
    if (storage.metaType().flags() & QMetaType::IsEnumeration)
        return QVariant::fromValue<int>(*static_cast<const int *>(storage.constData()));
    return storage;
}

QObject *objectOf(const QVariant &value)
{
    if (isObject(value))
        return value.value<QObject *>();
    throw RuntimeError::typeMismatch();
}

} // namespace

LateBinding::LateBinding(QObject *object, const TypeLibrary &library)
    : m_object(object)
    , m_library(library)
{ }

QVariant LateBinding::coerce(const QVariant &value, QMetaType target, const RegionalSettings &rs)
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

QVariant LateBinding::invoke(const QString &name, QVariantList &args) const
{
    if (const MethodInfo *method = m_library.findMethod(name))
        return callMethod(*method, args);
    if (const PropertyInfo *property = m_library.findProperty(name))
        return accessProperty(*property, args);
    throw RuntimeError::notSupportedByObject();
}

QVariant LateBinding::callMethod(const MethodInfo &method, QVariantList &args) const
{
    if (args.size() > method.parameters.size())
        throw RuntimeError::wrongArgumentCount();
    const RegionalSettings rs = platform().regionalSettings();
    std::vector<QVariant> storage;
    storage.reserve(method.parameters.size());
    for (int i = 0; i < method.parameters.size(); ++i) {
        const ParameterInfo &param = method.parameters[i];
        const bool supplied = i < args.size() && !isMissing(args[i]);
        QVariant value;
        if (supplied)
            value = coerce(args[i], param.metaType, rs);
        else if (!param.optional)
            throw RuntimeError(449);
        else if (param.defaultValue.isValid())
            value = param.defaultValue;
        else if (param.metaType.id() != QMetaType::QVariant)
            value = QVariant(param.metaType, nullptr);
        storage.push_back(storageFor(value, param.metaType));
    }
    const QMetaMethod meta = m_object->metaObject()->method(method.methodIndex);
    QVariant result;
    if (meta.returnMetaType().id() != QMetaType::Void)
        result = QVariant(meta.returnMetaType(), nullptr);
    std::vector<void *> argv;
    argv.push_back(result.isValid() ? result.data() : nullptr);
    for (QVariant &slot : storage)
        argv.push_back(slot.data());
    m_object->qt_metacall(QMetaObject::InvokeMetaMethod, method.methodIndex, argv.data());
    for (int i = 0; i < args.size(); ++i) {
        if (method.parameters[i].byRef && !isMissing(args[i]))
            args[i] = unwrap(storage[size_t(i)]);
    }
    return result.isValid() ? unwrap(result) : QVariant();
}

QVariant LateBinding::accessProperty(const PropertyInfo &property, QVariantList &args) const
{
    const QByteArray name = property.name.toLatin1();
    const QMetaProperty meta
        = m_object->metaObject()->property(m_object->metaObject()->indexOfProperty(name));
    if (args.isEmpty())
        return unwrap(meta.read(m_object));
    if (args.size() > 1)
        throw RuntimeError::wrongArgumentCount();
    const QVariant value = coerce(args.first(), meta.metaType(), platform().regionalSettings());
    meta.write(m_object, value);
    return QVariant();
}

} // namespace qor
