#include "tools/qorgen/recordscommand.h"

#include "interchange/recordfilereader.h"
#include "interchange/recordfilewriter.h"
#include "platform/clock.h"
#include "platform/filesystem.h"
#include "runtime/conversion.h"
#include "runtime/runtimeerror.h"
#include "tools/qorgen/linereader.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <memory>
#include <optional>

namespace qor {

namespace {

constexpr int allPassed = 0;
constexpr int someFaulty = 1;
constexpr int cannotRun = 2;
constexpr qint32 maxWidth = 1 << 20;

struct Options
{
    QString direction;
    RecordLayout layout;
    std::optional<RegionalSettings> settings;
    QString file;
};

void write(std::FILE *stream, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), stream);
}

void writeLine(std::FILE *stream, const QJsonValue &value)
{
    const QByteArray json = value.isArray()
        ? QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact)
        : QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact);
    write(stream, json + '\n');
}

class UsageError
{
public:
    explicit UsageError(QString why)
        : m_why(std::move(why))
    { }
    const QString &why() const { return m_why; }

private:
    QString m_why;
};

QList<qint32> parseWidths(const QString &text)
{
    QList<qint32> widths;
    for (const QString &part : text.split(QLatin1Char(','))) {
        bool ok = false;
        const int width = part.trimmed().toInt(&ok);
        if (!ok || width < 0 || width > maxWidth)
            throw UsageError(QStringLiteral("--widths: \"%1\" is no width from 0 to %2")
                                 .arg(part, QString::number(maxWidth)));
        widths.append(width);
    }
    return widths;
}

QStringList parseFormats(const QString &text)
{
    const QJsonDocument json = QJsonDocument::fromJson(text.toUtf8());
    if (!json.isArray())
        throw UsageError(
            QStringLiteral("--formats needs a JSON array of masks, e.g. '[\"\",\"0.00\"]'"));
    QStringList formats;
    for (const QJsonValue &mask : json.array()) {
        if (!mask.isString())
            throw UsageError(QStringLiteral("--formats: every mask is a JSON string"));
        formats.append(mask.toString());
    }
    return formats;
}

QString valueOf(const QStringList &arguments, qsizetype &i)
{
    const QString &word = arguments[i];
    const qsizetype equals = word.indexOf(QLatin1Char('='));
    if (equals > 0)
        return word.mid(equals + 1);
    if (i + 1 >= arguments.size())
        throw UsageError(QStringLiteral("%1 needs a value").arg(word));
    return arguments[++i];
}

Options parse(const QStringList &arguments)
{
    Options options;
    options.direction = arguments.value(0);
    if (options.direction != QLatin1String("write") && options.direction != QLatin1String("read"))
        throw UsageError(QStringLiteral("records needs write or read"));
    bool haveWidths = false;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString &word = arguments[i];
        const QString name = word.section(QLatin1Char('='), 0, 0);
        if (name == QLatin1String("--widths")) {
            options.layout.widths = parseWidths(valueOf(arguments, i));
            haveWidths = true;
        } else if (name == QLatin1String("--formats")) {
            options.layout.formats = parseFormats(valueOf(arguments, i));
        } else if (name == QLatin1String("--separator")) {
            options.layout.separator = valueOf(arguments, i);
        } else if (name == QLatin1String("--locale")) {
            options.settings = RegionalSettings::fromLocale(valueOf(arguments, i));
        } else if (word == QLatin1String("--no-line-numbers")) {
            options.layout.lineNumbers = false;
        } else if (word == QLatin1String("--no-checksum")) {
            options.layout.checksum = false;
        } else if (word.startsWith(QLatin1String("--"))) {
            throw UsageError(QStringLiteral("unknown option %1").arg(word));
        } else if (options.file.isEmpty() && i == arguments.size() - 1) {
            options.file = word;
        } else {
            throw UsageError(QStringLiteral("one FILE, after the options"));
        }
    }
    if (!haveWidths)
        throw UsageError(QStringLiteral("--widths is required, e.g. --widths 4,3"));
    if (!options.layout.formats.isEmpty()
        && options.layout.formats.size() != options.layout.widths.size())
        throw UsageError(QStringLiteral("--formats needs one mask per width"));
    if (options.file.isEmpty())
        throw UsageError(QStringLiteral("FILE is missing (\"-\" for the standard stream)"));
    return options;
}

