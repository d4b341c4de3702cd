#include "tools/qorgen/valuecodec.h"

#include "host/hostfactory.h"
#include "host/hostobject.h"
#include "runtime/dates.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"
#include "tools/qorgen/jsonbuilder.h"
#include "tools/qorgen/requesterror.h"

#include <QHash>
#include <QMetaProperty>
#include <QRegularExpression>

#include <limits>

namespace qor {

namespace {

QString markerOf(const JsonValue &json)
{
    for (const JsonValue::Member &member : json.toObject()) {
        if (member.first.startsWith(QLatin1Char('$')))
            return member.first;
    }
    return QString();
}

QVariant numberValue(const JsonValue &json)
{
    if (json.kind() != JsonValue::Kind::Integer)
        return json.toDouble();
    const qint64 number = json.toInteger();
    if (number >= std::numeric_limits<qint16>::min()
        && number <= std::numeric_limits<qint16>::max())
        return integerVariant(qint16(number));
    if (number >= std::numeric_limits<qint32>::min()
        && number <= std::numeric_limits<qint32>::max())
        return longVariant(qint32(number));
    return double(number);
}

// Decoding with the context a nested value needs: who owns the objects made,
// and which class a plain JSON object stands for at this place.
class Decoder
{
public:
    explicit Decoder(QObject *owner)
        : m_owner(owner)
    { }

    QVariant value(const JsonValue &json, const QString &where, const QString &elementClass,
        int depth, bool allowMissing = false);
    void populate(HostObject *object, const JsonValue &members, const QString &where, int depth);

private:
    QVariant marked(const JsonValue &json, const QString &marker, const QString &where, int depth,
        bool allowMissing);
    QVariant array(
        const JsonValue &json, const QString &where, const QString &elementClass, int depth);
    QVariant hostObject(
        const QString &className, const JsonValue &json, const QString &where, int depth);
    void property(HostObject *object, const QString &name, const JsonValue &json,
        const QString &where, int depth);

