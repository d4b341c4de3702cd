#pragma once

#include "interchange/recordlayout.h"

#include <QByteArrayView>
#include <QList>
#include <QStringView>

namespace qor {

// What can be wrong with a record, in the order the reader looks.
enum class RecordFault {
    None,
    Checksum, // no blank and two hexadecimal digits at the end, or a wrong sum
    LineNumber, // the first six characters are no number or no blank follows
    Delimiter, // no blank after a field that is not the last
};

// The frame of a record: its fault, the line number in front and the body
// (the fields without line number and checksum).
template <typename View> struct RecordFrame
{
    RecordFault fault = RecordFault::None;
    double lineNumber = 0;
    View body;
};

// Takes records apart. The reader wants exactly one blank between two
// fields and in front of the checksum, whatever separator the writer used,
// and trims the blanks around every field. Characters beyond the last field
// are not read. The same rules hold for a record in memory (text) and for one
// read from a file (windows-1252 bytes).
class RecordReader
{
public:
    RecordReader(const RecordLayout &layout, const RegionalSettings &rs);

    // Line number and checksum: the record shorter than the checksum (three
    // characters) is a checksum fault, one shorter than the line number and
    // its blank a line-number fault.
    RecordFrame<QStringView> frame(QStringView record) const;
    RecordFrame<QByteArrayView> frame(QByteArrayView record) const;

    // The fields of a body, fields[i] a trimmed view into it, for as many
    // widths as given; fieldCount tells which field is the last. A delimiter
    // fault gives its position, counted from 1 in the body; 0 when none.
    static qsizetype fields(QStringView body, const QList<qint32> &widths, qsizetype fieldCount,
        QList<QStringView> &fields);
    static qsizetype fields(QByteArrayView body, const QList<qint32> &widths, qsizetype fieldCount,
        QList<QByteArrayView> &fields);

    // Frame and fields together: the fault, and the fields read so far.
    RecordFault read(QStringView record, QList<QStringView> &fields) const;
    RecordFault read(QByteArrayView record, QList<QByteArrayView> &fields) const;

    const RecordLayout &layout() const { return m_layout; }

private:
    RecordLayout m_layout;
    RegionalSettings m_settings;
};

} // namespace qor
