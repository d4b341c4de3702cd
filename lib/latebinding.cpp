#include "lib/latebinding.h"

#include "platform/platform.h"
#include "runtime/coercion.h"
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

} // namespace

LateBinding::LateBinding(QObject *object, const TypeLibrary &library)
    : m_object(object)
    , m_library(library)
{ }

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
            value = coerceTo(args[i], param.metaType, rs);
        else if (!param.optional)
            throw RuntimeError::argumentNotOptional();
        else if (param.defaultValue.isValid())
            value = param.defaultValue;
        else if (param.metaType.id() != QMetaType::QVariant)
            value = QVariant(param.metaType, nullptr);
        else
            value = missingVariant(); // an optional Variant without default: IsMissing
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
    const QVariant value = coerceTo(args.first(), meta.metaType(), platform().regionalSettings());
    meta.write(m_object, value);
    return QVariant();
}

} // namespace qor
