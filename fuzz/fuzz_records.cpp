// Record import and export: records of any text taken apart and built with
// any field widths and masks, through the library object and through the
// data-file reader and writer.
#include "fuzz/fuzzinput.h"
#include "interchange/recordfilereader.h"
#include "interchange/recordfilewriter.h"
#include "lib/clsqorgenlib.h"
#include "runtime/runtimeerror.h"
#include "runtime/variant.h"

#include <QBuffer>

namespace {

// A width as a host may pass it: mostly small numbers, now and then a
// negative one, a large one, numeric text or a word.
QVariant width(uint8_t code)
{
    switch (code >> 5) {
    case 0: return QString::number(code & 31);
    case 1: return -int(code & 31);
    case 2: return code == 64 ? QVariant(QStringLiteral("x")) : QVariant(qor::nullVariant());
    default: return int(code & 63);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qor::fuzz::FuzzInput input(data, size);
    const qor::RegionalSettings rs = qor::fuzz::fuzzMachine().regionalSettings();
    const uint8_t which = input.byte();
    const bool lineNumbers = input.flag();
    const bool checksum = input.flag();
    const int count = input.byte() % 9;
    QVariantList widths;
    for (int i = 0; i < count; ++i)
        widths.append(width(input.byte()));
    QVariant arrWidths = widths;
    clsqorGenLib lib;
    try {
        switch (which % 4) {
        case 0:
            lib.GetImportData(input.rest(), arrWidths, lineNumbers, checksum);
            break;
        case 1: {
            qint32 lineNumber = qint32(input.byte()) * 4099 - 1000;
            const QStringList parts = input.parts(2 * count + 1);
            QStringList fields = parts.mid(0, count);
            QVariantList masks;
            for (const QString &mask : parts.mid(count, count))
                masks.append(mask);
            QVariant formats = masks;
            lib.GetExportData(lineNumber, fields, arrWidths, formats, checksum, parts.value(2 * count));
            break;
        }
        case 2: {
            qor::RecordLayout layout;
            layout.widths = qor::RecordLayout::widthsOf(arrWidths, rs);
            layout.lineNumbers = lineNumbers;
            layout.checksum = checksum;
            QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::ReadOnly);
            qor::RecordFileReader reader(buffer, layout, rs, 256);
            while (reader.next() != qor::RecordFileReader::Status::End)
                reader.fields();
            break;
        }
        default: {
            qor::RecordLayout layout;
            layout.widths = qor::RecordLayout::widthsOf(arrWidths, rs);
            layout.lineNumbers = lineNumbers;
            layout.checksum = checksum;
            const QStringList parts = input.parts(64);
            QByteArray bytes;
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::WriteOnly);
            {
                qor::RecordFileWriter writer(buffer, layout, rs);
                for (qsizetype i = 0; i + layout.widths.size() <= parts.size() && i < 64;
                     i += qMax<qsizetype>(layout.widths.size(), 1))
                    writer.write(parts.mid(i, layout.widths.size()));
            }
            // The written file is read back.
            buffer.close();
            buffer.open(QIODevice::ReadOnly);
            qor::RecordFileReader reader(buffer, layout, rs);
            while (reader.next() != qor::RecordFileReader::Status::End)
                reader.fields();
            break;
        }
        }
    } catch (const qor::RuntimeError &) {
        // Widths that are no numbers raise the conversion error to the caller.
    }
    return 0;
}
