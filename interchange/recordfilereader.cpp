#include "interchange/recordfilereader.h"

#include "platform/clock.h"
#include "platform/filesystem.h"
#include "runtime/codepage.h"

#include <cstring>

namespace qor {

namespace {

constexpr qint64 chunkSize = qint64(1) << 20;

} // namespace

RecordFileReader::RecordFileReader(QIODevice &device, const RecordLayout &layout,
    const RegionalSettings &rs, qsizetype maxLineLength)
    : m_device(device)
    , m_reader(layout, rs)
    , m_maxLineLength(qMax<qsizetype>(maxLineLength, 1))
{ }

QString RecordFileReader::decode(QByteArrayView bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        const auto code = static_cast<unsigned char>(bytes[i]);
        if (code >= 0x80 && code <= 0x9F)
            text[i] = chr(code);
    }
    return text;
}

QStringList RecordFileReader::fields() const
{
    QStringList decoded;
    decoded.reserve(m_raw.size());
    for (const QByteArrayView field : m_raw)
        decoded.append(decode(field));
    return decoded;
}

// Appends the next chunk of the device behind what is left of the buffer.
bool RecordFileReader::fill()
{
    if (m_start > 0) {
        m_buffer.remove(0, m_start);
        m_start = 0;
    }
    const qsizetype kept = m_buffer.size();
    m_buffer.resize(kept + chunkSize);
    const qint64 got = m_device.read(m_buffer.data() + kept, chunkSize);
    m_buffer.resize(kept + qMax<qint64>(got, 0));
    if (got < 0) {
        m_broken = true;
        return false;
    }
    return got > 0;
}

// Drops the rest of an over-long line; false when the device fails.
bool RecordFileReader::skipToLineEnd()
{
    for (;;) {
        const char *begin = m_buffer.constData() + m_start;
        const void *end = std::memchr(begin, '\n', size_t(m_buffer.size() - m_start));
        if (end) {
            m_start = static_cast<const char *>(end) - m_buffer.constData() + 1;
            return true;
        }
        m_buffer.clear();
        m_start = 0;
        if (!fill())
            return !m_broken;
    }
}

RecordFileReader::LineStatus RecordFileReader::nextLine(QByteArrayView &line)
{
    qsizetype scanned = 0; // bytes behind m_start known to hold no line end
    for (;;) {
        const char *data = m_buffer.constData();
        const qsizetype from = m_start + scanned;
        const void *end = std::memchr(data + from, '\n', size_t(m_buffer.size() - from));
        if (end) {
            const qsizetype at = static_cast<const char *>(end) - data;
            qsizetype length = at - m_start;
            if (length > 0 && data[at - 1] == '\r')
                --length;
            line = QByteArrayView(data + m_start, length);
            m_start = at + 1;
            return length > m_maxLineLength ? LineStatus::TooLong : LineStatus::Line;
        }
        scanned = m_buffer.size() - m_start;
        if (scanned > m_maxLineLength + 1)
            return skipToLineEnd() ? LineStatus::TooLong : LineStatus::ReadError;
        if (!fill()) {
            if (m_broken)
                return LineStatus::ReadError;
            if (m_start >= m_buffer.size())
                return LineStatus::End;
            // The last line has no line end.
            line = QByteArrayView(m_buffer.constData() + m_start, m_buffer.size() - m_start);
            m_start = m_buffer.size();
            return line.size() > m_maxLineLength ? LineStatus::TooLong : LineStatus::Line;
        }
    }
}

RecordFileReader::Status RecordFileReader::fail(RecordFileFault::Kind kind, qint64 position)
{
    m_raw.clear();
    m_fault = { m_line, kind, position };
    return Status::Fault;
}

RecordFileReader::Status RecordFileReader::next()
{
    if (m_broken)
        return Status::End;
    QByteArrayView line;
    const LineStatus status = nextLine(line);
    if (status == LineStatus::End)
        return Status::End;
    ++m_line;
    if (status == LineStatus::ReadError)
        return fail(RecordFileFault::ReadError);
    if (status == LineStatus::TooLong)
        return fail(RecordFileFault::TooLong);
    if (const void *nul = std::memchr(line.data(), 0, size_t(line.size())))
        return fail(RecordFileFault::NulByte, static_cast<const char *>(nul) - line.data() + 1);

    const RecordFrame<QByteArrayView> frame = m_reader.frame(line);
    if (frame.fault == RecordFault::Checksum)
        return fail(RecordFileFault::Checksum);
    if (frame.fault == RecordFault::LineNumber)
        return fail(RecordFileFault::LineNumber);
    const QList<qint32> &widths = m_reader.layout().widths;
    const qsizetype position = RecordReader::fields(frame.body, widths, widths.size(), m_raw);
    if (position > 0)
        return fail(RecordFileFault::Delimiter, position + (frame.body.data() - line.data()));
    return Status::Record;
}

RecordFileReader::Summary RecordFileReader::readFile(const QString &path,
    const RecordLayout &layout, const RegionalSettings &rs,
    const std::function<void(const QStringList &fields)> &onRecord,
    const std::function<void(const RecordFileFault &fault)> &onFault)
{
    Summary summary;
    const std::unique_ptr<QIODevice> file
        = FileSystem::current().openFile(path, QIODevice::ReadOnly);
    if (!file)
        return summary;
    summary.opened = true;
    RecordFileReader reader(*file, layout, rs);
    for (;;) {
        const Status status = reader.next();
        if (status == Status::End)
            break;
        if (status == Status::Record) {
            ++summary.records;
            if (onRecord)
                onRecord(reader.fields());
        } else {
            ++summary.faults;
            if (onFault)
                onFault(reader.fault());
        }
    }
    return summary;
}

} // namespace qor
