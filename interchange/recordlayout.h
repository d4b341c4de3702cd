#pragma once

#include "runtime/regionalsettings.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace qor {

// How the records of one data file are laid out: the field widths, the
// optional format of each field, whether a line number leads and a checksum
// ends each record, and what the writer puts between two fields.
struct RecordLayout
{
    QList<qint32> widths;
    // Empty, or one mask per field; an empty mask writes the field as text.
    QStringList formats;
    bool lineNumbers = true;
    bool checksum = true;
    // The reader always expects one blank here, whatever the writer used.
    QString separator = QStringLiteral(" ");

    // The longest record the writer builds; a layout beyond it is refused as
    // Out of memory, like a string the classic runtime could not allocate.
    static constexpr qint64 maxRecordLength = qint64(1) << 28;

    // The widths of an array of numbers as CLng reads them: a text that is
    // not numeric raises 13, Null 94, a value beyond 32 bits 6 and a negative
    // width 5 (as Mid and Space refuse it). Not an array: 13.
    static QList<qint32> widthsOf(const QVariant &array, const RegionalSettings &rs);
    // One width, with the errors above.
    static qint32 widthOf(const QVariant &element, const RegionalSettings &rs);
    // The masks of an array of formats: Empty and Null count as no mask,
    // anything else through CStr. Not an array: 13.
    static QStringList formatsOf(const QVariant &array, const RegionalSettings &rs);
};

} // namespace qor
