#pragma once

#include "einvoice/decimal.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <functional>
#include <optional>

namespace qor::einvoice {

/// Takes the members of one JSON object into model fields, reporting what it
/// cannot take with the member's path. Members it was not asked for are
/// reported as unknown by finish().
class JsonFields
{
public:
    JsonFields(const QJsonObject &object, QString path, QStringList &errors);

    void text(const char *key, QString &field);
    void texts(const char *key, QStringList &field);
    void number(const char *key, int &field);
    void flag(const char *key, bool &field);
    void date(const char *key, QDate &field);
    void decimal(const char *key, Decimal &field);
    void decimal(const char *key, std::optional<Decimal> &field);
    /// Reads a nested object with the given function.
    void object(const char *key, const std::function<void(JsonFields &)> &read);
    /// Reads each object of an array with the given function; the index
    /// is passed for the paths.
    void objects(const char *key, const std::function<void(JsonFields &)> &read);
    /// Reports every member not asked for.
    void finish();

    /// The path of a member of this object ("seller.address.cityName").
    QString pathOf(const QString &key) const;
    void error(const QString &key, const QString &message);

private:
    std::optional<QJsonValue> take(const char *key);

    QJsonObject m_object;
    QString m_path;
    QStringList &m_errors;
    QStringList m_known;
};

} // namespace qor::einvoice
