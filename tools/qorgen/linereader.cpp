#include "tools/qorgen/linereader.h"

#include <cerrno>
#include <cstring>

#include <poll.h>
#include <unistd.h>

namespace qor {

namespace {

constexpr qsizetype blockSize = 64 * 1024;

} // namespace

LineReader::LineReader(std::FILE *stream, qsizetype maxLength)
    : m_fd(fileno(stream))
    , m_maxLength(maxLength)
    , m_buffer(blockSize, Qt::Uninitialized)
{ }

bool LineReader::fill()
{
    if (m_atEnd)
        return false;
    for (;;) {
        const ssize_t got = ::read(m_fd, m_buffer.data(), size_t(m_buffer.size()));
        if (got > 0) {
            m_pos = 0;
            m_end = qsizetype(got);
            return true;
        }
        if (got < 0 && errno == EINTR)
            continue;
        m_atEnd = true;
        return false;
    }
}

LineReader::Status LineReader::next(QByteArray &line)
{
    line.resize(0);
    bool tooLong = false;
    bool any = false;
    for (;;) {
        if (m_pos == m_end && !fill())
            break;
        any = true;
        const char *start = m_buffer.constData() + m_pos;
        const char *newline
            = static_cast<const char *>(std::memchr(start, '\n', size_t(m_end - m_pos)));
        const qsizetype length = newline ? newline - start : m_end - m_pos;
        if (!tooLong && line.size() + length > m_maxLength) {
            tooLong = true;
            line.clear();
            line.squeeze();
        }
        if (!tooLong)
            line.append(start, length);
        m_pos += length;
        if (newline) {
            ++m_pos;
            break;
        }
    }
    if (!any)
        return Status::End;
    if (tooLong)
        return Status::TooLong;
    if (line.endsWith('\r'))
        line.chop(1);
    return Status::Line;
}

bool LineReader::hasPending() const
{
    if (m_pos < m_end || m_atEnd)
        return true;
    pollfd waiting { m_fd, POLLIN, 0 };
    return ::poll(&waiting, 1, 0) > 0;
}

} // namespace qor
