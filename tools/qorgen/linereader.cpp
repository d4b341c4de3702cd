#include "tools/qorgen/linereader.h"

namespace qor {

namespace {

int nextChar(std::FILE *stream)
{
#if defined(_POSIX_C_SOURCE) || defined(__unix__)
    return getc_unlocked(stream);
#else
    return std::getc(stream);
#endif
}

} // namespace

LineReader::LineReader(std::FILE *stream, qsizetype maxLength)
    : m_stream(stream)
    , m_maxLength(maxLength)
{ }

LineReader::Status LineReader::next(QByteArray &line)
{
    line.clear();
    bool tooLong = false;
    int c = nextChar(m_stream);
    if (c == EOF)
        return Status::End;
    for (; c != EOF && c != '\n'; c = nextChar(m_stream)) {
        if (tooLong)
            continue;
        if (line.size() >= m_maxLength) {
            tooLong = true;
            line.clear();
            line.squeeze();
            continue;
        }
        line.append(char(c));
    }
    if (tooLong)
        return Status::TooLong;
    if (line.endsWith('\r'))
        line.chop(1);
    return Status::Line;
}

} // namespace qor
