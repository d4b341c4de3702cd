#include "einvoice/jsonfields.h"

#include "einvoice/isodate.h"

namespace qor::einvoice {

namespace {

QString typeName(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Null: return QStringLiteral("null");
    case QJsonValue::Bool: return QStringLiteral("a boolean");
    case QJsonValue::Double: return QStringLiteral("a number");
    case QJsonValue::String: return QStringLiteral("a string");
    case QJsonValue::Array: return QStringLiteral("an array");
    case QJsonValue::Object: return QStringLiteral("an object");
    default: return QStringLiteral("undefined");
    }
}

} // namespace

JsonFields::JsonFields(const QJsonObject &object, QString path, QStringList &errors)
    : m_object(object)
    , m_path(std::move(path))
    , m_errors(errors)
{ }

QString JsonFields::pathOf(const QString &key) const
{
    return m_path.isEmpty() ? key : m_path + QLatin1Char('.') + key;
}

void JsonFields::error(const QString &key, const QString &message)
{
    m_errors.append(pathOf(key) + QStringLiteral(": ") + message);
}

std::optional<QJsonValue> JsonFields::take(const char *key)
{
    const QString name = QLatin1String(key);
    m_known.append(name);
    const auto found = m_object.constFind(name);
    if (found == m_object.constEnd() || found->isNull())
        return std::nullopt;
    return *found;
}

void JsonFields::text(const char *key, QString &field)
{
    const auto value = take(key);
    if (!value)
        return;
    if (value->isString())
        field = value->toString();
    else
        error(QLatin1String(key), QStringLiteral("a string is wanted, not ") + typeName(*value));
}

void JsonFields::texts(const char *key, QStringList &field)
{
    const auto value = take(key);
    if (!value)
        return;
    if (!value->isArray()) {
        error(QLatin1String(key),
            QStringLiteral("an array of strings is wanted, not ") + typeName(*value));
        return;
    }
    const QJsonArray array = value->toArray();
    for (qsizetype i = 0; i < array.size(); ++i) {
        if (array[i].isString())
            field.append(array[i].toString());
        else
            error(QStringLiteral("%1[%2]").arg(QLatin1String(key)).arg(i),
                QStringLiteral("a string is wanted, not ") + typeName(array[i]));
    }
}

void JsonFields::number(const char *key, int &field)
{
    const auto value = take(key);
    if (!value)
        return;
    const double number = value->toDouble(-1);
    if (value->isDouble() && number >= 0 && number <= 999 && number == int(number))
        field = int(number);
    else
        error(QLatin1String(key), QStringLiteral("a whole number from 0 to 999 is wanted"));
}

void JsonFields::flag(const char *key, bool &field)
{
    const auto value = take(key);
    if (!value)
        return;
    if (value->isBool())
        field = value->toBool();
    else
        error(
            QLatin1String(key), QStringLiteral("true or false is wanted, not ") + typeName(*value));
}

void JsonFields::date(const char *key, QDate &field)
{
    const auto value = take(key);
    if (!value)
        return;
    const QString text = value->toString();
    const QDate date = parseIsoDate(text);
    if (value->isString() && date.isValid())
        field = date;
    else
        error(QLatin1String(key),
            QStringLiteral("a date that exists is wanted as YYYY-MM-DD, not ")
                + (value->isString() ? u'"' + text.left(40) + u'"' : typeName(*value)));
}

void JsonFields::decimal(const char *key, Decimal &field)
{
    std::optional<Decimal> read;
    decimal(key, read);
    if (read)
        field = *read;
}

void JsonFields::decimal(const char *key, std::optional<Decimal> &field)
{
    const auto value = take(key);
    if (!value)
        return;
    QString text;
    if (value->isString()) {
        text = value->toString();
    } else if (value->isDouble()) {
        // A JSON number arrives as a double: its first 15 significant digits
        // are the number that was written.
        text = QString::number(value->toDouble(), 'g', 15);
        if (text.contains(u'e'))
            text = QString::number(value->toDouble(), 'f', Decimal::maxScale);
    } else {
        error(QLatin1String(key),
            QStringLiteral("a decimal number is wanted, not ") + typeName(*value));
        return;
    }
    const QString problem = Decimal::parseError(text);
    if (!problem.isEmpty()) {
        error(QLatin1String(key), problem);
        return;
    }
    Decimal parsed = Decimal::parse(text);
    field = value->isDouble() ? parsed.normalized() : parsed;
}

void JsonFields::object(const char *key, const std::function<void(JsonFields &)> &read)
{
    const auto value = take(key);
    if (!value)
        return;
    if (!value->isObject()) {
        error(QLatin1String(key), QStringLiteral("an object is wanted, not ") + typeName(*value));
        return;
    }
    JsonFields fields(value->toObject(), pathOf(QLatin1String(key)), m_errors);
    read(fields);
    fields.finish();
}

void JsonFields::objects(const char *key, const std::function<void(JsonFields &)> &read)
{
    const auto value = take(key);
    if (!value)
        return;
    if (!value->isArray()) {
        error(QLatin1String(key),
            QStringLiteral("an array of objects is wanted, not ") + typeName(*value));
        return;
    }
    const QJsonArray array = value->toArray();
    for (qsizetype i = 0; i < array.size(); ++i) {
        const QString path = pathOf(QStringLiteral("%1[%2]").arg(QLatin1String(key)).arg(i));
        if (!array[i].isObject()) {
            m_errors.append(
                path + QStringLiteral(": an object is wanted, not ") + typeName(array[i]));
            continue;
        }
        JsonFields fields(array[i].toObject(), path, m_errors);
        read(fields);
        fields.finish();
    }
}

void JsonFields::finish()
{
    for (auto it = m_object.constBegin(); it != m_object.constEnd(); ++it) {
        if (!m_known.contains(it.key()))
            error(it.key(), QStringLiteral("unknown member"));
    }
}

} // namespace qor::einvoice
