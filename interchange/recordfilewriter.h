#pragma once

#include "interchange/recordwriter.h"

#include <QByteArray>
#include <QIODevice>
#include <QStringList>

#include <functional>
#include <span>

namespace qor {

// Writes a data file of records: windows-1252, one record per line, each line
// ended by CRLF, numbered 1, 2, 3 ... when the layout has line numbers (999999
// is followed by 1 again, as the reader takes six digits only). A
// character the code page lacks is written as "?" (and counted so in the
// checksum). Records are buffered and handed to the device in large pieces,
// so a file of any size can be written from a stream of records.
class RecordFileWriter
{
public:
    RecordFileWriter(QIODevice &device, const RecordLayout &layout, const RegionalSettings &rs);
    ~RecordFileWriter();

    // Writes one record. False, writing nothing, when the number of fields
    // differs from the layout's or a field holds a line break or NUL (either
    // would break the file's lines); false too when the device fails.
    bool write(std::span<const QString> fields);
    bool write(const QStringList &fields)
    {
        return write(std::span(fields.cbegin(), fields.cend()));
    }
    // Hands what is buffered to the device.
    bool flush();

    qint64 records() const { return m_records; }
    // Why the last write or flush failed.
    QString error() const { return m_error; }

    // Writes the file at path through the platform from the records next()
    // gives until it returns false. False, with the reason in error, when the
    // file cannot be opened or a record or the device fails.
    static bool writeFile(const QString &path, const RecordLayout &layout,
        const RegionalSettings &rs, const std::function<bool(QStringList &fields)> &next,
        QString *error = nullptr);

private:
    bool encode(QStringView record);

    QIODevice &m_device;
    RecordWriter m_writer;
    bool m_lineNumbers;
    QString m_record;
    QByteArray m_buffer;
    qint64 m_records = 0;
    QString m_error;
};

} // namespace qor