std::unique_ptr<QIODevice> open(const QString &file, QIODevice::OpenMode mode, std::FILE *stream)
{
    if (file == QLatin1String("-")) {
        auto device = std::make_unique<QFile>();
        if (!device->open(stream, mode))
            return nullptr;
        return device;
    }
    return FileSystem::current().openFile(file, mode);
}

// One JSON array of strings (numbers taken as their JSON text) per line.
// One JSON array of strings per line; a number is taken as CStr writes it
// under the regional settings, so that the masks read it back.
std::optional<QStringList> fieldsOf(
    const QByteArray &line, const RegionalSettings &rs, QString &why)
{
    QJsonParseError error;
    const QJsonDocument json = QJsonDocument::fromJson(line, &error);
    if (!json.isArray()) {
        why = error.error != QJsonParseError::NoError ? error.errorString()
                                                      : QStringLiteral("not a JSON array");
        return std::nullopt;
    }
    QStringList fields;
    for (const QJsonValue &value : json.array()) {
        if (value.isString()) {
            fields.append(value.toString());
        } else if (value.isDouble()) {
            fields.append(numberText(value.toDouble(), rs));
        } else {
            why = QStringLiteral("every field is a string or a number");
            return std::nullopt;
        }
    }
    return fields;
}

void reportLine(std::FILE *err, qint64 line, const QString &fault, const QString &reason)
{
    writeLine(err,
        QJsonObject { { QStringLiteral("line"), line }, { QStringLiteral("fault"), fault },
            { QStringLiteral("reason"), reason } });
}

int writeRecords(const Options &options, const RegionalSettings &rs, std::FILE *in, std::FILE *err)
{
    const auto file = open(options.file, QIODevice::WriteOnly | QIODevice::Truncate, stdout);
    if (!file)
        throw UsageError(QStringLiteral("cannot write %1").arg(options.file));
    RecordFileWriter writer(*file, options.layout, rs);
    LineReader lines(in);
    QByteArray line;
    qint64 number = 0;
    int status = allPassed;
    for (auto read = lines.next(line); read != LineReader::Status::End; read = lines.next(line)) {
        ++number;
        QString why;
        std::optional<QStringList> fields;
        if (read == LineReader::Status::TooLong)
            why = QStringLiteral("line too long");
        else
            fields = fieldsOf(line, rs, why);
        if (fields && !writer.write(*fields))
            why = writer.error();
        if (!why.isEmpty()) {
            reportLine(err, number, QStringLiteral("input"), why);
            status = someFaulty;
        }
    }
    if (!writer.flush()) {
        reportLine(err, number, QStringLiteral("output"), writer.error());
        return someFaulty;
    }
    return status;
}

int readRecords(const Options &options, const RegionalSettings &rs, std::FILE *out, std::FILE *err)
{
    const auto file = open(options.file, QIODevice::ReadOnly, stdin);
    if (!file)
        throw UsageError(QStringLiteral("cannot read %1").arg(options.file));
    RecordFileReader reader(*file, options.layout, rs);
    int status = allPassed;
    for (auto read = reader.next(); read != RecordFileReader::Status::End; read = reader.next()) {
        if (read == RecordFileReader::Status::Record) {
            writeLine(out, QJsonArray::fromStringList(reader.fields()));
        } else {
            const RecordFileFault &fault = reader.fault();
            reportLine(err, fault.line, RecordFileFault::kindName(fault.kind), fault.reason());
            status = someFaulty;
        }
    }
    return status;
}

} // namespace

int RecordsCommand::run(const QStringList &arguments, std::FILE *in, std::FILE *out, std::FILE *err)
{
    try {
        const Options options = parse(arguments);
        const RegionalSettings rs
            = options.settings ? *options.settings : Clock::current().regionalSettings();
        const int status = options.direction == QLatin1String("write")
            ? writeRecords(options, rs, in, err)
            : readRecords(options, rs, out, err);
        std::fflush(out);
        std::fflush(err);
        return status;
    } catch (const UsageError &error) {
        write(err, "qorgen records: " + error.why().toUtf8() + "\n");
    } catch (const RuntimeError &error) {
        write(err, QByteArray("qorgen records: ") + error.what() + "\n");
    }
    std::fflush(err);
    return cannotRun;
}

} // namespace qor
