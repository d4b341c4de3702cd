#pragma once

#include <QByteArray>

#include <cstdio>

namespace qor {

// Reads lines from a stream without ever holding more than a limit: a line
// longer than that is skipped to its end and reported as too long. A last line
// cut off by the end of the stream is returned as it is. Reads only what is
// there, so that a caller waiting for each answer before it writes the next
// line is served at once.
class LineReader
{
public:
    enum class Status { Line, TooLong, End };

    explicit LineReader(std::FILE *stream, qsizetype maxLength = 32 * 1024 * 1024);

    // The next line without its line end ("\n" or "\r\n").
    Status next(QByteArray &line);
    qsizetype maxLength() const { return m_maxLength; }

private:
    std::FILE *m_stream;
    qsizetype m_maxLength;
};

} // namespace qor
