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

// Responses gather here and go out in one write when no further request is
// waiting, or when this much has gathered.
constexpr qsizetype outputBlock = 64 * 1024;

// False when the reader of our output has gone.
bool writeOut(std::FILE *out, QByteArray &pending)
{
    const bool written = pending.isEmpty()
        || (std::fwrite(pending.constData(), 1, size_t(pending.size()), out)
                == size_t(pending.size())
            && std::fflush(out) == 0);
    pending.resize(0);
    return written;
}

} // namespace

int BatchCommand::run(std::FILE *in, std::FILE *out)
{
    Session session;
    LineReader reader(in);
    QByteArray line;
    QByteArray pending;
    pending.reserve(outputBlock * 2);
    JsonWriter response(pending);
    for (;;) {
        const LineReader::Status status = reader.next(line);
        if (status == LineReader::Status::End)
            return writeOut(out, pending) ? 0 : 1;
        if (status == LineReader::Status::Line && isBlank(line))
            continue;
        if (status == LineReader::Status::TooLong) {
            Session::writeUnreadable(response,
                RequestError::unreadable(QStringLiteral("the request line is longer than %1 bytes")
                                             .arg(reader.maxLength())));
        } else {
            session.handleLine(line, response);
        }
        pending.append('\n');
        // A caller that writes one line and waits for its answer gets it at once.
        if ((pending.size() >= outputBlock || !reader.hasPending()) && !writeOut(out, pending))
            return 1;
    }
}

} // namespace qor
