#include "interchange/recordfilefault.h"

namespace qor {

QString RecordFileFault::kindName(Kind kind)
{
    switch (kind) {
    case Checksum: return QStringLiteral("checksum");
    case LineNumber: return QStringLiteral("line number");
    case Delimiter: return QStringLiteral("delimiter");
    case NulByte: return QStringLiteral("NUL byte");
    case TooLong: return QStringLiteral("too long");
    case ReadError: return QStringLiteral("read error");
    }
    return QString();
}

QString RecordFileFault::reason() const
{
    switch (kind) {
    case Checksum: return QStringLiteral("missing or wrong checksum");
    case LineNumber: return QStringLiteral("no line number and blank in front");
    case Delimiter: return QStringLiteral("no blank at column %1 behind a field").arg(position);
    case NulByte: return QStringLiteral("NUL byte at column %1").arg(position);
    case TooLong: return QStringLiteral("line longer than the reader's limit");
    case ReadError: return QStringLiteral("the file could not be read further");
    }
    return QString();
}

int RecordFileFault::recordCode() const
{
    switch (kind) {
    case Checksum:
    case LineNumber: return -4;
    case Delimiter: return -6;
    default: return 0;
    }
}

} // namespace qor
