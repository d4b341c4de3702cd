#include "tools/qorgen/batchcommand.h"

#include "tools/qorgen/jsonwriter.h"
#include "tools/qorgen/linereader.h"
#include "tools/qorgen/requesterror.h"
#include "tools/qorgen/session.h"

namespace qor {

namespace {

bool isBlank(const QByteArray &line)
{
    for (char c : line) {
        if (c != ' ' && c != '\t')
            return false;
    }
    return true;
}

// False when the reader of our output has gone.
bool writeLine(std::FILE *out, QByteArray bytes)
{
    bytes.append('\n');
    return std::fwrite(bytes.constData(), 1, size_t(bytes.size()), out) == size_t(bytes.size())
        && std::fflush(out) == 0;
}

} // namespace

int BatchCommand::run(std::FILE *in, std::FILE *out)
{
    Session session;
    LineReader reader(in);
    QByteArray line;
    for (;;) {
        const LineReader::Status status = reader.next(line);
        if (status == LineReader::Status::End)
            return 0;
        if (status == LineReader::Status::Line && isBlank(line))
            continue;
        JsonValue response;
        if (status == LineReader::Status::TooLong) {
            response = Session::unreadable(
                RequestError::unreadable(QStringLiteral("the request line is longer than %1 bytes")
                                             .arg(reader.maxLength())))
                           .response;
        } else {
            response = session.handleLine(line).response;
        }
        if (!writeLine(out, JsonWriter::compact(response)))
            return 1;
    }
}

} // namespace qor
