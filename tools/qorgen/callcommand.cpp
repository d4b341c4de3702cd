#include "tools/qorgen/callcommand.h"

#include "tools/qorgen/humanoutput.h"
#include "tools/qorgen/jsonreader.h"
#include "tools/qorgen/jsonwriter.h"
#include "tools/qorgen/requesterror.h"
#include "tools/qorgen/session.h"

namespace qor {

namespace {

// Splits "--name=value" or takes the value from the next argument.
QString optionValue(const QStringList &arguments, qsizetype &i, const QString &option)
{
    const QString &word = arguments[i];
    if (word.size() > option.size() && word.at(option.size()) == QLatin1Char('='))
        return word.mid(option.size() + 1);
    if (i + 1 >= arguments.size())
        throw RequestError::unreadable(QStringLiteral("%1 needs a value").arg(option));
    return arguments[++i];
}

bool isOption(const QString &word, const QString &option)
{
    return word == option || word.startsWith(option + QLatin1Char('='));
}

void write(std::FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

JsonValue CallCommand::argument(const QString &text)
{
    if (auto json = JsonReader::tryParse(text.toUtf8()))
        return *json;
    return text;
}

CallCommand::Parsed CallCommand::parse(const QStringList &arguments)
{
    Parsed parsed;
    JsonValue set = JsonValue::object();
    JsonValue env = JsonValue::object();
    JsonValue answers = JsonValue::array();
    QString object;
    qsizetype i = 0;
    for (; i < arguments.size() && arguments[i].startsWith(QLatin1String("--")); ++i) {
        const QString &word = arguments[i];
        if (word == QLatin1String("--")) {
            ++i;
            break;
        }
        if (word == QLatin1String("--json")) {
            parsed.jsonOutput = true;
        } else if (isOption(word, QStringLiteral("--set"))) {
            const QString assignment = optionValue(arguments, i, QStringLiteral("--set"));
            const qsizetype equals = assignment.indexOf(QLatin1Char('='));
            if (equals <= 0)
                throw RequestError::unreadable(
                    QStringLiteral("--set wants NAME=JSON, not \"%1\"").arg(assignment));
            set.insert(assignment.left(equals), argument(assignment.mid(equals + 1)));
        } else if (isOption(word, QStringLiteral("--locale"))) {
            env.insert(
                QStringLiteral("locale"), optionValue(arguments, i, QStringLiteral("--locale")));
        } else if (isOption(word, QStringLiteral("--object"))) {
            object = optionValue(arguments, i, QStringLiteral("--object"));
        } else if (isOption(word, QStringLiteral("--now"))) {
            env.insert(QStringLiteral("now"), optionValue(arguments, i, QStringLiteral("--now")));
        } else if (isOption(word, QStringLiteral("--answer"))) {
            answers.append(argument(optionValue(arguments, i, QStringLiteral("--answer"))));
        } else {
            throw RequestError::unreadable(
                QStringLiteral("unknown option %1 (see qorgen --help)").arg(word));
        }
    }
    if (i >= arguments.size())
        throw RequestError::unreadable(QStringLiteral("call needs a METHOD (see qorgen --help)"));
    JsonValue args = JsonValue::array();
    for (qsizetype a = i + 1; a < arguments.size(); ++a)
        args.append(argument(arguments[a]));
    parsed.request = JsonValue::object()
                         .insert(QStringLiteral("call"), arguments[i])
                         .insert(QStringLiteral("args"), std::move(args))
                         .insert(QStringLiteral("set"), std::move(set))
                         .insert(QStringLiteral("env"), std::move(env))
                         .insert(QStringLiteral("answers"), std::move(answers));
    if (!object.isEmpty())
        parsed.request.insert(QStringLiteral("object"), object);
    return parsed;
}

int CallCommand::run(const QStringList &arguments, std::FILE *out, std::FILE *err)
{
    Parsed parsed;
    try {
        parsed = parse(arguments);
    } catch (const RequestError &error) {
        write(err, QStringLiteral("qorgen: %1\n").arg(error.description()).toUtf8());
        return 2;
    }
    Session session;
    const Session::Reply reply = session.handleJson(parsed.request);
    if (parsed.jsonOutput) {
        write(out, JsonWriter::compact(reply.response) + '\n');
    } else {
        write(err, HumanOutput::shown(reply.response));
        write(out, HumanOutput::result(reply.response));
        write(err, HumanOutput::error(reply.response));
    }
    switch (reply.outcome) {
    case Session::Outcome::Ran: return 0;
    case Session::Outcome::RuntimeError: return 1;
    case Session::Outcome::Unreadable: return 2;
    }
    return 2;
}

} // namespace qor
