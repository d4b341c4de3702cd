#include "tools/qorgen/session.h"

#include "lib/clsqorgenlib.h"
#include "lib/frame/modgenlib.h"
#include "lib/latebinding.h"
#include "lib/typelibrary.h"
#include "platform/recordingplatform.h"
#include "runtime/variant.h"
#include "tools/qorgen/automationclass.h"
#include "tools/qorgen/jsonbuilder.h"
#include "tools/qorgen/jsonreader.h"
#include "tools/qorgen/recordwriter.h"
#include "tools/qorgen/requesterror.h"
#include "tools/qorgen/valuecodec.h"

#include <QMetaProperty>

#include <algorithm>
#include <new>

namespace qor {

namespace {

const QString variantType = QStringLiteral("Variant");

void writeError(JsonSink &out, const RuntimeError &error)
{
    out.beginObject();
    out.key(u"number");
    out.integer(error.number());
    out.key(u"description");
    out.string(error.description());
    out.endObject();
}

// A response of the Reply kind, built by writing into a JsonValue.
template <typename Write> Session::Reply replyOf(Write write)
{
    JsonBuilder json;
    Session::Reply reply;
    reply.outcome = write(json);
    reply.response = json.take();
    return reply;
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

} // namespace

struct Session::Call
{
    const AutomationClass *cls = &AutomationClass::library();
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
    m_objects.clear();
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
    return replyOf([&](JsonSink &out) { return handleLine(utf8, out); });
}

Session::Reply Session::handleJson(const JsonValue &request)
{
    return replyOf([&](JsonSink &out) { return handleJson(request, out); });
}

Session::Outcome Session::handleLine(QByteArrayView utf8, JsonSink &out)
{
    JsonValue json;
    try {
        json = JsonReader::parse(utf8);
    } catch (const RequestError &error) {
        return writeUnreadable(out, error);
    }
    return handleJson(json, out);
}

Session::Outcome Session::handleJson(const JsonValue &request, JsonSink &out)
{
    // Nothing is written before the call has run, so a request found wrong on
    // the way gets the one response that says so.
    try {
        return handle(Request::fromJson(request), out);
    } catch (const RequestError &error) {
        return writeUnreadable(out, error, Request::idOf(request));
    }
}

Session::Outcome Session::writeUnreadable(
    JsonSink &out, const RequestError &error, const std::optional<JsonValue> &id)
{
    out.beginObject();
    if (id) {
        out.key(u"id");
        out.value(*id);
    }
    out.key(u"error");
    writeError(out, error);
    out.endObject();
    return Outcome::Unreadable;
}

Session::Outcome Session::handle(const Request &request, JsonSink &out)
{
    // The values the request makes (host objects) live as long as the request.
    QObject owner;
    Call call;
    try {
        call = prepare(request, &owner);
    } catch (const RequestError &error) {
        return writeUnreadable(out, error, request.id);
    } catch (const std::bad_alloc &) {
        return writeUnreadable(out,
            RequestError(7, QStringLiteral("Out of memory: the request is too large")), request.id);
    }
    applyPlatform(request);
    call.id = request.id;
    call.withProperties = request.withProperties;
    const Outcome outcome = run(call, out);
    keepHeldObjects(&owner);
    return outcome;
}

Session::Call Session::prepare(const Request &request, QObject *owner) const
{
    Call call;
    if (!request.object.isEmpty()) {
        call.cls = AutomationClass::find(request.object);
        if (!call.cls)
            throw RequestError::cannotCreate(
                QStringLiteral("qorgen has no class \"%1\"").arg(request.object));
    }
    const TypeLibrary &library = call.cls->typeLibrary();
    if (!request.call.isEmpty()) {
        const TypeLibrary::Member member = library.findMember(request.call);
        call.method = member.method;
        call.property = member.property;
        if (!call.method && !call.property)
            throw RequestError::unknownName(QStringLiteral("%1 has no method or property \"%2\"")
                                                .arg(call.cls->name, request.call));
        prepareArguments(call, request, owner);
    }
    for (const auto &[name, json] : request.set) {
        const PropertyInfo *property = library.findProperty(name);
        if (!property)
            throw RequestError::unknownName(
                QStringLiteral("set: %1 has no property \"%2\"").arg(call.cls->name, name));
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

QObject &Session::objectOf(const AutomationClass &cls)
{
    const size_t index = size_t(cls.index());
    if (index == 0)
        return *m_library;
    if (m_objects.size() <= index)
        m_objects.resize(index + 1);
    if (!m_objects[index])
        m_objects[index] = cls.create();
    return *m_objects[index];
}

void Session::startFresh()
{
    m_objects.clear();
    m_library.reset();
    m_keeper = std::make_unique<QObject>();
    ModGenLib::reset();
    m_library = std::make_unique<clsqorGenLib>();
}

Session::Outcome Session::run(Call &call, JsonSink &out)
{
    QVariant result;
    std::optional<RuntimeError> error;
    try {
        const LateBinding target(&objectOf(*call.cls), call.cls->typeLibrary());
        for (const auto &[name, value] : call.set) {
            QVariantList assigned { value };
            target.invoke(name, assigned);
        }
        if (call.method || call.property)
            result = target.invoke(call.name(), call.args);
    } catch (const RuntimeError &e) {
        error = e;
    } catch (const std::bad_alloc &) {
        error = RuntimeError::outOfMemory();
    } catch (const std::exception &e) {
        error = RuntimeError(
            51, QStringLiteral("Internal error: %1").arg(QString::fromLocal8Bit(e.what())));
    } catch (...) {
        error = RuntimeError::internalError();
    }

    out.beginObject();
    if (call.id) {
        out.key(u"id");
        out.value(*call.id);
    }
    if (!error && call.hasResult()) {
        out.key(u"result");
        ValueCodec::write(out, result);
        if (call.variantResult()) {
            out.key(u"resultType");
            ValueCodec::writeType(out, result);
        }
    }
    writeArguments(call, out);
    if (call.withProperties) {
        out.key(u"props");
        writeProperties(call, out);
    }
    out.key(u"shown");
    out.beginArray();
    for (const ShownEvent &record : m_platform->shown())
        RecordWriter::writeShown(out, record);
    out.endArray();
    if (!m_platform->actions().isEmpty()) {
        out.key(u"actions");
        RecordWriter::writeActions(out, m_platform->actions());
    }
    if (error) {
        out.key(u"error");
        writeError(out, *error);
    }
    out.endObject();
    return error ? Outcome::RuntimeError : Outcome::Ran;
}

// The arguments after the call, and the subtypes of those passed as Variant.
void Session::writeArguments(const Call &call, JsonSink &out) const
{
    out.key(u"args");
    out.beginArray();
    bool anyVariant = false;
    for (qsizetype i = 0; i < call.args.size(); ++i) {
        ValueCodec::write(out, call.args[i]);
        anyVariant = anyVariant || call.variantArgument(i);
    }
    out.endArray();
    if (!anyVariant)
        return;
    out.key(u"argTypes");
    out.beginArray();
    for (qsizetype i = 0; i < call.args.size(); ++i) {
        if (call.variantArgument(i))
            ValueCodec::writeType(out, call.args[i]);
        else
            out.null();
    }
    out.endArray();
}

void Session::writeProperties(const Call &call, JsonSink &out) const
{
    const size_t index = size_t(call.cls->index());
    const QObject *object = index == 0 ? m_library.get() : m_objects.at(index).get();
    out.beginObject();
    for (const auto &[property, meta] : call.cls->properties) {
        out.key(property->name);
        ValueCodec::write(out, meta.read(object));
    }
    out.endObject();
}

void Session::keepHeldObjects(QObject *owner)
{
    QList<QObject *> held;
    for (const auto &[property, meta] : AutomationClass::library().properties) {
        if (property->type == variantType)
            collectObjects(meta.read(m_library.get()), held);
    }
    if (QObject *application = modGenLib().application)
        held.append(application);
    for (QObject *object : held) {
        if (isWithin(object, owner))
            object->setParent(m_keeper.get());
    }
    // What no property holds any more goes, so that a long batch stays as
    // small as its last request left it.
    const QObjectList kept = m_keeper->children();
    for (QObject *object : kept) {
        const bool stillHeld = std::any_of(
            held.begin(), held.end(), [object](const QObject *h) { return isWithin(h, object); });
        if (!stillHeld)
            delete object;
    }
}

} // namespace qor
