#pragma once

#include "interchange/recordfilefault.h"
#include "interchange/recordlayout.h"
#include "interchange/recordreader.h"

#include <QByteArray>
#include <QIODevice>
#include <QStringList>

#include <functional>

namespace qor {

// Reads a data file of records line by line, in windows-1252, with CRLF or
// LF line ends; a last line without a line end is read like the others. Every
// line gives either a record or a fault with its line number, so no line is
// lost unreported. Only a window of the file is held, so a file larger than
// memory can be read; a line longer than the limit is skipped to its end and
// reported.
class RecordFileReader
{
public:
    static constexpr qsizetype defaultMaxLineLength = qsizetype(1) << 20;

    enum class Status { Record, Fault, End };

    RecordFileReader(QIODevice &device, const RecordLayout &layout, const RegionalSettings &rs,
        qsizetype maxLineLength = defaultMaxLineLength);

    // The next line: a record, a fault, or the end of the file.
    Status next();

    // After Record: the fields, decoded.
    QStringList fields() const;
    // After Fault: what is wrong.
    const RecordFileFault &fault() const { return m_fault; }
    // The line of the file the last record or fault came from, from 1.
    qint64 line() const { return m_line; }

    // Reads the file at path through the platform, handing each record and
    // each fault over as it comes. False when the file cannot be opened.
    struct Summary
    {
        bool opened = false;
        qint64 records = 0;
        qint64 faults = 0;
    };
    static Summary readFile(const QString &path, const RecordLayout &layout,
        const RegionalSettings &rs, const std::function<void(const QStringList &fields)> &onRecord,
        const std::function<void(const RecordFileFault &fault)> &onFault);

    // Windows-1252 bytes as text.
    static QString decode(QByteArrayView bytes);

private:
    enum class LineStatus { Line, TooLong, End, ReadError };
    LineStatus nextLine(QByteArrayView &line);
    bool fill();
    bool skipToLineEnd();
    Status fail(RecordFileFault::Kind kind, qint64 position = 0);

    QIODevice &m_device;
    RecordReader m_reader;
    qsizetype m_maxLineLength;
    QByteArray m_buffer;
    qsizetype m_start = 0;
    bool m_broken = false;
    qint64 m_line = 0;
    QList<QByteArrayView> m_raw;
    RecordFileFault m_fault;
};

} // namespace qor
