#include "tools/qorgen/einvoicecommand.h"

#include "einvoice/invoicejson.h"
#include "einvoice/rulecheck.h"
#include "einvoice/ublreader.h"
#include "einvoice/ublwriter.h"

#include <QFile>
#include <QJsonDocument>

#include <optional>

namespace qor {

namespace {

constexpr int done = 0;
constexpr int rulesBroken = 1;
constexpr int cannotRun = 2;
const QString standardStream = QStringLiteral("-");

struct Options
{
    QString action;
    QString input;
    QString output = standardStream;
    qint32 languageOffset = 0;
};

void write(std::FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
    std::fflush(stream);
}

void complain(std::FILE *err, const QString &what)
{
    write(err, (QStringLiteral("qorgen einvoice: ") + what + u'\n').toUtf8());
}

std::optional<qint32> offsetOfLanguage(const QString &language)
{
    if (language == u"nl")
        return 0;
    if (language == u"fr")
        return 10000;
    if (language == u"en")
        return 20000;
    return std::nullopt;
}

// Reads the options; an empty action means they are wrong (said on err).
Options parse(const QStringList &arguments, std::FILE *err)
{
    Options options;
    const QString action = arguments.value(0);
    if (action != u"write" && action != u"check" && action != u"read") {
        complain(err, QStringLiteral("write, read or check is wanted (see qorgen --help)"));
        return options;
    }
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString &word = arguments[i];
        if ((word == u"-o" || word == u"--language") && i + 1 >= arguments.size()) {
            complain(err, word + QStringLiteral(" needs a value"));
            return options;
        }
        if (word == u"-o") {
            options.output = arguments[++i];
        } else if (word == u"--language") {
            const std::optional<qint32> offset = offsetOfLanguage(arguments[++i]);
            if (!offset) {
                complain(err, QStringLiteral("--language is nl, fr or en"));
                return options;
            }
            options.languageOffset = *offset;
        } else if (options.input.isEmpty() && (word == standardStream || !word.startsWith(u'-'))) {
            options.input = word;
        } else {
            complain(err, QStringLiteral("unknown argument %1").arg(word));
            return options;
        }
    }
    if (options.input.isEmpty())
        complain(err, QStringLiteral("%1 needs a FILE").arg(action));
    else
        options.action = action;
    return options;
}

std::optional<QByteArray> readInput(const QString &name, std::FILE *in, std::FILE *err)
{
    QFile file;
    const bool opened = name == standardStream
        ? file.open(in, QIODevice::ReadOnly)
        : (file.setFileName(name), file.open(QIODevice::ReadOnly));
    if (!opened) {
        complain(err, QStringLiteral("%1: %2").arg(name, file.errorString()));
        return std::nullopt;
    }
    return file.readAll();
}

// The model of a JSON text; every member that cannot be taken is said on err.
// The model of a UBL document; what it cannot read is said on err, and so is
// what the model drops.
std::optional<einvoice::Invoice> modelOfUbl(
    const QByteArray &text, const QString &name, std::FILE *err)
{
    const einvoice::UblReadResult read = einvoice::readUbl(text);
    for (const QString &error : read.errors)
        complain(err, name + QStringLiteral(": ") + error);
    for (const QString &dropped : read.dropped)
        complain(err, name + QStringLiteral(": dropped ") + dropped);
    if (!read.ok())
        return std::nullopt;
    return read.invoice;
}

std::optional<einvoice::Invoice> modelOfJson(
    const QByteArray &text, const QString &name, std::FILE *err)
{
    QJsonParseError parseError;
    const QJsonDocument json = QJsonDocument::fromJson(text, &parseError);
    if (!json.isObject()) {
        complain(err,
            QStringLiteral("%1: not a JSON object (at character %2: %3)")
                .arg(name)
                .arg(parseError.offset)
                .arg(parseError.errorString()));
        return std::nullopt;
    }
    const einvoice::InvoiceFromJson read = einvoice::invoiceFromJson(json.object());
    for (const QString &error : read.errors)
        complain(err, name + QStringLiteral(": ") + error);
    if (!read.errors.isEmpty())
        return std::nullopt;
    return read.invoice;
}

bool writeOutput(const Options &options, const QByteArray &bytes, std::FILE *out, std::FILE *err)
{
    if (options.output == standardStream) {
        write(out, bytes);
        return true;
    }
    QFile file(options.output);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        complain(err, QStringLiteral("%1: %2").arg(options.output, file.errorString()));
        return false;
    }
    return true;
}

} // namespace

int EInvoiceCommand::run(
    const QStringList &arguments, std::FILE *in, std::FILE *out, std::FILE *err)
{
    const Options options = parse(arguments, err);
    if (options.action.isEmpty())
        return cannotRun;
    const std::optional<QByteArray> text = readInput(options.input, in, err);
    if (!text)
        return cannotRun;
    // A document starts with "<", a JSON model with "{".
    const bool isUbl = text->trimmed().startsWith('<');
    if (isUbl && options.action == u"write") {
        complain(err, QStringLiteral("write takes a JSON model, not XML"));
        return cannotRun;
    }
    const std::optional<einvoice::Invoice> invoice
        = isUbl ? modelOfUbl(*text, options.input, err) : modelOfJson(*text, options.input, err);
    if (!invoice)
        return cannotRun;
    if (options.action == u"read") {
        write(out, QJsonDocument(einvoice::invoiceToJson(*invoice)).toJson());
        return done;
    }
    const QList<einvoice::RuleBreach> found
        = einvoice::checkRules(*invoice, options.languageOffset);
    std::FILE *report = options.action == u"check" ? out : err;
    for (const einvoice::RuleBreach &breach : found)
        write(report, (breach.ruleId + QStringLiteral(": ") + breach.message + u'\n').toUtf8());
    if (!found.isEmpty())
        return rulesBroken;
    if (options.action == u"write" && !writeOutput(options, einvoice::writeUbl(*invoice), out, err))
        return cannotRun;
    return done;
}

} // namespace qor
