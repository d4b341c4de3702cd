#include "interchange/recordwriter.h"

#include "interchange/recordchecksum.h"
#include "runtime/conversion.h"
#include "runtime/format.h"
#include "runtime/runtimeerror.h"

namespace qor {

namespace {

constexpr char16_t blank = u' ';

// The decimal digits of a positive number, the last digit first.
int reversedDigits(qint64 number, char *digits)
{
    int n = 0;
    for (; number > 0; number /= 10)
        digits[n++] = char('0' + number % 10);
    return n;
}

// Fields are short: a plain loop beats a call of memmove.
QChar *put(QChar *out, QStringView text)
{
    const QChar *in = text.data();
    for (qsizetype i = 0, n = text.size(); i < n; ++i)
        out[i] = in[i];
    return out + text.size();
}

QChar *blanks(QChar *out, qsizetype count)
{
    std::fill(out, out + count, QChar(blank));
    return out + count;
}

} // namespace

RecordWriter::RecordWriter(const RecordLayout &layout, const RegionalSettings &rs)
    : m_layout(layout)
    , m_settings(rs)
{
    const qint64 separators = layout.widths.isEmpty() ? 0 : layout.widths.size() - 1;
    qint64 body = qint64(layout.separator.size()) * separators;
    for (const qint32 width : layout.widths)
        body += width;
    if (body + 32 + layout.separator.size() > RecordLayout::maxRecordLength)
        throw RuntimeError::outOfMemory();
    m_bodyLength = qsizetype(body);
}

QChar *RecordWriter::putField(qsizetype index, const QString &value, QChar *out) const
{
    const qsizetype width = m_layout.widths[index];
    if (index < m_layout.formats.size() && !m_layout.formats[index].isEmpty()
        && isNumeric(value, m_settings)) {
        const QString shown = format(value, m_layout.formats[index], m_settings);
        if (shown.size() >= width)
            return put(out, QStringView(shown).right(width));
        return put(blanks(out, width - shown.size()), shown);
    }
    if (value.size() >= width)
        return put(out, QStringView(value).left(width));
    return blanks(put(out, value), width - value.size());
}

void RecordWriter::append(qint64 lineNumber, std::span<const QString> fields, QString &out) const
{
    if (qsizetype(fields.size()) != m_layout.widths.size())
        throw RuntimeError::subscriptOutOfRange();
    char digits[24];
    const int digitCount = lineNumber > 0 ? reversedDigits(lineNumber, digits) : 0;
    const qsizetype prefix = digitCount > 0 ? qMax(digitCount, 6) + 1 : 0;
    const qsizetype suffix = m_layout.checksum ? m_layout.separator.size() + 2 : 0;
    const qsizetype start = out.size();
    const qsizetype length = prefix + m_bodyLength + suffix;
    if (out.capacity() - start < length)
        out.reserve(qMax(start + length, out.capacity() * 2));
    out.resize(start + length);

    QChar *const begin = out.data() + start;
    QChar *p = begin;
    if (prefix > 0) {
        p = std::fill_n(p, prefix - 1 - digitCount, QChar(u'0'));
        for (int d = digitCount; d > 0;)
            *p++ = QLatin1Char(digits[--d]);
        *p++ = QChar(blank);
    }
    const qsizetype last = qsizetype(fields.size()) - 1;
    for (qsizetype i = 0; i <= last; ++i) {
        p = putField(i, fields[size_t(i)], p);
        if (i != last)
            p = put(p, m_layout.separator);
    }
    if (m_layout.checksum) {
        const quint8 sum = RecordChecksum::of(QStringView(begin, p));
        static const char hex[] = "0123456789ABCDEF";
        p = put(p, m_layout.separator);
        *p++ = QLatin1Char(hex[sum >> 4]);
        *p++ = QLatin1Char(hex[sum & 0xF]);
    }
}

QString RecordWriter::record(qint64 lineNumber, std::span<const QString> fields) const
{
    QString out;
    append(lineNumber, fields, out);
    return out;
}

} // namespace qor
