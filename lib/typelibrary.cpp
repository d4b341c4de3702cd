#include "lib/typelibrary.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaClassInfo>
#include <QMetaEnum>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QVarLengthArray>

#include <atomic>
#include <cstring>

namespace qor {

namespace {

// The optional arguments of a method, parameter name to default (null for
// one without default): the class info entry named after the method, and the
// rows of the table of published defaults.
QJsonObject optionalArguments(
    const QMetaObject *cls, std::span<const PublishedDefault> defaults, const QByteArray &method)
{
    const int index = cls->indexOfClassInfo(method.constData());
    QJsonObject optional = index < 0
        ? QJsonObject()
        : QJsonDocument::fromJson(cls->classInfo(index).value()).object();
    for (const PublishedDefault &entry : defaults) {
        if (entry.method == std::string_view(method.constData(), size_t(method.size())))
            optional.insert(
                QString::fromLatin1(entry.parameter.data(), qsizetype(entry.parameter.size())),
                entry.value.toJson());
    }
    return optional;
}

std::atomic<quint64> nextSerial { 1 };

// The last member a thread looked up, by the exact name it gave.
struct LastMember
{
    quint64 serial = 0;
    QString name;
    TypeLibrary::Member member;
};
thread_local LastMember lastMember;

} // namespace

TypeLibrary::TypeLibrary(const QMetaObject *cls, const QList<const QMetaObject *> &enumScopes,
    const QList<const QMetaObject *> &records)
    : TypeLibrary(cls, {}, enumScopes, records)
{ }

TypeLibrary::TypeLibrary(const QMetaObject *cls, std::span<const PublishedDefault> defaults,
    const QList<const QMetaObject *> &enumScopes, const QList<const QMetaObject *> &records)
    : m_serial(nextSerial.fetch_add(1))
{
    readMethods(cls, defaults);
    readProperties(cls);
    for (const QMetaObject *scope : enumScopes)
        readEnums(scope);
    for (const QMetaObject *record : records)
        readRecord(record);
    indexNames();
}

QString TypeLibrary::typeName(QMetaType type)
{
    switch (type.id()) {
    case QMetaType::UnknownType:
    case QMetaType::Void: return QString();
    case QMetaType::QString: return QStringLiteral("String");
    case QMetaType::Bool: return QStringLiteral("Boolean");
    case QMetaType::Int: return QStringLiteral("Long");
    case QMetaType::Short: return QStringLiteral("Integer");
    case QMetaType::UChar: return QStringLiteral("Byte");
    case QMetaType::Float: return QStringLiteral("Single");
    case QMetaType::Double: return QStringLiteral("Double");
    case QMetaType::LongLong: return QStringLiteral("Currency");
    case QMetaType::QVariant: return QStringLiteral("Variant");
    case QMetaType::QObjectStar: return QStringLiteral("Object");
    case QMetaType::QDateTime:
    case QMetaType::QDate: return QStringLiteral("Date");
    case QMetaType::QVariantList: return QStringLiteral("Variant()");
    case QMetaType::QStringList: return QStringLiteral("String()");
    default: break;
    }
    if (type.flags() & QMetaType::PointerToQObject)
        return QStringLiteral("Object");
    QString name = QString::fromLatin1(type.name());
    const int scope = name.lastIndexOf(QLatin1String("::"));
    return scope >= 0 ? name.mid(scope + 2) : name;
}

QString TypeLibrary::publishedMemberName(const QString &enumName, const QString &cppName)
{
    if (enumName == QLatin1String("OstSymbolType") && cppName == QLatin1String("vbSymbolEuro"))
        return QStringLiteral("vbSymbol\u20AC");
    if (enumName == QLatin1String("OstBetalingswijze")
        && cppName.startsWith(QLatin1String("btDomiciliering"))) {
        QString published = cppName;
        return published.replace(
            QLatin1String("btDomiciliering"), QStringLiteral("btDomicili\u00EBring"));
    }
    return cppName;
}

void TypeLibrary::readMethods(const QMetaObject *cls, std::span<const PublishedDefault> defaults)
{
    for (int i = cls->methodOffset(); i < cls->methodCount(); ++i) {
        const QMetaMethod method = cls->method(i);
        // Overloads that leave out defaulted arguments are generated copies.
        if (method.methodType() != QMetaMethod::Method
            || (method.attributes() & QMetaMethod::Cloned))
            continue;
        MethodInfo info;
        info.name = QString::fromLatin1(method.name());
        info.returnType = typeName(method.returnMetaType());
        info.returnMetaType = method.returnMetaType();
        info.methodIndex = i;
        const QJsonObject optional = optionalArguments(cls, defaults, method.name());
        const QList<QByteArray> names = method.parameterNames();
        const QList<QByteArray> types = method.parameterTypes();
        for (int p = 0; p < method.parameterCount(); ++p) {
            ParameterInfo param;
            param.name = QString::fromLatin1(names.value(p));
            param.metaType = method.parameterMetaType(p);
            // Arguments written back are declared as references, which have no meta type of their
            // own.
            if (!param.metaType.isValid()) {
                QByteArray plain = types.value(p);
                plain.chop(plain.endsWith('&') ? 1 : 0);
                param.metaType = QMetaType::fromName(plain);
            }
            param.type = typeName(param.metaType);
            param.byRef = types.value(p).endsWith('&');
            param.optional = optional.contains(param.name);
            if (param.optional)
                param.defaultValue = publishedArgument(optional.value(param.name), param.metaType);
            info.parameters.append(param);
        }
        m_methods.append(info);
    }
}

void TypeLibrary::readProperties(const QMetaObject *cls)
{
    for (int i = cls->propertyOffset(); i < cls->propertyCount(); ++i) {
        const QMetaProperty property = cls->property(i);
        m_properties.append(
            { QString::fromLatin1(property.name()), typeName(property.metaType()), i });
    }
}

void TypeLibrary::readEnums(const QMetaObject *scope)
{
    for (int i = scope->enumeratorOffset(); i < scope->enumeratorCount(); ++i) {
        const QMetaEnum meta = scope->enumerator(i);
        EnumInfo info;
        info.name = QString::fromLatin1(meta.enumName());
        for (int k = 0; k < meta.keyCount(); ++k)
            info.members.append({ publishedMemberName(info.name, QString::fromLatin1(meta.key(k))),
                meta.value(k) });
        m_enums.append(info);
    }
}

void TypeLibrary::readRecord(const QMetaObject *record)
{
    RecordInfo info;
    info.name = QString::fromLatin1(record->className());
    info.name = info.name.mid(info.name.lastIndexOf(QLatin1Char(':')) + 1);
    for (int i = record->propertyOffset(); i < record->propertyCount(); ++i)
        info.fields.append({ QString::fromLatin1(record->property(i).name()),
            typeName(record->property(i).metaType()) });
    m_records.append(info);
}

namespace {

// Names are found regardless of case: A-Z fold at once, other characters
// through Unicode case folding.
char16_t folded(char16_t c)
{
    if (c < 0x80)
        return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c;
    return QChar(c).toCaseFolded().unicode();
}

// FNV-1a over folded characters.
constexpr quint32 fnvBasis = 2166136261u;
constexpr quint32 fnvPrime = 16777619u;

quint32 hashOf(std::u16string_view folded)
{
    quint32 hash = fnvBasis;
    for (char16_t c : folded)
        hash = (hash ^ c) * fnvPrime;
    return hash;
}

} // namespace

void TypeLibrary::NameIndex::build(const QStringList &names)
{
    size_t size = 16;
    while (size < 2 * size_t(names.size()))
        size *= 2;
    m_slots.assign(size, Slot());
    m_longest = 0;
    for (qsizetype place = 0; place < names.size(); ++place) {
        std::u16string name;
        for (QChar c : names[place])
            name.push_back(folded(c.unicode()));
        m_longest = std::max(m_longest, name.size());
        const quint32 hash = hashOf(name);
        for (size_t i = hash & (size - 1);; i = (i + 1) & (size - 1)) {
            Slot &slot = m_slots[i];
            if (slot.place >= 0 && slot.hash == hash && slot.folded == name)
                break; // the first of two names that differ only in case wins
            if (slot.place < 0) {
                slot = { hash, place, std::move(name) };
                break;
            }
        }
    }
}

qsizetype TypeLibrary::NameIndex::find(const QString &name) const
{
    if (m_slots.empty())
        return -1;
    if (size_t(name.size()) > m_longest)
        return -1;
    QVarLengthArray<char16_t, 64> buffer(name.size());
    quint32 hash = fnvBasis;
    for (qsizetype i = 0; i < name.size(); ++i) {
        buffer[i] = folded(name[i].unicode());
        hash = (hash ^ buffer[i]) * fnvPrime;
    }
    const std::u16string_view folded(buffer.data(), size_t(buffer.size()));
    const size_t mask = m_slots.size() - 1;
    for (size_t i = hash & mask;; i = (i + 1) & mask) {
        const Slot &slot = m_slots[i];
        if (slot.place < 0)
            return -1;
        if (slot.hash == hash && slot.folded.size() == folded.size()
            && std::memcmp(slot.folded.data(), folded.data(), 2 * folded.size()) == 0)
            return slot.place;
    }
}

void TypeLibrary::indexNames()
{
    QStringList methods;
    for (const MethodInfo &method : m_methods)
        methods.append(method.name);
    m_methodIndex.build(methods);
    QStringList properties;
    for (const PropertyInfo &property : m_properties)
        properties.append(property.name);
    m_propertyIndex.build(properties);
}

const MethodInfo *TypeLibrary::findMethod(const QString &name) const
{
    const qsizetype i = m_methodIndex.find(name);
    return i < 0 ? nullptr : &m_methods[i];
}

const PropertyInfo *TypeLibrary::findProperty(const QString &name) const
{
    const qsizetype i = m_propertyIndex.find(name);
    return i < 0 ? nullptr : &m_properties[i];
}

TypeLibrary::Member TypeLibrary::findMember(const QString &name) const
{
    LastMember &last = lastMember;
    if (last.serial == m_serial && last.name == name)
        return last.member;
    Member member { findMethod(name), nullptr };
    if (!member.method)
        member.property = findProperty(name);
    last = { m_serial, name, member };
    return member;
}

const EnumInfo *TypeLibrary::findEnumeration(const QString &name) const
{
    for (const EnumInfo &info : m_enums) {
        if (info.name.compare(name, Qt::CaseInsensitive) == 0)
            return &info;
    }
    return nullptr;
}

std::optional<qint32> TypeLibrary::enumValue(const QString &memberName) const
{
    for (const EnumInfo &info : m_enums) {
        for (const EnumMemberInfo &member : info.members) {
            if (member.name.compare(memberName, Qt::CaseInsensitive) == 0)
                return member.value;
        }
    }
    return std::nullopt;
}

} // namespace qor
