#pragma once

#include "interchange/recordlayout.h"

#include <QString>

#include <span>

namespace qor {

// Builds fixed-field records: an optional six-digit line number and a blank,
// each field padded or cut to its width, the separator between two fields
// and, when asked, the separator and two checksum digits.
//
// A field whose mask is not empty and whose value is numeric is formatted
// with the mask under the regional settings and aligned right: blanks in
// front, and a longer text keeps only its last characters ("7.00" in three
// places is ".00"). Every other field is aligned left: blanks behind, and a
// longer text keeps its first characters.
class RecordWriter
{
public:
    // A layout whose record would exceed RecordLayout::maxRecordLength
    // raises RuntimeError 7.
    RecordWriter(const RecordLayout &layout, const RegionalSettings &rs);

    // Appends one record to out. A line number of 0 or below writes no
    // prefix; above 999999 it takes seven digits or more. As many fields as
    // widths, or RuntimeError 9.
    void append(qint64 lineNumber, std::span<const QString> fields, QString &out) const;
    QString record(qint64 lineNumber, std::span<const QString> fields) const;

    const RecordLayout &layout() const { return m_layout; }

private:
    QChar *putField(qsizetype index, const QString &value, QChar *out) const;

    RecordLayout m_layout;
    RegionalSettings m_settings;
    qsizetype m_bodyLength = 0; // the fields and the separators between them
};

} // namespace qor
