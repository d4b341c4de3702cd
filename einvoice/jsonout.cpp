#include "einvoice/jsonout.h"

namespace qor::einvoice {

void JsonOut::text(const char *key, const QString &value)
{
    if (!value.isEmpty())
        m_object.insert(QLatin1String(key), value);
}

void JsonOut::texts(const char *key, const QStringList &value)
{
    if (!value.isEmpty())
        m_object.insert(QLatin1String(key), QJsonArray::fromStringList(value));
}

void JsonOut::number(const char *key, int value)
{
    if (value != 0)
        m_object.insert(QLatin1String(key), value);
}

void JsonOut::flag(const char *key, bool value)
{
    m_object.insert(QLatin1String(key), value);
}

void JsonOut::date(const char *key, const QDate &value)
{
    if (value.isValid())
        m_object.insert(QLatin1String(key), value.toString(Qt::ISODate));
}

void JsonOut::decimal(const char *key, const Decimal &value)
{
    m_object.insert(QLatin1String(key), value.toString());
}

void JsonOut::decimal(const char *key, const std::optional<Decimal> &value)
{
    if (value)
        decimal(key, *value);
}

void JsonOut::object(const char *key, const QJsonObject &value)
{
    if (!value.isEmpty())
        m_object.insert(QLatin1String(key), value);
}

void JsonOut::array(const char *key, const QJsonArray &value)
{
    if (!value.isEmpty())
        m_object.insert(QLatin1String(key), value);
}

} // namespace qor::einvoice
