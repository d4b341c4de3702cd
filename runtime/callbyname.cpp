#include "runtime/callbyname.h"

#include "runtime/coercion.h"
#include "runtime/propertybag.h"
#include "runtime/runtimeerror.h"

#include <QMetaMethod>
#include <QMetaObject>

namespace qor {

namespace {

QObject *requireObject(QObject *object)
{
    if (!object)
        throw RuntimeError::objectNotSet();
    return object;
}

PropertyBag *bagOf(QObject *object)
{
    return dynamic_cast<PropertyBag *>(object);
}

} // namespace

QByteArray propertyNameOf(QObject *object, const char *name)
{
    const QMetaObject *meta = object->metaObject();
    if (meta->indexOfProperty(name) >= 0)
        return QByteArray(name);
    if (const PropertyBag *bag = bagOf(object)) {
        const QString known = bag->bagName(QString::fromUtf8(name));
        if (!known.isEmpty())
            return known.toUtf8();
    }
    const QList<QByteArray> dynamic = object->dynamicPropertyNames();
    if (dynamic.contains(QByteArray(name)))
        return QByteArray(name);
    for (int i = 0; i < meta->propertyCount(); ++i) {
        if (qstricmp(meta->property(i).name(), name) == 0)
            return QByteArray(meta->property(i).name());
    }
    for (const QByteArray &candidate : dynamic) {
        if (qstricmp(candidate.constData(), name) == 0)
            return candidate;
    }
    return QByteArray();
}

bool hasProperty(QObject *object, const char *name)
{
    return object && !propertyNameOf(object, name).isEmpty();
}

QVariant getProperty(QObject *object, const char *name)
{
    const QByteArray resolved = propertyNameOf(requireObject(object), name);
    if (resolved.isEmpty())
        throw RuntimeError::notSupportedByObject();
    if (object->metaObject()->indexOfProperty(resolved.constData()) < 0) {
        if (const PropertyBag *bag = bagOf(object)) {
            if (const QVariant *value = bag->bagValue(QString::fromUtf8(resolved)))
                return *value;
        }
    }
    return object->property(resolved.constData());
}

void setProperty(
    QObject *object, const char *name, const QVariant &value, const RegionalSettings &rs)
{
    const QByteArray resolved = propertyNameOf(requireObject(object), name);
    if (resolved.isEmpty())
        throw RuntimeError::notSupportedByObject();
    const QMetaObject *meta = object->metaObject();
    const int index = meta->indexOfProperty(resolved.constData());
    if (index >= 0) {
        const QMetaProperty property = meta->property(index);
        if (!property.isWritable()
            || !property.write(object, coerceTo(value, property.metaType(), rs)))
            throw RuntimeError::propertyReadOnly(QLatin1String(name));
        return;
    }
    if (PropertyBag *bag = bagOf(object)) {
        if (bag->bagValue(QString::fromUtf8(resolved))) {
            bag->bagAssign(QString::fromUtf8(resolved), value);
            return;
        }
    }
    object->setProperty(resolved.constData(), value);
}

QVariant callOperation(
    QObject *object, const char *name, const QVariantList &args, const RegionalSettings &rs)
{
    const QMetaObject *meta = requireObject(object)->metaObject();
    constexpr int maxArguments = 4;
    if (args.size() > maxArguments)
        throw RuntimeError::wrongArgumentCount();
    for (int i = meta->methodCount() - 1; i >= 0; --i) {
        const QMetaMethod method = meta->method(i);
        if (qstricmp(method.name().constData(), name) != 0
            || method.parameterCount() != args.size())
            continue;
        // Each argument in the declared type; a Variant parameter takes the value as it is.
        QVariantList converted = args;
        QList<QByteArray> typeNames;
        typeNames.reserve(maxArguments);
        QGenericArgument generic[maxArguments];
        for (int a = 0; a < args.size(); ++a) {
            const QMetaType type = method.parameterMetaType(a);
            if (type.id() == QMetaType::QVariant)
                converted[a] = QVariant(type, &args[a]);
            else
                converted[a] = coerceTo(args[a], type, rs);
            typeNames.append(method.parameterTypeName(a));
            generic[a] = QGenericArgument(typeNames.last().constData(), converted[a].constData());
        }
        const bool hasResult = method.returnMetaType().id() != QMetaType::Void;
        QVariant result = hasResult ? QVariant(method.returnMetaType(), nullptr) : QVariant();
        QGenericReturnArgument ret;
        if (hasResult)
            ret = QGenericReturnArgument(method.typeName(), result.data());
        if (!method.invoke(
                object, Qt::DirectConnection, ret, generic[0], generic[1], generic[2], generic[3]))
            throw RuntimeError::notSupportedByObject();
        if (hasResult && result.metaType().id() == QMetaType::QVariant)
            return *static_cast<const QVariant *>(result.constData());
        return result;
    }
    throw RuntimeError::notSupportedByObject();
}

} // namespace qor
