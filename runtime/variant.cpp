#include "runtime/variant.h"

#include <QDateTime>
#include <QObject>

namespace qor {

QVariant emptyVariant()
{
    return QVariant();
}
QVariant nullVariant()
{
    return QVariant::fromValue(nullptr);
}
bool isEmpty(const QVariant &v)
{
    return !v.isValid();
}
bool isNull(const QVariant &v)
{
    return v.isValid() && v.typeId() == QMetaType::Nullptr;
}
bool isObject(const QVariant &v)
{
    return varType(v) == VarType::Object;
}
bool isArray(const QVariant &v)
{
    return varType(v) == VarType::Array;
}

VarType varType(const QVariant &v)
{
    if (!v.isValid())
        return VarType::Empty;
    switch (v.typeId()) {
    case QMetaType::Nullptr: return VarType::Null;
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::SChar: return VarType::Integer;
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long: return VarType::Long;
    case QMetaType::Float: return VarType::Single;
    case QMetaType::Double: return VarType::Double;
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::ULong: return VarType::Currency;
    case QMetaType::QDate:
    case QMetaType::QDateTime:
    case QMetaType::QTime: return VarType::Date;
    case QMetaType::QString:
    case QMetaType::QChar:
    case QMetaType::QByteArray: return VarType::String;
    case QMetaType::Bool: return VarType::Boolean;
    case QMetaType::UChar:
    case QMetaType::Char: return VarType::Byte;
    case QMetaType::QVariantList:
    case QMetaType::QStringList: return VarType::Array;
    case QMetaType::QObjectStar: return VarType::Object;
    default: break;
    }
    if (v.metaType().flags() & QMetaType::PointerToQObject)
        return VarType::Object;
    if (v.metaType().flags() & QMetaType::IsEnumeration)
        return VarType::Long;
    return VarType::String;
}

QString varTypeName(VarType t)
{
    switch (t) {
    case VarType::Empty: return QStringLiteral("Empty");
    case VarType::Null: return QStringLiteral("Null");
    case VarType::Integer: return QStringLiteral("Integer");
    case VarType::Long: return QStringLiteral("Long");
    case VarType::Single: return QStringLiteral("Single");
    case VarType::Double: return QStringLiteral("Double");
    case VarType::Currency: return QStringLiteral("Currency");
    case VarType::Date: return QStringLiteral("Date");
    case VarType::String: return QStringLiteral("String");
    case VarType::Object: return QStringLiteral("Object");
    case VarType::Boolean: return QStringLiteral("Boolean");
    case VarType::Byte: return QStringLiteral("Byte");
    case VarType::Array: return QStringLiteral("Array");
    }
    return QStringLiteral("Empty");
}

QString varTypeName(const QVariant &v)
{
    return varTypeName(varType(v));
}

QVariant integerVariant(qint16 v)
{
    return QVariant::fromValue<short>(v);
}
QVariant longVariant(qint32 v)
{
    return QVariant::fromValue<int>(v);
}
QVariant doubleVariant(double v)
{
    return QVariant::fromValue<double>(v);
}

} // namespace qor

namespace qor {

QVariant missingVariant()
{
    return QVariant::fromValue(MissingArgument());
}
bool isMissing(const QVariant &v)
{
    return v.metaType() == QMetaType::fromType<MissingArgument>();
}

} // namespace qor
