#include "interchange/recordreader.h"

#include "input/amounts.h"
#include "interchange/recordchecksum.h"
#include "runtime/codepage.h"
#include "runtime/conversion.h"

namespace qor {

namespace {

constexpr qsizetype lineNumberWidth = 6;
constexpr qsizetype checksumPiece = 3; // the blank and two digits

char16_t unitAt(QStringView text, qsizetype i)
{
    return text[i].unicode();
}

char16_t unitAt(QByteArrayView bytes, qsizetype i)
{
    return char16_t(static_cast<unsigned char>(bytes[i]));
}

QString textOf(QStringView text)
{
    return text.toString();
}

QString textOf(QByteArrayView bytes)
{
    return fromCp1252(bytes.toByteArray());
}

// The leading number as IsNumeric and CGetal read it; six digits are read at once.
bool readLineNumber(auto digits, const RegionalSettings &rs, double &value)
{
    bool plain = digits.size() == lineNumberWidth;
    qint32 number = 0;
    for (qsizetype i = 0; plain && i < digits.size(); ++i) {
        const char16_t c = unitAt(digits, i);
        plain = c >= u'0' && c <= u'9';
        number = number * 10 + (c - u'0');
    }
    if (plain) {
        value = number;
        return true;
    }
    const QString text = textOf(digits);
    if (!isNumeric(text, rs))
        return false;
    value = cGetalValue(text, rs);
    return true;
}

template <typename View> View trimmed(View field)
{
    qsizetype begin = 0;
    qsizetype end = field.size();
    while (begin < end && unitAt(field, begin) == u' ')
        ++begin;
    while (end > begin && unitAt(field, end - 1) == u' ')
        --end;
    return field.sliced(begin, end - begin);
}

template <typename View>
RecordFrame<View> frameOf(View record, const RecordLayout &layout, const RegionalSettings &rs)
{
    RecordFrame<View> frame;
    frame.body = record;
    if (layout.checksum) {
        const qsizetype n = record.size();
        if (n < checksumPiece) {
            frame.fault = RecordFault::Checksum;
            return frame;
        }
        const auto expected = RecordChecksum::read(unitAt(record, n - 2), unitAt(record, n - 1));
        frame.body = record.first(n - checksumPiece);
        if (!expected || unitAt(record, n - checksumPiece) != u' '
            || RecordChecksum::of(frame.body) != *expected) {
            frame.fault = RecordFault::Checksum;
            return frame;
        }
    }
    if (layout.lineNumbers) {
        const View body = frame.body;
        const View digits = body.first(qMin(body.size(), lineNumberWidth));
        if (body.size() <= lineNumberWidth || unitAt(body, lineNumberWidth) != u' '
            || !readLineNumber(digits, rs, frame.lineNumber)) {
            frame.fault = RecordFault::LineNumber;
            return frame;
        }
        frame.body = body.sliced(lineNumberWidth + 1);
    }
    return frame;
}

template <typename View>
qsizetype fieldsOf(
    View body, const QList<qint32> &widths, qsizetype fieldCount, QList<View> &fields)
{
    fields.clear();
    const qint64 size = body.size();
    qint64 p = 0;
    for (qsizetype i = 0; i < widths.size(); ++i) {
        const qint64 width = widths[i];
        const qint64 start = qMin(p, size);
        fields.append(trimmed(body.sliced(start, qMin(width, size - start))));
        if (i == fieldCount - 1)
            break;
        const qint64 q = p + width + 1;
        if (q > size || unitAt(body, q - 1) != u' ')
            return qsizetype(q);
        p = q;
    }
    return 0;
}

template <typename View>
RecordFault readOf(
    View record, const RecordLayout &layout, const RegionalSettings &rs, QList<View> &fields)
{
    const RecordFrame<View> frame = frameOf(record, layout, rs);
    if (frame.fault != RecordFault::None) {
        fields.clear();
        return frame.fault;
    }
    const qsizetype count = layout.widths.size();
    return fieldsOf(frame.body, layout.widths, count, fields) ? RecordFault::Delimiter
                                                              : RecordFault::None;
}

} // namespace

RecordReader::RecordReader(const RecordLayout &layout, const RegionalSettings &rs)
    : m_layout(layout)
    , m_settings(rs)
{ }

RecordFrame<QStringView> RecordReader::frame(QStringView record) const
{
    return frameOf(record, m_layout, m_settings);
}

RecordFrame<QByteArrayView> RecordReader::frame(QByteArrayView record) const
{
    return frameOf(record, m_layout, m_settings);
}

qsizetype RecordReader::fields(
    QStringView body, const QList<qint32> &widths, qsizetype fieldCount, QList<QStringView> &fields)
{
    return fieldsOf(body, widths, fieldCount, fields);
}

qsizetype RecordReader::fields(QByteArrayView body, const QList<qint32> &widths,
    qsizetype fieldCount, QList<QByteArrayView> &fields)
{
    return fieldsOf(body, widths, fieldCount, fields);
}

RecordFault RecordReader::read(QStringView record, QList<QStringView> &fields) const
{
    return readOf(record, m_layout, m_settings, fields);
}

RecordFault RecordReader::read(QByteArrayView record, QList<QByteArrayView> &fields) const
{
    return readOf(record, m_layout, m_settings, fields);
}

} // namespace qor
