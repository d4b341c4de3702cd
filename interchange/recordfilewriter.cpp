#include "interchange/recordfilewriter.h"

#include "platform/clock.h"
#include "platform/filesystem.h"
#include "runtime/codepage.h"

#include <cstring>

namespace qor {

namespace {

constexpr qsizetype bufferLimit = qsizetype(1) << 20;
constexpr qint64 maxLineNumber = 999999;

bool breaksLine(char16_t unit)
{
    return unit == u'\n' || unit == u'\r' || unit == 0;
}

bool isSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDFFF;
}

// A character outside the basic plane becomes one "?", as on disk, so that
// the widths on disk are the widths written.
QString withoutPairs(const QString &field)
{
    QString out;
    out.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        const QChar c = field.at(i);
        if (c.isHighSurrogate() && i + 1 < field.size() && field.at(i + 1).isLowSurrogate())
            ++i;
        out.append(isSurrogate(c.unicode()) ? QLatin1Char('?') : c);
    }
    return out;
}

} // namespace

RecordFileWriter::RecordFileWriter(
    QIODevice &device, const RecordLayout &layout, const RegionalSettings &rs)
    : m_device(device)
    , m_writer(layout, rs)
    , m_lineNumbers(layout.lineNumbers)
{
    m_buffer.reserve(bufferLimit + 4096);
}

RecordFileWriter::~RecordFileWriter()
{
    flush();
}

// Appends the record and its line end to the buffer; false when it holds a
// line break or a character outside the basic plane.
bool RecordFileWriter::encode(QStringView record)
{
    constexpr quint64 beyondAscii = 0xFF80FF80FF80FF80ull;
    constexpr quint64 blanks = 0x0020002000200020ull;
    constexpr quint64 signs = 0x8000800080008000ull;
    const qsizetype start = m_buffer.size();
    m_buffer.resize(start + record.size() + 2);
    char *out = m_buffer.data() + start;
    const char16_t *units = record.utf16();
    const qsizetype n = record.size();
    qsizetype i = 0;
    // Four printable ASCII characters at a time, the usual case.
    for (; i + 4 <= n; i += 4) {
        quint64 word;
        std::memcpy(&word, units + i, 8);
        if ((word & beyondAscii) || ((word - blanks) & ~word & signs))
            break;
        out[0] = char(word);
        out[1] = char(word >> 16);
        out[2] = char(word >> 32);
        out[3] = char(word >> 48);
        out += 4;
    }
    for (; i < n; ++i) {
        const char16_t unit = units[i];
        if (breaksLine(unit) || isSurrogate(unit)) {
            m_buffer.resize(start);
            return false;
        }
        *out++
            = unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF) ? char(unit) : char(asc(QChar(unit)));
    }
    *out++ = '\r';
    *out++ = '\n';
    return true;
}

bool RecordFileWriter::write(std::span<const QString> fields)
{
    m_error.clear();
    if (qsizetype(fields.size()) != m_writer.layout().widths.size()) {
        m_error = QStringLiteral("%1 fields where the layout has %2")
                      .arg(fields.size())
                      .arg(m_writer.layout().widths.size());
        return false;
    }
    // Six digits at most, so that the reader takes every line: 999999 is
    // followed by 1 again.
    const qint64 lineNumber = m_lineNumbers ? m_records % maxLineNumber + 1 : 0;
    m_record.clear();
    m_writer.append(lineNumber, fields, m_record);
    if (!encode(m_record)) {
        for (const QString &field : fields) {
            for (const QChar c : field) {
                if (breaksLine(c.unicode())) {
                    m_error = QStringLiteral("a field holds a line break or NUL");
                    return false;
                }
            }
        }
        QStringList plain;
        for (const QString &field : fields)
            plain.append(withoutPairs(field));
        m_record.clear();
        m_writer.append(lineNumber, plain, m_record);
        if (!encode(m_record)) {
            m_error = QStringLiteral(
                "the separator holds a line break, NUL or a character beyond the code page");
            return false;
        }
    }
    ++m_records;
    return m_buffer.size() < bufferLimit || flush();
}

bool RecordFileWriter::flush()
{
    if (m_buffer.isEmpty())
        return true;
    const qint64 written = m_device.write(m_buffer);
    const bool ok = written == m_buffer.size();
    m_buffer.clear();
    if (!ok)
        m_error = QStringLiteral("the file could not be written: %1").arg(m_device.errorString());
    return ok;
}

bool RecordFileWriter::writeFile(const QString &path, const RecordLayout &layout,
    const RegionalSettings &rs, const std::function<bool(QStringList &fields)> &next,
    QString *error)
{
    auto fail = [error](const QString &why) {
        if (error)
            *error = why;
        return false;
    };
    const std::unique_ptr<QIODevice> file
        = FileSystem::current().openFile(path, QIODevice::WriteOnly | QIODevice::Truncate);
    if (!file)
        return fail(QStringLiteral("cannot open %1 for writing").arg(path));
    RecordFileWriter writer(*file, layout, rs);
    QStringList fields;
    while (next(fields)) {
        if (!writer.write(fields))
            return fail(
                QStringLiteral("record %1: %2").arg(writer.records() + 1).arg(writer.error()));
        fields.clear();
    }
    if (!writer.flush())
        return fail(writer.error());
    return true;
}

} // namespace qor