    QObject *m_owner;
};

QVariant Decoder::value(const JsonValue &json, const QString &where, const QString &elementClass,
    int depth, bool allowMissing)
{
    if (depth > ValueCodec::maxDepth)
        throw RequestError::wrongShape(QStringLiteral("%1: nested deeper than %2 levels")
                                           .arg(where)
                                           .arg(ValueCodec::maxDepth));
    switch (json.kind()) {
    case JsonValue::Kind::Null: return nullVariant();
    case JsonValue::Kind::Boolean: return json.toBool();
    case JsonValue::Kind::Integer:
    case JsonValue::Kind::Single:
    case JsonValue::Kind::Double: return numberValue(json);
    case JsonValue::Kind::String: return json.toString();
    case JsonValue::Kind::Array: return array(json, where, elementClass, depth);
    case JsonValue::Kind::Object: break;
    }
    const QString marker = markerOf(json);
    if (!marker.isEmpty())
        return marked(json, marker, where, depth, allowMissing);
    if (!elementClass.isEmpty())
        return hostObject(elementClass, json, where, depth);
    throw RequestError::wrongShape(
        QStringLiteral("%1: an object is no value here; use {\"$object\": CLASS, ...}, "
                       "{\"$date\": ...} or {\"$empty\": true}")
            .arg(where));
}

QVariant Decoder::marked(const JsonValue &json, const QString &marker, const QString &where,
    int depth, bool allowMissing)
{
    if (const JsonValue *cls = json.member(u"$object")) {
        if (!cls->isString())
            throw RequestError::wrongShape(
                QStringLiteral("%1: \"$object\" must name a class").arg(where));
        return hostObject(cls->toString(), json, where, depth);
    }
    if (json.size() != 1)
        throw RequestError::wrongShape(
            QStringLiteral("%1: \"%2\" stands alone in its object").arg(where, marker));
    const JsonValue &content = json.toObject().front().second;
    if (marker == QLatin1String("$empty") && content == JsonValue(true))
        return emptyVariant();
    if (marker == QLatin1String("$missing") && content == JsonValue(true)) {
        if (!allowMissing)
            throw RequestError::wrongShape(
                QStringLiteral("%1: only an argument can be left out").arg(where));
        return missingVariant();
    }
    if (marker == QLatin1String("$date")) {
        if (const auto date = ValueCodec::readDate(content.toString()))
            return *date;
        throw RequestError::wrongShape(
            QStringLiteral("%1: \"$date\" wants \"yyyy-mm-dd\" or \"yyyy-mm-ddThh:mm:ss\"")
                .arg(where));
    }
    if (marker == QLatin1String("$empty") || marker == QLatin1String("$missing"))
        throw RequestError::wrongShape(
            QStringLiteral("%1: \"%2\" takes the value true").arg(where, marker));
    throw RequestError::wrongShape(QStringLiteral("%1: unknown marker \"%2\"").arg(where, marker));
}

QVariant Decoder::array(
    const JsonValue &json, const QString &where, const QString &elementClass, int depth)
{
    QVariantList list;
    list.reserve(json.size());
    int index = 0;
    for (const JsonValue &element : json.toArray())
        list.append(value(
            element, QStringLiteral("%1[%2]").arg(where).arg(index++), elementClass, depth + 1));
    return list;
}

QVariant Decoder::hostObject(
    const QString &className, const JsonValue &json, const QString &where, int depth)
{
    HostObject *object = HostFactory::create(className, m_owner);
    if (!object) {
        throw RequestError::wrongShape(
            QStringLiteral("%1: unknown host class \"%2\" (known: %3)")
                .arg(where, className, HostFactory::classNames().join(QLatin1String(", "))));
    }
    QObject *outer = m_owner;
    m_owner = object; // what it holds lives and dies with it
    populate(object, json, where, depth);
    m_owner = outer;
    return QVariant::fromValue<QObject *>(object);
}

void Decoder::populate(
    HostObject *object, const JsonValue &members, const QString &where, int depth)
{
    QList<const JsonValue::Member *> rest;
    for (const JsonValue::Member &member : members.toObject()) {
        if (member.first == QLatin1String("$object") || member.first == QLatin1String("$calls"))
            continue;
        if (member.first.startsWith(QLatin1Char('$')))
            throw RequestError::wrongShape(
                QStringLiteral("%1: unknown marker \"%2\"").arg(where, member.first));
        rest.append(&member);
    }
    // Declared properties in their own order: a selection after its text, an index after its list.
    QHash<QString, qsizetype> firstByName;
    for (qsizetype i = 0; i < rest.size(); ++i) {
        const QString folded = rest[i]->first.toCaseFolded();
        if (!firstByName.contains(folded))
            firstByName.insert(folded, i);
    }
    std::vector<bool> done(size_t(rest.size()), false);
    for (const QString &name : object->declaredNames()) {
        const qsizetype i = firstByName.value(name.toCaseFolded(), -1);
        if (i < 0)
            continue;
        property(object, name, rest[i]->second, where, depth);
        done[size_t(i)] = true;
    }
    for (qsizetype i = 0; i < rest.size(); ++i) {
        if (!done[size_t(i)])
            property(object, rest[i]->first, rest[i]->second, where, depth);
    }
}

void Decoder::property(
    HostObject *object, const QString &name, const JsonValue &json, const QString &where, int depth)
{
    const QString place = QStringLiteral("%1.%2").arg(where, name);
    // Values a response lists but nobody sets (a list's count) are left to the object.
    if (!object->isWritable(name))
        return;
    // A plain object for a property that already holds one fills in that one.
    const QVariant current = object->value(name);
    if (json.isObject() && markerOf(json).isEmpty() && isObject(current)) {
        if (auto *child = qobject_cast<HostObject *>(current.value<QObject *>())) {
            populate(child, json, place, depth + 1);
            return;
        }
    }
    QObject *outer = m_owner;
    m_owner = object;
    const QVariant decoded = value(json, place, object->elementClass(name), depth + 1);
    m_owner = outer;
    try {
        object->assign(name, decoded);
    } catch (const RuntimeError &error) {
        throw RequestError::wrongShape(QStringLiteral("%1: %2").arg(place, error.description()));
    }
}

// Encoding into a sink, with the objects on the way down so that a cycle ends.
class Encoder
{
public:
    explicit Encoder(JsonSink &out)
        : m_out(out)
    { }

    void value(const QVariant &v, int depth);

private:
    void marker(QStringView name, bool flag);
    void object(QObject *object, int depth);
    void record(const QVariant &v, int depth);
    void calls(const HostObject *object, int depth);

