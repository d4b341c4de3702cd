#pragma once

#include "qorgenlib_export.h"

#include <QString>
#include <exception>

namespace qor {

/// A run-time error as the host sees it: the classic error number and its text.
/// Conversion and overflow errors travel to the caller in this form.
class QORGENLIB_EXPORT RuntimeError : public std::exception
{
public:
    /// The classic numbers the library raises.
    enum Number : int {
        InvalidProcedureCall = 5,
        Overflow = 6,
        OutOfMemory = 7,
        SubscriptOutOfRange = 9,
        DivisionByZero = 11,
        TypeMismatch = 13,
        InternalError = 51,
        BadFileNameOrNumber = 52,
        FileNotFound = 53,
        PermissionDenied = 70,
        PathFileAccessError = 75,
        PathNotFound = 76,
        ObjectNotSet = 91,
        InvalidUseOfNull = 94,
        InvalidPropertyValue = 380,
        PropertyReadOnly = 383,
        ObjectRequired = 424,
        NotSupportedByObject = 438,
        ArgumentNotOptional = 449,
        WrongArgumentCount = 450,
    };

    explicit RuntimeError(int number, const QString &description = QString());

    int number() const noexcept { return m_number; }
    QString description() const { return m_description; }
    const char *what() const noexcept override { return m_what.constData(); }

    static QString classicDescription(int number);

    static RuntimeError invalidProcedureCall(); // 5
    static RuntimeError overflow(); // 6
    static RuntimeError outOfMemory(); // 7
    static RuntimeError subscriptOutOfRange(); // 9
    static RuntimeError divisionByZero(); // 11
    static RuntimeError typeMismatch(); // 13
    static RuntimeError internalError(); // 51
    static RuntimeError fileNotFound(); // 53
    static RuntimeError permissionDenied(); // 70
    static RuntimeError objectNotSet(); // 91
    static RuntimeError invalidUseOfNull(); // 94
    static RuntimeError invalidPropertyValue(); // 380
    static RuntimeError propertyReadOnly(const QString &property); // 383
    static RuntimeError objectRequired(); // 424
    static RuntimeError notSupportedByObject(); // 438
    static RuntimeError argumentNotOptional(); // 449
    static RuntimeError wrongArgumentCount(); // 450

private:
    int m_number;
    QString m_description;
    QByteArray m_what;
};

} // namespace qor
