#include "tools/qorgen/session.h"

#include "lib/clsqorgenlib.h"
#include "lib/frame/modgenlib.h"
#include "lib/typelibrary.h"
#include "platform/recordingplatform.h"
#include "runtime/variant.h"
#include "tools/qorgen/jsonreader.h"
#include "tools/qorgen/requesterror.h"
#include "tools/qorgen/valuecodec.h"

#include <QMetaProperty>

#include <new>

namespace qor {

namespace {

const QString variantType = QStringLiteral("Variant");

JsonValue errorObject(const RuntimeError &error)
{
    return JsonValue::object()
        .insert(QStringLiteral("number"), error.number())
        .insert(QStringLiteral("description"), error.description());
}

// A plain value of a record of the platform as JSON (texts, numbers, flags, maps).
JsonValue plainJson(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool: return value.toBool();
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::Short: return value.toLongLong();
    case QMetaType::Double:
    case QMetaType::Float: return value.toDouble();
    case QMetaType::QVariantMap: {
        JsonValue object = JsonValue::object();
        const QVariantMap map = value.toMap();
        for (auto it = map.begin(); it != map.end(); ++it)
            object.insert(it.key(), plainJson(it.value()));
        return object;
    }
    default: return ValueCodec::encode(value);
    }
}

// The fields of a shown record in the order people read them.
JsonValue shownRecord(const QVariantMap &record)
{
    static const QStringList order { QStringLiteral("kind"), QStringLiteral("prompt"),
        QStringLiteral("text"), QStringLiteral("buttons"), QStringLiteral("title"),
        QStringLiteral("caption"), QStringLiteral("type"), QStringLiteral("default"),
        QStringLiteral("maxLength"), QStringLiteral("start"), QStringLiteral("file"),
        QStringLiteral("continuous"), QStringLiteral("answer") };
    JsonValue json = JsonValue::object();
    for (const QString &field : order) {
        if (record.contains(field))
            json.insert(field, plainJson(record.value(field)));
    }
    for (auto it = record.begin(); it != record.end(); ++it) {
        if (!order.contains(it.key()))
            json.insert(it.key(), plainJson(it.value()));
    }
    return json;
}

bool isWithin(const QObject *object, const QObject *ancestor)
{
    for (const QObject *o = object; o; o = o->parent()) {
        if (o == ancestor)
            return true;
    }
    return false;
}

void collectObjects(const QVariant &value, QList<QObject *> &found, int depth = 0)
{
    if (isObject(value)) {
        if (QObject *object = value.value<QObject *>())
            found.append(object);
    } else if (isArray(value) && depth < ValueCodec::maxDepth) {
        for (const QVariant &element : value.toList())
            collectObjects(element, found, depth + 1);
    }
}

// The published properties with their meta-object index, in type library order.
const QList<std::pair<const PropertyInfo *, int>> &publishedProperties()
{
    static const QList<std::pair<const PropertyInfo *, int>> properties = [] {
        QList<std::pair<const PropertyInfo *, int>> list;
        for (const PropertyInfo &property : clsqorGenLib::typeLibrary().properties())
            list.append({ &property,
                clsqorGenLib::staticMetaObject.indexOfProperty(
                    property.name.toLatin1().constData()) });
        return list;
    }();
    return properties;
}

} // namespace

struct Session::Call
{
    const MethodInfo *method = nullptr;
    const PropertyInfo *property = nullptr;
    QVariantList args;
    QList<std::pair<QString, QVariant>> set;
    std::optional<JsonValue> id;
    bool withProperties = true;

    QString name() const { return method ? method->name : property ? property->name : QString(); }
    bool hasResult() const
    {
        return method ? !method->returnType.isEmpty() : property && args.isEmpty();
    }
    bool variantResult() const
    {
        return method ? method->returnType == variantType
                      : property && property->type == variantType;
    }
    bool variantArgument(qsizetype i) const
    {
        if (method)
            return i < method->parameters.size() && method->parameters[i].type == variantType;
        return property && property->type == variantType;
    }
};

