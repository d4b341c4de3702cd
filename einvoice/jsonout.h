#pragma once

#include "einvoice/decimal.h"

#include <QDate>
#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>
#include <optional>

namespace qor::einvoice {

/// Builds one JSON object, leaving out what is empty.
class JsonOut
{
public:
    void text(const char *key, const QString &value);
    void texts(const char *key, const QStringList &value);
    void number(const char *key, int value);
    void flag(const char *key, bool value);
    void date(const char *key, const QDate &value);
    void decimal(const char *key, const Decimal &value);
    void decimal(const char *key, const std::optional<Decimal> &value);
    void object(const char *key, const QJsonObject &value);
    void array(const char *key, const QJsonArray &value);

    const QJsonObject &json() const { return m_object; }

private:
    QJsonObject m_object;
};

} // namespace qor::einvoice
