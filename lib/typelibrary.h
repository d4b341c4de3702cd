#pragma once

#include "qorgenlib_export.h"

#include "lib/publisheddefault.h"

#include <QList>
#include <QMetaObject>
#include <QString>
#include <QVariant>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qor {

struct QORGENLIB_EXPORT ParameterInfo
{
    QString name;
    QString type; // "String", "Boolean", "Long", "Integer", "Single", "Double", "Variant",
                  /// "Object", "Date", or an enumeration
    bool byRef = false;
    bool optional = false;
    QVariant defaultValue; // invalid when the optional argument has no default
    QMetaType metaType;
};

struct QORGENLIB_EXPORT MethodInfo
{
    QString name;
    QString returnType; // empty for a method without result
    QList<ParameterInfo> parameters;
    int methodIndex = -1;
    QMetaType returnMetaType; // Void for a method without result
};

struct QORGENLIB_EXPORT PropertyInfo
{
    QString name;
    QString type;
    int propertyIndex = -1; // in the class's meta-object; -1 for a record field
};

struct QORGENLIB_EXPORT EnumMemberInfo
{
    QString name;
    qint32 value = 0;
};

struct QORGENLIB_EXPORT EnumInfo
{
    QString name;
    QList<EnumMemberInfo> members; // in declaration order
};

struct QORGENLIB_EXPORT RecordInfo
{
    QString name;
    QList<PropertyInfo> fields;
};

/// The published type information of an automation class, read from its
/// meta-object: invokable methods with their parameters, properties, and the
/// enumerations and records published beside it. Optional arguments and their
/// defaults come from the class info entry named after the method, a JSON object
/// of parameter name to default (null for an optional argument without one),
/// and from the rows of a table of published defaults.
class QORGENLIB_EXPORT TypeLibrary
{
public:
    TypeLibrary(const QMetaObject *cls, const QList<const QMetaObject *> &enumScopes,
        const QList<const QMetaObject *> &records);
    TypeLibrary(const QMetaObject *cls, std::span<const PublishedDefault> defaults,
        const QList<const QMetaObject *> &enumScopes, const QList<const QMetaObject *> &records);
    TypeLibrary(const TypeLibrary &) = delete;
    TypeLibrary &operator=(const TypeLibrary &) = delete;

    const QList<MethodInfo> &methods() const { return m_methods; }
    const QList<PropertyInfo> &properties() const { return m_properties; }
    const QList<EnumInfo> &enumerations() const { return m_enums; }
    const QList<RecordInfo> &records() const { return m_records; }

    /// Look-ups regardless of case, as an automation call names them.
    const MethodInfo *findMethod(const QString &name) const;
    const PropertyInfo *findProperty(const QString &name) const;
    const EnumInfo *findEnumeration(const QString &name) const;

    /// The method of that name, else the property; both null when neither is
    /// there. Each thread keeps its last look-up, so that a host calling the
    /// same member again and again, as in a loop, finds it without folding the
    /// name each time.
    struct Member
    {
        const MethodInfo *method = nullptr;
        const PropertyInfo *property = nullptr;
    };
    Member findMember(const QString &name) const;
    std::optional<qint32> enumValue(const QString &memberName) const;

    /// The library's name of a Qt type ("QString" -> "String").
    static QString typeName(QMetaType type);
    /// The published name of an enumeration member that C++ spells otherwise.
    static QString publishedMemberName(const QString &enumName, const QString &cppName);

private:
    void readMethods(const QMetaObject *cls, std::span<const PublishedDefault> defaults);
    void readProperties(const QMetaObject *cls);
    void readEnums(const QMetaObject *scope);
    void readRecord(const QMetaObject *record);

    QList<MethodInfo> m_methods;
    QList<PropertyInfo> m_properties;
    QList<EnumInfo> m_enums;
    QList<RecordInfo> m_records;

    /// Case-folded names to their place in m_methods and m_properties: an open
    /// table with room for twice the names, probed from the name's hash, so
    /// that a look-up folds the name once and compares it once.
    class NameIndex
    {
    public:
        void build(const QStringList &names); // the first of equal names wins
        qsizetype find(const QString &name) const; // -1 when not there

    private:
        struct Slot
        {
            quint32 hash = 0;
            qsizetype place = -1; // -1: empty
            std::u16string folded;
        };
        std::vector<Slot> m_slots;
        size_t m_longest = 0; // folded characters of the longest name
    };
    void indexNames();
    NameIndex m_methodIndex;
    NameIndex m_propertyIndex;
    quint64 m_serial; // never the same for two libraries, even one after the other
};

} // namespace qor