Session::Session()
    : m_platform(std::make_shared<RecordingPlatform>())
    , m_keeper(std::make_unique<QObject>())
{
    m_previous = Platform::install(m_platform);
    ModGenLib::reset();
    m_library = std::make_unique<clsqorGenLib>();
}

Session::~Session()
{
    m_library.reset();
    m_keeper.reset();
    Platform::install(m_previous);
}

void Session::setSoundOutput(
    std::function<void(const QString &, bool)> play, std::function<void()> stop)
{
    m_play = std::move(play);
    m_stop = std::move(stop);
    m_platform->setSoundPlayback(m_play, m_stop);
}

Session::Reply Session::handleLine(QByteArrayView utf8)
{
    JsonValue json;
    try {
        json = JsonReader::parse(utf8);
    } catch (const RequestError &error) {
        return unreadable(error);
    }
    return handleJson(json);
}

Session::Reply Session::handleJson(const JsonValue &request)
{
    try {
        return handle(Request::fromJson(request));
    } catch (const RequestError &error) {
        return unreadable(error, Request::idOf(request));
    }
}

Session::Reply Session::unreadable(const RequestError &error, const std::optional<JsonValue> &id)
{
    JsonValue response = JsonValue::object();
    if (id)
        response.insert(QStringLiteral("id"), *id);
    response.insert(QStringLiteral("error"), errorObject(error));
    return { std::move(response), Outcome::Unreadable };
}

Session::Reply Session::handle(const Request &request)
{
    // The values the request makes (host objects) live as long as the request.
    QObject owner;
    Call call;
    try {
        call = prepare(request, &owner);
    } catch (const RequestError &error) {
        return unreadable(error, request.id);
    } catch (const std::bad_alloc &) {
        return unreadable(
            RequestError(7, QStringLiteral("Out of memory: the request is too large")), request.id);
    }
    applyPlatform(request);
    call.id = request.id;
    call.withProperties = request.withProperties;
    Reply reply;
    reply.response = run(call, reply.outcome);
    keepHeldObjects(&owner);
    return reply;
}

Session::Call Session::prepare(const Request &request, QObject *owner) const
{
    const TypeLibrary &library = clsqorGenLib::typeLibrary();
    Call call;
    if (!request.call.isEmpty()) {
        call.method = library.findMethod(request.call);
        call.property = call.method ? nullptr : library.findProperty(request.call);
        if (!call.method && !call.property)
            throw RequestError::unknownName(
                QStringLiteral("the library has no method or property \"%1\"").arg(request.call));
        prepareArguments(call, request, owner);
    }
    for (const auto &[name, json] : request.set) {
        const PropertyInfo *property = library.findProperty(name);
        if (!property)
            throw RequestError::unknownName(
                QStringLiteral("set: the library has no property \"%1\"").arg(name));
        call.set.append(
            { property->name, ValueCodec::decode(json, owner, QStringLiteral("set.") + name) });
    }
    return call;
}

void Session::prepareArguments(Call &call, const Request &request, QObject *owner) const
{
    const qsizetype given = qsizetype(request.args.size());
    for (qsizetype i = 0; i < given; ++i) {
        const QString where = QStringLiteral("args[%1]").arg(i);
        call.args.append(ValueCodec::decodeArgument(request.args[size_t(i)], owner, where));
    }
    if (call.property) {
        if (given > 1)
            throw RequestError::wrongCount(
                QStringLiteral("the property %1 takes one value to assign, %2 given")
                    .arg(call.name())
                    .arg(given));
        if (given == 1 && isMissing(call.args.first()))
            throw RequestError::notOptional(
                QStringLiteral("the value to assign to %1 is left out").arg(call.name()));
        return;
    }
    const QList<ParameterInfo> &params = call.method->parameters;
    if (given > params.size())
        throw RequestError::wrongCount(
            QStringLiteral("%1 takes at most %2 argument%3, %4 given")
                .arg(call.name())
                .arg(params.size())
                .arg(params.size() == 1 ? QString() : QStringLiteral("s"))
                .arg(given));
    for (qsizetype i = 0; i < params.size(); ++i) {
        const bool supplied = i < given && !isMissing(call.args[i]);
        if (!supplied && !params[i].optional)
            throw RequestError::notOptional(QStringLiteral("argument %1 (%2) of %3 is not optional")
                                                .arg(i + 1)
                                                .arg(params[i].name, call.name()));
    }
}

