#include "runtime/runtimeerror.h"

namespace qor {

RuntimeError::RuntimeError(int number, const QString &description)
    : m_number(number)
    , m_description(description.isEmpty() ? classicDescription(number) : description)
    , m_what(QStringLiteral("Run-time error %1: %2").arg(number).arg(m_description).toUtf8())
{ }

QString RuntimeError::classicDescription(int number)
{
    switch (number) {
    case InvalidProcedureCall: return QStringLiteral("Invalid procedure call or argument");
    case Overflow: return QStringLiteral("Overflow");
    case OutOfMemory: return QStringLiteral("Out of memory");
    case SubscriptOutOfRange: return QStringLiteral("Subscript out of range");
    case DivisionByZero: return QStringLiteral("Division by zero");
    case TypeMismatch: return QStringLiteral("Type mismatch");
    case InternalError: return QStringLiteral("Internal error");
    case BadFileNameOrNumber: return QStringLiteral("Bad file name or number");
    case FileNotFound: return QStringLiteral("File not found");
    case PermissionDenied: return QStringLiteral("Permission denied");
    case PathFileAccessError: return QStringLiteral("Path/File access error");
    case PathNotFound: return QStringLiteral("Path not found");
    case ObjectNotSet: return QStringLiteral("Object variable or With block variable not set");
    case InvalidUseOfNull: return QStringLiteral("Invalid use of Null");
    case InvalidPropertyValue: return QStringLiteral("Invalid property value");
    case ObjectRequired: return QStringLiteral("Object required");
    case NotSupportedByObject:
        return QStringLiteral("Object doesn't support this property or method");
    case ArgumentNotOptional: return QStringLiteral("Argument not optional");
    case WrongArgumentCount:
        return QStringLiteral("Wrong number of arguments or invalid property assignment");
    default: return QStringLiteral("Application-defined or object-defined error");
    }
}

RuntimeError RuntimeError::invalidProcedureCall()
{
    return RuntimeError(InvalidProcedureCall);
}

RuntimeError RuntimeError::overflow()
{
    return RuntimeError(Overflow);
}

RuntimeError RuntimeError::outOfMemory()
{
    return RuntimeError(OutOfMemory);
}

RuntimeError RuntimeError::subscriptOutOfRange()
{
    return RuntimeError(SubscriptOutOfRange);
}

RuntimeError RuntimeError::divisionByZero()
{
    return RuntimeError(DivisionByZero);
}

RuntimeError RuntimeError::typeMismatch()
{
    return RuntimeError(TypeMismatch);
}

RuntimeError RuntimeError::internalError()
{
    return RuntimeError(InternalError);
}

RuntimeError RuntimeError::fileNotFound()
{
    return RuntimeError(FileNotFound);
}

RuntimeError RuntimeError::permissionDenied()
{
    return RuntimeError(PermissionDenied);
}

RuntimeError RuntimeError::objectNotSet()
{
    return RuntimeError(ObjectNotSet);
}

RuntimeError RuntimeError::invalidUseOfNull()
{
    return RuntimeError(InvalidUseOfNull);
}

RuntimeError RuntimeError::invalidPropertyValue()
{
    return RuntimeError(InvalidPropertyValue);
}

RuntimeError RuntimeError::objectRequired()
{
    return RuntimeError(ObjectRequired);
}

RuntimeError RuntimeError::notSupportedByObject()
{
    return RuntimeError(NotSupportedByObject);
}

RuntimeError RuntimeError::argumentNotOptional()
{
    return RuntimeError(ArgumentNotOptional);
}

RuntimeError RuntimeError::wrongArgumentCount()
{
    return RuntimeError(WrongArgumentCount);
}

RuntimeError RuntimeError::propertyReadOnly(const QString &property)
{
    return RuntimeError(
        PropertyReadOnly, QStringLiteral("'%1' property is read-only").arg(property));
}

} // namespace qor
