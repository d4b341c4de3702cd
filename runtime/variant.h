#pragma once

#include "qorgenlib_export.h"

#include <QString>
#include <QVariant>

namespace qor {

/// The Variant subtypes a host can tell apart.
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

/// Empty is an invalid QVariant; Null a QVariant holding nullptr.
QORGENLIB_EXPORT QVariant emptyVariant();
QORGENLIB_EXPORT QVariant nullVariant();
QORGENLIB_EXPORT bool isEmpty(const QVariant &v);
QORGENLIB_EXPORT bool isNull(const QVariant &v);
QORGENLIB_EXPORT bool isObject(const QVariant &v);
QORGENLIB_EXPORT bool isArray(const QVariant &v);

QORGENLIB_EXPORT VarType varType(const QVariant &v);
/// "Empty", "Null", "Integer", "Long", "Single", "Double", "Currency", "Date",
/// "String", "Object", "Boolean", "Byte", "Array".
QORGENLIB_EXPORT QString varTypeName(VarType t);
QORGENLIB_EXPORT QString varTypeName(const QVariant &v);

/// Typed constructors that keep the subtype a host expects.
QORGENLIB_EXPORT QVariant integerVariant(qint16 v);
QORGENLIB_EXPORT QVariant longVariant(qint32 v);
QORGENLIB_EXPORT QVariant doubleVariant(double v);

} // namespace qor

namespace qor {

/// The value an automation call passes for an optional argument left out.
struct QORGENLIB_EXPORT MissingArgument
{
    bool operator==(const MissingArgument &) const { return true; }
};

QORGENLIB_EXPORT QVariant missingVariant();
QORGENLIB_EXPORT bool isMissing(const QVariant &v);

} // namespace qor

Q_DECLARE_METATYPE(qor::MissingArgument)
