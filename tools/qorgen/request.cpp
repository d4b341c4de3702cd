#include "tools/qorgen/request.h"

#include "tools/qorgen/requesterror.h"

namespace qor {

namespace {

RequestError wrongField(const QString &field, const QString &wanted, const JsonValue &got)
{
    return RequestError::unreadable(
        QStringLiteral("\"%1\" must be %2, not %3").arg(field, wanted, got.kindName()));
}

// A plain JSON value as a QVariant: numbers, strings and maps of them.
QVariant plain(const JsonValue &json)
{
    switch (json.kind()) {
    case JsonValue::Kind::Boolean: return json.toBool();
    case JsonValue::Kind::Integer: return json.toInteger();
    case JsonValue::Kind::Single:
    case JsonValue::Kind::Double: return json.toDouble();
    case JsonValue::Kind::String: return json.toString();
    default: return QVariant();
    }
}

} // namespace

Request Request::fromJson(const JsonValue &json)
{
    if (!json.isObject())
        throw RequestError::unreadable(
            QStringLiteral("a request is a JSON object, not %1").arg(json.kindName()));
    Request request;
    for (const auto &[field, value] : json.toObject()) {
        if (field == QLatin1String("call")) {
            if (!value.isString() || value.toString().isEmpty())
                throw wrongField(field, QStringLiteral("a method or property name"), value);
            request.call = value.toString();
        } else if (field == QLatin1String("object")) {
            if (!value.isString() || value.toString().isEmpty())
                throw wrongField(field, QStringLiteral("a class name"), value);
            request.object = value.toString();
        } else if (field == QLatin1String("args")) {
            if (!value.isArray())
                throw wrongField(field, QStringLiteral("an array"), value);
            request.args = value.toArray();
        } else if (field == QLatin1String("set")) {
            if (!value.isObject())
                throw wrongField(
                    field, QStringLiteral("an object of property names and values"), value);
            request.set = value.toObject();
        } else if (field == QLatin1String("env")) {
            request.env = Environment::fromJson(value);
        } else if (field == QLatin1String("answers")) {
            if (!value.isArray())
                throw wrongField(field, QStringLiteral("an array"), value);
            for (const JsonValue &answer : value.toArray())
                request.answers.append(Request::answer(answer, int(request.answers.size())));
        } else if (field == QLatin1String("new")) {
            if (!value.isBool())
                throw wrongField(field, QStringLiteral("true or false"), value);
            request.fresh = value.toBool();
        } else if (field == QLatin1String("id")) {
            request.id = value;
        } else if (field == QLatin1String("props")) {
            if (!value.isBool())
                throw wrongField(field, QStringLiteral("true or false"), value);
            request.withProperties = value.toBool();
        } else {
            throw RequestError::unreadable(
                QStringLiteral("unknown request field \"%1\" (known: "
                               "call, object, args, set, env, answers, new, "
                               "id, props)")
                    .arg(field));
        }
    }
    if (request.call.isEmpty() && !request.args.empty())
        throw RequestError::unreadable(QStringLiteral("\"args\" without \"call\""));
    return request;
}

std::optional<JsonValue> Request::idOf(const JsonValue &json)
{
    if (const JsonValue *id = json.isObject() ? json.member(u"id") : nullptr)
        return *id;
    return std::nullopt;
}

QVariant Request::answer(const JsonValue &json, int index)
{
    if (json.isNumber() || json.isString())
        return plain(json);
    const JsonValue *scan = json.member(u"scan");
    const JsonValue *keys = json.member(u"keys");
    const JsonValue *cancel = json.member(u"cancel");
    if (json.size() == 1 && scan && scan->isString())
        return QVariantMap { { QStringLiteral("scan"), scan->toString() } };
    if (json.size() == 1 && keys && keys->isString())
        return QVariantMap { { QStringLiteral("keys"), keys->toString() } };
    if (json.size() == 1 && cancel && cancel->toBool())
        return QVariantMap { { QStringLiteral("cancel"), true } };
    throw RequestError::unreadable(
        QStringLiteral("answers[%1]: a number, a string, {\"scan\": text}, "
                       "{\"keys\": text} or {\"cancel\": true} is wanted")
            .arg(index));
}

} // namespace qor
