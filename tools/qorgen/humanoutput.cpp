#include "tools/qorgen/humanoutput.h"

#include "tools/qorgen/jsonwriter.h"

namespace qor {

namespace {

// Message texts break paragraphs with carriage returns alone.
QString readable(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text;
}

QString field(const JsonValue &entry, const char16_t *name)
{
    const JsonValue *value = entry.member(name);
    return value ? HumanOutput::plainText(*value) : QString();
}

QString describe(const JsonValue &entry)
{
    const QString kind = field(entry, u"kind");
    if (kind == QLatin1String("MsgBoxE"))
        return QStringLiteral("[%1 %2] %3\n%4\n(answer %5)\n")
            .arg(kind, field(entry, u"type"), field(entry, u"caption"),
                readable(field(entry, u"prompt")), field(entry, u"answer"));
    if (kind == QLatin1String("MsgBox"))
        return QStringLiteral("[MsgBox] %1\n%2\n(answer %3)\n")
            .arg(
                field(entry, u"title"), readable(field(entry, u"prompt")), field(entry, u"answer"));
    if (kind == QLatin1String("InputBoxE"))
        return QStringLiteral("[InputBoxE] %1\n%2\n(default \"%3\", answer %4)\n")
            .arg(field(entry, u"title"), readable(field(entry, u"prompt")),
                field(entry, u"default"), field(entry, u"answer"));
    if (kind == QLatin1String("Note"))
        return QStringLiteral("[Note] %1\n").arg(readable(field(entry, u"text")));
    if (kind == QLatin1String("sound"))
        return QStringLiteral("[sound] %1%2\n")
            .arg(field(entry, u"file"),
                field(entry, u"continuous") == QLatin1String("true")
                    ? QStringLiteral(" (continuous)")
                    : QString());
    return QStringLiteral("[%1] %2\n").arg(kind, QString::fromUtf8(JsonWriter::compact(entry)));
}

} // namespace

QString HumanOutput::plainText(const JsonValue &value)
{
    if (value.isString())
        return value.toString();
    if (const JsonValue *date = value.member(u"$date"))
        return date->toString();
    if (value.member(u"$empty"))
        return QString();
    return QString::fromUtf8(JsonWriter::compact(value));
}

QByteArray HumanOutput::result(const JsonValue &response)
{
    const JsonValue *result = response.member(u"result");
    if (!result)
        return QByteArray();
    return plainText(*result).toUtf8() + '\n';
}

QByteArray HumanOutput::shown(const JsonValue &response)
{
    QString text;
    if (const JsonValue *shown = response.member(u"shown")) {
        for (const JsonValue &entry : shown->toArray())
            text += describe(entry);
    }
    return text.toUtf8();
}

QByteArray HumanOutput::error(const JsonValue &response)
{
    const JsonValue *error = response.member(u"error");
    if (!error)
        return QByteArray();
    const bool ran = response.member(u"props") != nullptr;
    return QStringLiteral("%1 %2: %3\n")
        .arg(ran ? QStringLiteral("Run-time error") : QStringLiteral("Request error"),
            field(*error, u"number"), field(*error, u"description"))
        .toUtf8();
}

} // namespace qor