void Session::applyPlatform(const Request &request)
{
    // A fresh object already sees the platform the request asks for.
    request.env.applyTo(*m_platform);
    if (request.fresh)
        startFresh();
    if (const auto sound = request.env.sound()) {
        if (*sound)
            m_platform->setSoundPlayback(m_play, m_stop);
        else
            m_platform->setSoundPlayback(nullptr, nullptr);
    }
    m_platform->clearRecords();
    m_platform->setAnswers(request.answers);
}

void Session::startFresh()
{
    m_library.reset();
    m_keeper = std::make_unique<QObject>();
    ModGenLib::reset();
    m_library = std::make_unique<clsqorGenLib>();
}

JsonValue Session::run(Call &call, Outcome &outcome)
{
    QVariant result;
    JsonValue error;
    try {
        for (const auto &[name, value] : call.set)
            m_library->Invoke(name, QVariantList { value });
        if (call.method || call.property)
            result = m_library->Invoke(call.name(), call.args);
    } catch (const RuntimeError &e) {
        error = errorObject(e);
    } catch (const std::bad_alloc &) {
        error = errorObject(RuntimeError::outOfMemory());
    } catch (const std::exception &e) {
        error = errorObject(RuntimeError(
            51, QStringLiteral("Internal error: %1").arg(QString::fromLocal8Bit(e.what()))));
    } catch (...) {
        error = errorObject(RuntimeError::internalError());
    }
    outcome = error.isNull() ? Outcome::Ran : Outcome::RuntimeError;

    JsonValue response = JsonValue::object();
    if (call.id)
        response.insert(QStringLiteral("id"), *call.id);
    if (error.isNull() && call.hasResult()) {
        response.insert(QStringLiteral("result"), ValueCodec::encode(result));
        if (call.variantResult())
            response.insert(QStringLiteral("resultType"), ValueCodec::typeOf(result));
    }
    JsonValue args = JsonValue::array();
    JsonValue argTypes = JsonValue::array();
    bool anyVariant = false;
    for (qsizetype i = 0; i < call.args.size(); ++i) {
        args.append(ValueCodec::encode(call.args[i]));
        const bool variant = call.variantArgument(i);
        anyVariant = anyVariant || variant;
        argTypes.append(variant ? ValueCodec::typeOf(call.args[i]) : JsonValue());
    }
    response.insert(QStringLiteral("args"), std::move(args));
    if (anyVariant)
        response.insert(QStringLiteral("argTypes"), std::move(argTypes));
    if (call.withProperties)
        response.insert(QStringLiteral("props"), properties());
    response.insert(QStringLiteral("shown"), shown());
    if (!m_platform->actions().isEmpty())
        response.insert(QStringLiteral("actions"), actions());
    if (!error.isNull())
        response.insert(QStringLiteral("error"), std::move(error));
    return response;
}

JsonValue Session::properties() const
{
    JsonValue::Object props;
    props.reserve(size_t(publishedProperties().size()));
    for (const auto &[property, index] : publishedProperties())
        props.emplace_back(property->name,
            ValueCodec::encode(m_library->metaObject()->property(index).read(m_library.get())));
    return props;
}

JsonValue Session::shown() const
{
    JsonValue list = JsonValue::array();
    for (const QVariant &record : m_platform->shown())
        list.append(shownRecord(record.toMap()));
    return list;
}

JsonValue Session::actions() const
{
    JsonValue list = JsonValue::array();
    for (const QVariant &record : m_platform->actions())
        list.append(plainJson(record));
    return list;
}

void Session::keepHeldObjects(QObject *owner)
{
    QList<QObject *> held;
    for (const auto &[property, index] : publishedProperties()) {
        if (property->type == variantType)
            collectObjects(m_library->metaObject()->property(index).read(m_library.get()), held);
    }
    if (QObject *application = modGenLib().application)
        held.append(application);
    for (QObject *object : held) {
        if (isWithin(object, owner))
            object->setParent(m_keeper.get());
    }
}

} // namespace qor
