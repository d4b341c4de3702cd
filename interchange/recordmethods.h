#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

namespace qor {

// The record writer and reader as the library object offers them: the
// arguments are checked one by one, a fault is told through the extended
// message box (critical, the method's name as title) and returned as Empty
// from the writer, -4 (checksum or line number) or -6 (delimiter, widths that
// are no array) from the reader. Widths that are not numbers raise the
// conversion error to the caller.

// arrFormat: nullptr when the caller gave no formats. paragraphBreak is the
// object's vbCr2.
QVariant getExportData(qint32 lineNumber, const QStringList &data, const QVariant &arrFieldLength,
    const QVariant *arrFormat, bool addChecksum, const QVariant &separator,
    const QString &paragraphBreak, qint32 offset);

// The fields as an array of String with one empty element behind the last.
QVariant getImportData(const QString &inputRecord, const QVariant &arrFieldLength,
    bool lineNumberIncluded, bool checkSumIncluded, qint32 offset);

// An optional argument the caller left out, or passed as Empty.
bool isLeftOut(const QVariant &argument);

} // namespace qor
