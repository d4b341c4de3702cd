#include "tools/qorgen/recordwriter.h"

#include "tools/qorgen/jsonsink.h"
#include "tools/qorgen/valuecodec.h"

#include <QStringList>

namespace qor {

namespace {

void writeField(JsonSink &out, const QString &key, const QVariant &value);

// A plain value of a record as JSON: texts, numbers, flags, and lists and maps
// of them at any depth; anything else (a host object) as the codec writes it.
void writePlain(JsonSink &out, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool: return out.boolean(value.toBool());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::Short: return out.integer(value.toLongLong());
    case QMetaType::Double:
    case QMetaType::Float: return out.number(value.toDouble());
    case QMetaType::QString: return out.string(value.toString());
    case QMetaType::QStringList:
    case QMetaType::QVariantList: {
        out.beginArray();
        for (const QVariant &element : value.toList())
            writePlain(out, element);
        return out.endArray();
    }
    case QMetaType::QVariantMap: {
        out.beginObject();
        const QVariantMap map = value.toMap();
        for (auto it = map.begin(); it != map.end(); ++it)
            writeField(out, it.key(), it.value());
        return out.endObject();
    }
    default: return ValueCodec::write(out, value);
    }
}

void writeField(JsonSink &out, const QString &key, const QVariant &value)
{
    out.key(key);
    writePlain(out, value);
}

} // namespace

void RecordWriter::writeShown(JsonSink &out, const QVariantMap &record)
{
    static const QStringList order { QStringLiteral("kind"), QStringLiteral("prompt"),
        QStringLiteral("text"), QStringLiteral("buttons"), QStringLiteral("title"),
        QStringLiteral("caption"), QStringLiteral("type"), QStringLiteral("default"),
        QStringLiteral("maxLength"), QStringLiteral("start"), QStringLiteral("file"),
        QStringLiteral("continuous"), QStringLiteral("answer") };
    out.beginObject();
    for (const QString &field : order) {
        if (const auto it = record.find(field); it != record.end())
            writeField(out, field, it.value());
    }
    for (auto it = record.begin(); it != record.end(); ++it) {
        if (!order.contains(it.key()))
            writeField(out, it.key(), it.value());
    }
    out.endObject();
}

void RecordWriter::writeAction(JsonSink &out, const QVariantMap &record)
{
    writePlain(out, record);
}

} // namespace qor
