#pragma once

#include <QString>
#include <QVariant>

namespace qor {

// The Variant subtypes a host can tell apart.
enum class VarType {
    Empty,
    Null,
    Integer, // 16-bit signed
    Long, // 32-bit signed
    Single,
    Double,
    Currency,
    Date,
    String,
    Object,
    Boolean,
    Byte,
    Array,
};

// Empty is an invalid QVariant; Null a QVariant holding nullptr.
QVariant emptyVariant();
QVariant nullVariant();
bool isEmpty(const QVariant &v);
bool isNull(const QVariant &v);
bool isObject(const QVariant &v);
bool isArray(const QVariant &v);

VarType varType(const QVariant &v);
// "Empty", "Null", "Integer", "Long", "Single", "Double", "Currency", "Date",
// "String", "Object", "Boolean", "Byte", "Array".
QString varTypeName(VarType t);
QString varTypeName(const QVariant &v);

// Typed constructors that keep the subtype a host expects.
QVariant integerVariant(qint16 v);
QVariant longVariant(qint32 v);
QVariant doubleVariant(double v);

} // namespace qor

namespace qor {

// The value an automation call passes for an optional argument left out.
struct MissingArgument
{
    bool operator==(const MissingArgument &) const { return true; }
};

QVariant missingVariant();
bool isMissing(const QVariant &v);

} // namespace qor

Q_DECLARE_METATYPE(qor::MissingArgument)