    JsonSink &m_out;
    QList<const QObject *> m_path;
};

void Encoder::marker(QStringView name, bool flag)
{
    m_out.beginObject();
    m_out.key(name);
    m_out.boolean(flag);
    m_out.endObject();
}

void Encoder::value(const QVariant &v, int depth)
{
    if (isMissing(v))
        return marker(u"$missing", true);
    if (v.metaType().flags() & QMetaType::IsGadget)
        return record(v, depth);
    switch (varType(v)) {
    case VarType::Empty: return marker(u"$empty", true);
    case VarType::Null: return m_out.null();
    case VarType::Integer:
    case VarType::Long:
    case VarType::Currency:
    case VarType::Byte: return m_out.integer(v.toLongLong());
    case VarType::Single: return m_out.single(v.toFloat());
    case VarType::Double: return m_out.number(v.toDouble());
    case VarType::Boolean: return m_out.boolean(v.toBool());
    case VarType::String:
        if (v.typeId() == QMetaType::QString)
            return m_out.string(*static_cast<const QString *>(v.constData()));
        return m_out.string(v.toString());
    case VarType::Date:
        m_out.beginObject();
        m_out.key(u"$date");
        m_out.string(ValueCodec::dateText(v));
        return m_out.endObject();
    case VarType::Array: break;
    case VarType::Object: return object(v.value<QObject *>(), depth);
    }
    m_out.beginArray();
    if (depth < ValueCodec::maxDepth) {
        for (const QVariant &element : v.toList())
            value(element, depth + 1);
    }
    m_out.endArray();
}

void Encoder::object(QObject *object, int depth)
{
    if (!object)
        return m_out.null(); // Nothing
    auto *host = qobject_cast<HostObject *>(object);
    QString className
        = host ? host->className() : QString::fromLatin1(object->metaObject()->className());
    className = className.mid(className.lastIndexOf(QLatin1Char(':')) + 1);
    m_out.beginObject();
    m_out.key(u"$object");
    m_out.string(className);
    if (host && !m_path.contains(object) && depth < ValueCodec::maxDepth) {
        m_path.append(object);
        for (const QString &name : host->propertyNames()) {
            m_out.key(name);
            value(host->value(name), depth + 1);
        }
        m_out.key(u"$calls");
        calls(host, depth);
        m_path.removeLast();
    }
    m_out.endObject();
}

// A record (such as WindowSize) is an object of its fields in their order.
void Encoder::record(const QVariant &v, int depth)
{
    m_out.beginObject();
    const QMetaObject *meta = v.metaType().metaObject();
    for (int i = meta ? meta->propertyOffset() : 0; meta && i < meta->propertyCount(); ++i) {
        m_out.key(QString::fromLatin1(meta->property(i).name()));
        value(meta->property(i).readOnGadget(v.constData()), depth + 1);
    }
    m_out.endObject();
}

void Encoder::calls(const HostObject *object, int depth)
{
    m_out.beginArray();
    for (const QVariant &call : object->calls()) {
        const QVariantMap map = call.toMap();
        m_out.beginObject();
        m_out.key(u"name");
        m_out.string(map.value(QStringLiteral("name")).toString());
        m_out.key(u"args");
        m_out.beginArray();
        for (const QVariant &arg : map.value(QStringLiteral("args")).toList())
            value(arg, depth + 2);
        m_out.endArray();
        m_out.endObject();
    }
    m_out.endArray();
}

} // namespace

QVariant ValueCodec::decode(const JsonValue &json, QObject *owner, const QString &where)
{
    return Decoder(owner).value(json, where, QString(), 0);
}

QVariant ValueCodec::decodeArgument(const JsonValue &json, QObject *owner, const QString &where)
{
    return Decoder(owner).value(json, where, QString(), 0, true);
}

void ValueCodec::populate(HostObject *object, const JsonValue &members, const QString &where)
{
    Decoder(object).populate(object, members, where, 0);
}

JsonValue ValueCodec::encode(const QVariant &value)
{
    JsonBuilder json;
    write(json, value);
    return json.take();
}

void ValueCodec::write(JsonSink &out, const QVariant &value)
{
    Encoder(out).value(value, 0);
}

JsonValue ValueCodec::typeOf(const QVariant &value)
{
    if (isMissing(value))
        return nullptr;
    return varTypeName(value);
}

void ValueCodec::writeType(JsonSink &out, const QVariant &value)
{
    out.value(typeOf(value));
}

std::optional<QDateTime> ValueCodec::readDate(const QString &text)
{
    static const QRegularExpression dateTime(
        QStringLiteral("^(\\d{4})-(\\d{2})-(\\d{2})(?:T(\\d{2}):(\\d{2})(?::(\\d{2}))?)?$"));
    static const QRegularExpression timeOnly(QStringLiteral("^(\\d{2}):(\\d{2})(?::(\\d{2}))?$"));
    QDate date = zeroDate();
    QTime time(0, 0);
    if (const auto m = dateTime.match(text); m.hasMatch()) {
        date = QDate(m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt());
        if (m.hasCaptured(4))
            time = QTime(m.captured(4).toInt(), m.captured(5).toInt(), m.captured(6).toInt());
    } else if (const auto t = timeOnly.match(text); t.hasMatch()) {
        time = QTime(t.captured(1).toInt(), t.captured(2).toInt(), t.captured(3).toInt());
    } else {
        return std::nullopt;
    }
    // Dates run from the year 100 to 9999.
    if (!date.isValid() || !time.isValid() || date.year() < 100)
        return std::nullopt;
    return QDateTime(date, time, Qt::UTC);
}

QString ValueCodec::dateText(const QVariant &value)
{
    QDate date = zeroDate();
    QTime time(0, 0);
    if (value.typeId() == QMetaType::QDate) {
        date = value.toDate();
    } else if (value.typeId() == QMetaType::QTime) {
        time = value.toTime();
    } else {
        const QDateTime dt = value.toDateTime();
        date = dt.date();
        time = dt.time();
    }
    const QString day = date.toString(QStringLiteral("yyyy-MM-dd"));
    if (time == QTime(0, 0))
        return day;
    return day + time.toString(QStringLiteral("'T'HH:mm:ss"));
}

} // namespace qor
