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
    case 5: return QStringLiteral("Invalid procedure call or argument");
    case 6: return QStringLiteral("Overflow");
    case 7: return QStringLiteral("Out of memory");
    case 9: return QStringLiteral("Subscript out of range");
    case 11: return QStringLiteral("Division by zero");
    case 13: return QStringLiteral("Type mismatch");
    case 52: return QStringLiteral("Bad file name or number");
    case 53: return QStringLiteral("File not found");
    case 75: return QStringLiteral("Path/File access error");
    case 76: return QStringLiteral("Path not found");
    case 91: return QStringLiteral("Object variable or With block variable not set");
    case 94: return QStringLiteral("Invalid use of Null");
    case 424: return QStringLiteral("Object required");
    case 438: return QStringLiteral("Object doesn't support this property or method");
    case 449: return QStringLiteral("Argument not optional");
    case 450: return QStringLiteral("Wrong number of arguments or invalid property assignment");
    default: return QStringLiteral("Application-defined or object-defined error");
    }
}

RuntimeError RuntimeError::invalidProcedureCall()
{
    return RuntimeError(5);
}
RuntimeError RuntimeError::overflow()
{
    return RuntimeError(6);
}
RuntimeError RuntimeError::subscriptOutOfRange()
{
    return RuntimeError(9);
}
RuntimeError RuntimeError::divisionByZero()
{
    return RuntimeError(11);
}
RuntimeError RuntimeError::typeMismatch()
{
    return RuntimeError(13);
}
RuntimeError RuntimeError::invalidUseOfNull()
{
    return RuntimeError(94);
}
RuntimeError RuntimeError::objectRequired()
{
    return RuntimeError(424);
}
RuntimeError RuntimeError::notSupportedByObject()
{
    return RuntimeError(438);
}
RuntimeError RuntimeError::wrongArgumentCount()
{
    return RuntimeError(450);
}

} // namespace qor
