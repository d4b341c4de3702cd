#pragma once

#include <QString>
#include <exception>

namespace qor {

// A run-time error as the host sees it: the classic error number and its text.
// Conversion and overflow errors travel to the caller in this form.
class RuntimeError : public std::exception
{
public:
    explicit RuntimeError(int number, const QString &description = QString());

    int number() const noexcept { return m_number; }
    QString description() const { return m_description; }
    const char *what() const noexcept override { return m_what.constData(); }

    static QString classicDescription(int number);

    static RuntimeError invalidProcedureCall(); // 5
    static RuntimeError overflow(); // 6
    static RuntimeError subscriptOutOfRange(); // 9
    static RuntimeError divisionByZero(); // 11
    static RuntimeError typeMismatch(); // 13
    static RuntimeError invalidUseOfNull(); // 94
    static RuntimeError objectRequired(); // 424
    static RuntimeError notSupportedByObject(); // 438
    static RuntimeError wrongArgumentCount(); // 450

private:
    int m_number;
    QString m_description;
    QByteArray m_what;
};

} // namespace qor
