#include "host/hostobject.h"

#include "platform/platform.h"
#include "runtime/callbyname.h"
#include "runtime/runtimeerror.h"

#include <QMetaClassInfo>
#include <QMetaProperty>

namespace qor {

namespace {

// Properties below this index belong to QObject itself (objectName).
int firstOwnProperty()
{
    return QObject::staticMetaObject.propertyCount();
}

} // namespace

HostObject::HostObject(QObject *parent)
    : QObject(parent)
{ }

QString HostObject::className() const
{
    const int index = metaObject()->indexOfClassInfo("HostClass");
    return QString::fromLatin1(metaObject()->classInfo(index).value());
}

QStringList HostObject::propertyNames() const
{
    QStringList names;
    const QMetaObject *meta = metaObject();
    for (int i = firstOwnProperty(); i < meta->propertyCount(); ++i)
        names.append(QString::fromLatin1(meta->property(i).name()));
    for (const QByteArray &name : dynamicPropertyNames())
        names.append(QString::fromUtf8(name));
    return names;
}

QString HostObject::resolveName(const QString &name) const
{
    const QByteArray known
        = propertyNameOf(const_cast<HostObject *>(this), name.toUtf8().constData());
    // QObject's own objectName is not a property of the control.
    return known == "objectName" ? QString() : QString::fromUtf8(known);
}

bool HostObject::isDeclared(const QString &name) const
{
    return metaObject()->indexOfProperty(resolveName(name).toLatin1().constData())
        >= firstOwnProperty();
}

bool HostObject::isWritable(const QString &name) const
{
    const int index = metaObject()->indexOfProperty(resolveName(name).toLatin1().constData());
    return index < firstOwnProperty() || metaObject()->property(index).isWritable();
}

QVariant HostObject::value(const QString &name) const
{
    const QString resolved = resolveName(name);
    if (resolved.isEmpty())
        return QVariant();
    const QVariant held = property(resolved.toUtf8().constData());
    if (held.metaType() == QMetaType::fromType<QObject *>()) {
        if (auto *collection = qobject_cast<HostObject *>(held.value<QObject *>());
            collection && collection->isCollection())
            return collection->elements();
    }
    return held;
}

void HostObject::assign(const QString &name, const QVariant &value)
{
    const QString resolved = resolveName(name);
    const int index = metaObject()->indexOfProperty(resolved.toLatin1().constData());
    if (resolved.isEmpty() || index < firstOwnProperty()) {
        setProperty((resolved.isEmpty() ? name : resolved).toUtf8().constData(), value);
        return;
    }
    qor::setProperty(this, resolved.toLatin1().constData(), value, platform().regionalSettings());
}

QString HostObject::elementClass(const QString &) const
{
    return QString();
}

void HostObject::recordCall(const QString &name, const QVariantList &args)
{
    m_calls.append(
        QVariantMap { { QStringLiteral("name"), name }, { QStringLiteral("args"), args } });
}

} // namespace qor
