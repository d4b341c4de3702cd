#include "host/hostobject.h"

#include "platform/clock.h"
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

char16_t asciiLower(char16_t c)
{
    return c >= u'A' && c <= u'Z' ? char16_t(c + (u'a' - u'A')) : c;
}

// Names match with the ASCII letters alone folded, as names have always matched.
bool sameIgnoringAsciiCase(const QString &name, const char *declared)
{
    const QLatin1StringView other(declared);
    if (name.size() != other.size())
        return false;
    for (qsizetype i = 0; i < name.size(); ++i) {
        if (asciiLower(name[i].unicode()) != asciiLower(char16_t(uchar(other[i].toLatin1()))))
            return false;
    }
    return true;
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

QStringList HostObject::declaredNames() const
{
    QStringList names;
    const QMetaObject *meta = metaObject();
    for (int i = firstOwnProperty(); i < meta->propertyCount(); ++i)
        names.append(QString::fromLatin1(meta->property(i).name()));
    return names;
}

QStringList HostObject::propertyNames() const
{
    return declaredNames() + bagNames();
}

QString HostObject::resolveName(const QString &name) const
{
    const QMetaObject *meta = metaObject();
    const int exact = exactIndex(name);
    if (exact >= firstOwnProperty())
        return name;
    // QObject's own objectName is not a property of the control.
    if (exact >= 0)
        return QString();
    const QString inBag = bagName(name);
    if (!inBag.isEmpty())
        return inBag;
    for (int i = firstOwnProperty(); i < meta->propertyCount(); ++i) {
        if (sameIgnoringAsciiCase(name, meta->property(i).name()))
            return QString::fromLatin1(meta->property(i).name());
    }
    return QString();
}

int HostObject::exactIndex(const QString &name) const
{
    const QByteArray latin1 = name.toLatin1();
    if (QString::fromLatin1(latin1) != name)
        return -1;
    return metaObject()->indexOfProperty(latin1.constData());
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
    if (const QVariant *own = bagValue(resolved))
        return *own;
    const QVariant held = property(resolved.toLatin1().constData());
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
    if (resolved.isEmpty() && exactIndex(name) >= 0) {
        QObject::setProperty(name.toLatin1().constData(), value);
        return;
    }
    if (resolved.isEmpty() || !isDeclared(resolved)) {
        bagAssign(resolved.isEmpty() ? name : resolved, value);
        return;
    }
    qor::setProperty(
        this, resolved.toLatin1().constData(), value, Clock::current().regionalSettings());
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
