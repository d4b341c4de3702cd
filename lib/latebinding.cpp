#include "lib/latebinding.h"

#include "platform/clock.h"
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
            m_settings = Clock::current().regionalSettings();
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
    const QMetaType type = storage.metaType();
    if (type.id() == QMetaType::QVariant)
        return std::move(*static_cast<QVariant *>(storage.data()));
    if (type.flags() & QMetaType::IsEnumeration)
        return QVariant::fromValue<int>(*static_cast<const int *>(storage.constData()));
    return std::move(storage);
}

// Where the call reads (and for a by-reference parameter writes) a supplied
// argument. An argument that already has the declared type is used where it
// stands in the caller's list; any other goes through a slot of its own.
void *argumentPointer(const ParameterInfo &param, QVariantList &args, qsizetype i, QVariant &slot,
    LazySettings &settings)
{
    const QVariant &value = args.at(i);
    if (param.metaType.id() == QMetaType::QVariant)
        return param.byRef ? &args[i] : const_cast<QVariant *>(&value);
    if (value.metaType() == param.metaType)
        return param.byRef ? args[i].data() : const_cast<void *>(value.constData());
    slot = storageFor(value, param.metaType, settings);
    return slot.data();
}

// The value of an optional argument left out: its default, an empty value of
// the declared type, or for a Variant without default the IsMissing value.
QVariant defaultFor(const ParameterInfo &param, LazySettings &settings)
{
    if (param.defaultValue.isValid())
        return storageFor(param.defaultValue, param.metaType, settings);
    if (param.metaType.id() != QMetaType::QVariant)
        return QVariant(param.metaType, nullptr);
    return storageFor(missingVariant(), param.metaType, settings);
}

} // namespace

LateBinding::LateBinding(QObject *object, const TypeLibrary &library)
    : m_object(object)
    , m_library(library)
{ }

QVariant LateBinding::invoke(const QString &name, QVariantList &args) const
{
    const TypeLibrary::Member member = m_library.findMember(name);
    if (member.method)
        return callMethod(*member.method, args);
    if (member.property)
        return accessProperty(*member.property, args);
    throw RuntimeError::notSupportedByObject();
}

QVariant LateBinding::callMethod(const MethodInfo &method, QVariantList &args) const
{
    const qsizetype count = method.parameters.size();
    if (args.size() > count)
        throw RuntimeError::wrongArgumentCount();
    // The call may read and write the caller's values where they stand, so
    // the list must be the caller's own before any pointer into it is taken.
    args.detach();
    LazySettings settings;
    // Slots for the arguments that need a value of their own: converted,
    // defaulted or left out. Sized once, so pointers into it stay valid.
    QVarLengthArray<QVariant, usualArgumentCount> storage(count);
    QVarLengthArray<void *, usualArgumentCount + 1> argv(count + 1);
    for (qsizetype i = 0; i < count; ++i) {
        const ParameterInfo &param = method.parameters[i];
        if (i < args.size() && !isMissing(args.at(i))) {
            argv[i + 1] = argumentPointer(param, args, i, storage[i], settings);
        } else if (!param.optional) {
            throw RuntimeError::argumentNotOptional();
        } else {
            storage[i] = defaultFor(param, settings);
            argv[i + 1] = storage[i].data();
        }
    }
    const bool hasResult = method.returnMetaType.id() != QMetaType::Void;
    QVariant result = hasResult ? QVariant(method.returnMetaType, nullptr) : QVariant();
    argv[0] = hasResult ? result.data() : nullptr;
    m_object->qt_metacall(QMetaObject::InvokeMetaMethod, method.methodIndex, argv.data());
    // Converted by-reference arguments go back into the caller's list.
    for (qsizetype i = 0; i < args.size(); ++i) {
        if (method.parameters[i].byRef && storage[i].isValid() && !isMissing(args.at(i)))
            args[i] = unwrap(std::move(storage[i]));
    }
    return hasResult ? unwrap(std::move(result)) : QVariant();
}

QVariant LateBinding::accessProperty(const PropertyInfo &property, QVariantList &args) const
{
    const QMetaProperty meta = m_object->metaObject()->property(property.propertyIndex);
    if (args.isEmpty())
        return unwrap(meta.read(m_object));
    if (args.size() > 1)
        throw RuntimeError::wrongArgumentCount();
    const QVariant value
        = coerceTo(args.first(), meta.metaType(), Clock::current().regionalSettings());
    meta.write(m_object, value);
    return QVariant();
}

} // namespace qor
