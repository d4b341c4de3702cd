#pragma once

#include <QString>

namespace qor {

// A line of a data file that gave no record, and why.
struct RecordFileFault
{
    enum Kind {
        Checksum, // no blank and two hexadecimal digits at the end, or a wrong sum
        LineNumber, // no six-digit number and blank in front
        Delimiter, // no blank after a field that is not the last
        NulByte, // a NUL byte in the line
        TooLong, // longer than the reader's limit; skipped to its end
        ReadError, // the device failed; nothing after it was read
    };

    qint64 line = 0; // the line of the file, counted from 1
    Kind kind = Checksum;
    qint64 position = 0; // Delimiter and NulByte: the column in the line, from 1

    // "checksum", "line number", "delimiter", "NUL byte", "too long", "read error".
    static QString kindName(Kind kind);
    // What is wrong, e.g. "no blank at column 12 behind a field".
    QString reason() const;
    // The code the record reader returns for this fault: -4 or -6; 0 for
    // faults of the file rather than of a record.
    int recordCode() const;
};

} // namespace qor
