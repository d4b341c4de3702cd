#pragma once

#include <QByteArray>

#include <cstdio>

namespace qor {

// Reads lines from a stream without ever holding more than a limit: a line
// longer than that is skipped to its end and reported as too long. A last line
// cut off by the end of the stream is returned as it is. Reads only what is
// there, so that a caller waiting for each answer before it writes the next
// line is served at once.
//
// The stream is read through its file descriptor in blocks of its own, so that
// the reader can tell whether a further line is already waiting.
class LineReader
{
public:
    enum class Status { Line, TooLong, End };

    explicit LineReader(std::FILE *stream, qsizetype maxLength = 32 * 1024 * 1024);

    // The next line without its line end ("\n" or "\r\n").
    Status next(QByteArray &line);
    qsizetype maxLength() const { return m_maxLength; }

    // True when more input is already there: read but not yet returned, or
    // waiting to be read (the end of the input counts as waiting).
    bool hasPending() const;

private:
    bool fill();

    int m_fd;
    qsizetype m_maxLength;
    QByteArray m_buffer;
    qsizetype m_pos = 0;
    qsizetype m_end = 0;
    bool m_atEnd = false;
};

} // namespace qor
