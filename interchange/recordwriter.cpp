#include "interchange/recordwriter.h"

#include "interchange/recordchecksum.h"
#include "runtime/conversion.h"
#include "runtime/format.h"
#include "runtime/runtimeerror.h"

namespace qor {

namespace {

constexpr QLatin1Char blank(' ');

void appendLineNumber(qint64 lineNumber, QString &out)
{
    char digits[24];
    int n = 0;
    for (qint64 rest = lineNumber; rest > 0; rest /= 10)
        digits[n++] = char('0' + rest % 10);
    for (int pad = n; pad < 6; ++pad)
        out.append(QLatin1Char('0'));
    while (n > 0)
        out.append(QLatin1Char(digits[--n]));
    out.append(blank);
}

} // namespace

RecordWriter::RecordWriter(const RecordLayout &layout, const RegionalSettings &rs)
    : m_layout(layout)
    , m_settings(rs)
{
    qint64 length = 7 + 3 + qint64(layout.separator.size()) * (layout.widths.size() + 1);
    for (const qint32 width : layout.widths)
        length += width;
    if (length > RecordLayout::maxRecordLength)
        throw RuntimeError::outOfMemory();
    m_capacity = qsizetype(length + 16);
}

void RecordWriter::appendField(qsizetype index, const QString &value, QString &out) const
{
    const qsizetype width = m_layout.widths[index];
    const QString &mask = index < m_layout.formats.size() ? m_layout.formats[index] : QString();
    if (!mask.isEmpty() && isNumeric(value, m_settings)) {
        const QString shown = format(value, mask, m_settings);
        if (shown.size() >= width) {
            out.append(QStringView(shown).right(width));
        } else {
            out.resize(out.size() + width - shown.size(), blank);
            out.append(shown);
        }
        return;
    }
    if (value.size() >= width) {
        out.append(QStringView(value).left(width));
    } else {
        out.append(value);
        out.resize(out.size() + width - value.size(), blank);
    }
}

void RecordWriter::append(qint64 lineNumber, std::span<const QString> fields, QString &out) const
{
    if (qsizetype(fields.size()) != m_layout.widths.size())
        throw RuntimeError::subscriptOutOfRange();
    const qsizetype start = out.size();
    out.reserve(start + m_capacity);
    if (lineNumber > 0)
        appendLineNumber(lineNumber, out);
    const qsizetype last = qsizetype(fields.size()) - 1;
    for (qsizetype i = 0; i <= last; ++i) {
        appendField(i, fields[size_t(i)], out);
        if (i != last)
            out.append(m_layout.separator);
    }
    if (m_layout.checksum) {
        const quint8 sum = RecordChecksum::of(QStringView(out).mid(start));
        out.append(m_layout.separator);
        out.append(RecordChecksum::digits(sum));
    }
}

QString RecordWriter::record(qint64 lineNumber, std::span<const QString> fields) const
{
    QString out;
    append(lineNumber, fields, out);
    return out;
}

} // namespace qor
