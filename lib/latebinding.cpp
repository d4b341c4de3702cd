#include "lib/latebinding.h"

#include "platform/platform.h"
#include "runtime/coercion.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include <QMetaProperty>
#include <QVarLengthArray>

#include <optional>

namespace qor {

namespace {

constexpr qsizetype usualArgumentCount = 8;

// The user's settings, asked of the platform only when a conversion needs them.
class LazySettings
{
public:
    const RegionalSettings &get()
    {
        if (!m_settings)
            m_settings = platform().regionalSettings();
        return *m_settings;
    }

private:
    std::optional<RegionalSettings> m_settings;
};

// A value in exactly the declared type, converted by the one rule of automation
// calls (coerceTo); a Variant parameter keeps the value wrapped.
QVariant storageFor(const QVariant &value, QMetaType type, LazySettings &settings)
{
    if (type.id() == QMetaType::QVariant)
        return QVariant(type, &value);
    if (value.metaType() == type)
        return value;
    QVariant converted = coerceTo(value, type, settings.get());
    // The call reads the slot as the declared type, so nothing else may sit there.
    if (converted.metaType() != type)
        throw RuntimeError::typeMismatch();
    return converted;
}

// The value a slot holds as the caller sees it; the slot is used up.
QVariant unwrap(QVariant &&storage)
{
    if (storage.metaType().id() == QMetaType::QVariant)
        return std::move(*static_cast<QVariant *>(storage.data()));
    if (storage.metaType().flags() & QMetaType::IsEnumeration)
        return QVariant::fromValue<int>(*static_cast<const int *>(storage.constData()));
    return std::move(storage);
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
    LazySettings settings;
    QVarLengthArray<QVariant, usualArgumentCount> storage;
    QVarLengthArray<bool, usualArgumentCount> supplied;
    storage.reserve(method.parameters.size());
    for (int i = 0; i < method.parameters.size(); ++i) {
        const ParameterInfo &param = method.parameters[i];
        supplied.append(i < args.size() && !isMissing(args[i]));
        if (supplied.back())
            storage.append(storageFor(args[i], param.metaType, settings));
        else if (!param.optional)
            throw RuntimeError::argumentNotOptional();
        else if (param.defaultValue.isValid())
            storage.append(storageFor(param.defaultValue, param.metaType, settings));
        else if (param.metaType.id() != QMetaType::QVariant)
            storage.append(QVariant(param.metaType, nullptr));
        else // an optional Variant without default: IsMissing
            storage.append(storageFor(missingVariant(), param.metaType, settings));
    }
    QVariant result;
    if (method.returnMetaType.id() != QMetaType::Void)
        result = QVariant(method.returnMetaType, nullptr);
    QVarLengthArray<void *, usualArgumentCount + 1> argv;
    argv.append(result.isValid() ? result.data() : nullptr);
    for (QVariant &slot : storage)
        argv.append(slot.data());
    m_object->qt_metacall(QMetaObject::InvokeMetaMethod, method.methodIndex, argv.data());
    for (int i = 0; i < args.size(); ++i) {
        if (method.parameters[i].byRef && supplied[i])
            args[i] = unwrap(std::move(storage[i]));
    }
    return result.isValid() ? unwrap(std::move(result)) : QVariant();
}

QVariant LateBinding::accessProperty(const PropertyInfo &property, QVariantList &args) const
{
    const QMetaProperty meta = m_object->metaObject()->property(property.propertyIndex);
    if (args.isEmpty())
        return unwrap(meta.read(m_object));
    if (args.size() > 1)
        throw RuntimeError::wrongArgumentCount();
    const QVariant value = coerceTo(args.first(), meta.metaType(), platform().regionalSettings());
    meta.write(m_object, value);
    return QVariant();
}

} // namespace qor
