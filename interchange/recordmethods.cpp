#include "interchange/recordmethods.h"

#include "interchange/recordlayout.h"
#include "interchange/recordmessages.h"
#include "interchange/recordreader.h"
#include "interchange/recordwriter.h"
#include "lib/frame/catalogue.h"
#include "lib/frame/messageboxlogic.h"
#include "lib/frame/modgenlib.h"
#include "platform/clock.h"
#include "runtime/conversion.h"
#include "runtime/variant.h"

#include <exception>

namespace qor {

using namespace catalogue;

namespace {

constexpr int criticalOK = MessageBoxStyle::Critical | MessageBoxStyle::OK;
constexpr qint16 checksumOrLineNumberFault = -4;
constexpr qint16 delimiterFault = -6;
const QString exportTitle = QStringLiteral("GetExportData");
const QString importTitle = QStringLiteral("GetImportData");
const QString closing = QStringLiteral("  !");

qsizetype upperBound(const QVariant &array)
{
    return array.toList().size() - 1;
}

// "<text><paragraph break><name> = <bound><CR>Data = <bound>"
QString countMismatch(qint32 textId, const QString &paragraphBreak, const QString &name,
    qsizetype bound, qsizetype dataBound)
{
    return loadCatalogueText(textId) + paragraphBreak + name + QStringLiteral(" = ")
        + QString::number(bound) + QChar(13) + QStringLiteral("Data = ")
        + QString::number(dataBound);
}

QVariant exportFault(const QString &prompt)
{
    showMessageBoxE(prompt, criticalOK, exportTitle);
    return emptyVariant();
}

QVariant importFault(const QString &prompt, qint16 code)
{
    showMessageBoxE(prompt, criticalOK, importTitle);
    return integerVariant(code);
}

QString separatorText(const QVariant &separator, const RegionalSettings &rs)
{
    return isNull(separator) ? QString() : toText(separator, rs);
}

// " in InputRecord ''<record>''  !"
QString inInputRecord(QStringView record)
{
    return QStringLiteral(" in InputRecord ''") + record.toString() + QStringLiteral("''")
        + closing;
}

QString checksumPrompt(const QString &record, bool lineNumberIncluded)
{
    const QString where = lineNumberIncluded ? loadCatalogueText(InLine) + record.left(6) + closing
                                             : inInputRecord(record);
    return loadCatalogueText(ChecksumWrong) + where;
}

QString delimiterPrompt(
    qsizetype position, QStringView body, bool lineNumberIncluded, qint32 lineNumber)
{
    const QString where = lineNumberIncluded ? QString::number(position + 7)
            + QStringLiteral(" in Line ") + QString::number(lineNumber) + closing
                                             : QString::number(position) + inInputRecord(body);
    return loadCatalogueText(DelimiterWrong) + where;
}

} // namespace

bool isLeftOut(const QVariant &argument)
{
    return isMissing(argument) || isEmpty(argument);
}

QVariant getExportData(qint32 lineNumber, const QStringList &data, const QVariant &arrFieldLength,
    const QVariant *arrFormat, bool addChecksum, const QVariant &separator,
    const QString &paragraphBreak, qint32 offset)
{
    useLanguage(offset);
    const RegionalSettings rs = Clock::current().regionalSettings();
    if (!isArray(arrFieldLength))
        return exportFault(loadCatalogueText(ExportWidthsNoArray));
    const qsizetype widthsBound = upperBound(arrFieldLength);
    const qsizetype dataBound = data.size() - 1;
    if (widthsBound != dataBound)
        return exportFault(countMismatch(ExportWidthsCount, paragraphBreak,
            QStringLiteral("arrFieldLength"), widthsBound, dataBound));
    RecordLayout layout;
    if (arrFormat) {
        if (!isArray(*arrFormat))
            return exportFault(loadCatalogueText(ExportFormatsNoArray));
        const qsizetype formatsBound = upperBound(*arrFormat);
        if (formatsBound != widthsBound)
            return exportFault(countMismatch(ExportFormatsCount, paragraphBreak,
                QStringLiteral("arrFormat"), formatsBound, dataBound));
        layout.formats = RecordLayout::formatsOf(*arrFormat, rs);
    }
    layout.widths = RecordLayout::widthsOf(arrFieldLength, rs);
    layout.lineNumbers = lineNumber > 0;
    layout.checksum = addChecksum;
    layout.separator = separatorText(separator, rs);
    return RecordWriter(layout, rs).record(lineNumber, data);
}

QVariant getImportData(const QString &inputRecord, const QVariant &arrFieldLength,
    bool lineNumberIncluded, bool checkSumIncluded, qint32 offset)
{
    useLanguage(offset);
    const RegionalSettings rs = Clock::current().regionalSettings();
    if (!isArray(arrFieldLength))
        return importFault(loadCatalogueText(ImportWidthsNoArray), delimiterFault);
    RecordLayout layout;
    layout.lineNumbers = lineNumberIncluded;
    layout.checksum = checkSumIncluded;
    const RecordFrame<QStringView> frame = RecordReader(layout, rs).frame(inputRecord);
    if (frame.fault == RecordFault::Checksum)
        return importFault(
            checksumPrompt(inputRecord, lineNumberIncluded), checksumOrLineNumberFault);
    if (frame.fault == RecordFault::LineNumber)
        return importFault(loadCatalogueText(LineNumberWrong) + inputRecord.left(6) + closing,
            checksumOrLineNumberFault);
    const qint32 lineNumber = lineNumberIncluded ? roundToLong(frame.lineNumber) : 0;

    // A width is read when its field is: a bad one stops the reader there,
    // after the delimiters of the fields in front of it have been checked.
    const QVariantList elements = arrFieldLength.toList();
    QList<qint32> widths;
    std::exception_ptr badWidth;
    try {
        for (const QVariant &element : elements)
            widths.append(RecordLayout::widthOf(element, rs));
    } catch (...) {
        badWidth = std::current_exception();
    }
    QList<QStringView> fields;
    const qsizetype position = RecordReader::fields(frame.body, widths, elements.size(), fields);
    if (position > 0)
        return importFault(
            delimiterPrompt(position, frame.body, lineNumberIncluded, lineNumber), delimiterFault);
    if (badWidth)
        std::rethrow_exception(badWidth);
    QStringList result;
    result.reserve(fields.size() + 1);
    for (const QStringView field : fields)
        result.append(field.toString());
    result.append(QString());
    return result;
}

} // namespace qor
