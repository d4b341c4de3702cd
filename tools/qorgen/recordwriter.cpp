#include "tools/qorgen/recordwriter.h"

#include "platform/keyboard.h"
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

QVariant cancelled()
{
    return QVariantMap { { QStringLiteral("cancel"), true } };
}

QVariantMap fieldsOf(const MessageBoxEShown &box)
{
    QVariantList buttons;
    for (const ShownButton &button : box.buttonsShown)
        buttons.append(QVariantMap { { QStringLiteral("name"), button.name },
            { QStringLiteral("caption"), button.caption } });
    QVariantMap fields { { QStringLiteral("prompt"), box.prompt },
        { QStringLiteral("buttons"), box.buttons }, { QStringLiteral("title"), box.title },
        { QStringLiteral("caption"), box.caption }, { QStringLiteral("type"), box.type },
        { QStringLiteral("buttonsShown"), buttons } };
    if (box.answer)
        fields.insert(QStringLiteral("answer"), *box.answer);
    return fields;
}

QVariantMap fieldsOf(const MessageBoxShown &box)
{
    return { { QStringLiteral("prompt"), box.prompt }, { QStringLiteral("buttons"), box.buttons },
        { QStringLiteral("title"), box.title }, { QStringLiteral("answer"), box.answer } };
}

QVariantMap fieldsOf(const InputBoxEShown &box)
{
    QVariantMap fields { { QStringLiteral("prompt"), box.prompt },
        { QStringLiteral("title"), box.title }, { QStringLiteral("default"), box.defaultValue },
        { QStringLiteral("maxLength"), box.maxLength } };
    if (box.answer)
        fields.insert(QStringLiteral("answer"),
            box.answer->cancelled ? cancelled() : QVariant(box.answer->text));
    return fields;
}

QVariantMap fieldsOf(const CalculatorShown &calculator)
{
    return { { QStringLiteral("start"), calculator.start },
        { QStringLiteral("answer"),
            calculator.cancelled ? cancelled() : QVariant(calculator.result) } };
}

QVariantMap fieldsOf(const CalculatorHelpShown &card)
{
    return { { QStringLiteral("title"), card.title }, { QStringLiteral("lines"), card.lines } };
}

QVariantMap fieldsOf(const NoteShown &note)
{
    return { { QStringLiteral("text"), note.text } };
}

QVariantMap fieldsOf(const SoundPlayed &sound)
{
    return { { QStringLiteral("file"), sound.file },
        { QStringLiteral("continuous"), sound.continuous } };
}

QVariantMap fieldsOf(const ProcessStarted &start)
{
    return { { QStringLiteral("command"), start.command },
        { QStringLiteral("windowStyle"), start.windowStyle } };
}

QVariantMap fieldsOf(const FormKeptOnTop &onTop)
{
    return { { QStringLiteral("object"), QVariant::fromValue(onTop.form) } };
}

QVariantMap fieldsOf(const MousePointerSet &pointer)
{
    return { { QStringLiteral("value"), pointer.pointer } };
}

QVariantMap fieldsOf(const KeySent &key)
{
    return { { QStringLiteral("virtualKey"), key.virtualKey },
        { QStringLiteral("scanCode"), key.scanCode }, { QStringLiteral("flags"), key.flags } };
}

// A record without fields of its own: its kind alone.
template <class Record> QVariantMap fieldsOf(const Record &)
{
    return {};
}

template <class Record> QVariantMap withKind(const Record &record)
{
    return std::visit(
        [](const auto &event) {
            QVariantMap fields = fieldsOf(event);
            fields.insert(
                QStringLiteral("kind"), QString::fromLatin1(std::decay_t<decltype(event)>::kind));
            return fields;
        },
        record);
}

} // namespace

QVariantMap RecordWriter::fields(const ShownEvent &record)
{
    return withKind(record);
}

QVariantMap RecordWriter::fields(const MachineAction &record)
{
    return withKind(record);
}

void RecordWriter::writeShown(JsonSink &out, const ShownEvent &shown)
{
    const QVariantMap record = fields(shown);
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

void RecordWriter::writeAction(JsonSink &out, const MachineAction &action)
{
    writePlain(out, fields(action));
}

void RecordWriter::writeActions(JsonSink &out, const QList<MachineAction> &actions)
{
    out.beginArray();
    for (qsizetype i = 0; i < actions.size();) {
        if (!std::holds_alternative<KeySent>(actions[i])) {
            writeAction(out, actions[i++]);
            continue;
        }
        QVariantList codes;
        QVariantList events;
        for (; i < actions.size() && std::holds_alternative<KeySent>(actions[i]); ++i) {
            const KeySent &key = std::get<KeySent>(actions[i]);
            if (key.flags != Keyboard::KeyUp)
                codes.append(key.virtualKey);
            events.append(fieldsOf(key));
        }
        writePlain(out,
            QVariantMap { { QStringLiteral("kind"), QString::fromLatin1(KeySent::kind) },
                { QStringLiteral("codes"), codes }, { QStringLiteral("events"), events } });
    }
    out.endArray();
}

} // namespace qor
