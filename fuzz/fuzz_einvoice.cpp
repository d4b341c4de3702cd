// The e-invoice readers on any bytes. A UBL document is read by the
// library's own XML cursor and by QXmlStreamReader, which must agree to the
// last message; what reads without error must be written by the library's
// own XML builder exactly as by QXmlStreamWriter, and read back without
// error. The first byte chooses between UBL and the JSON shape.
#include "einvoice/invoicejson.h"
#include "einvoice/rulecheck.h"
#include "einvoice/ublreference.h"
#include "einvoice/ublwriter.h"

#include <QJsonDocument>

#include <cstdlib>

using namespace qor::einvoice;

namespace {

QByteArray asText(const UblReadResult &read)
{
    QStringList lines = read.errors + read.dropped;
    for (const AmountDifference &difference : read.differences)
        lines << difference.place + u' ' + difference.stated + u' ' + difference.computed;
    return QJsonDocument(invoiceToJson(read.invoice)).toJson() + lines.join(u'\n').toUtf8();
}

void writesAndReadsBack(const Invoice &invoice)
{
    checkRules(invoice);
    const QByteArray written = writeUbl(invoice);
    if (written != writeUblWithQtWriter(invoice))
        std::abort(); // the builder and QXmlStreamWriter wrote different bytes
    if (!readUbl(written).ok())
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray rest(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1));
    if (data[0] % 4 == 0) {
        const QJsonDocument json = QJsonDocument::fromJson(rest);
        if (json.isObject())
            writesAndReadsBack(invoiceFromJson(json.object()).invoice);
        return 0;
    }
    const UblReadResult read = readUbl(rest);
    if (asText(read) != asText(readUblWithQtReader(rest)))
        std::abort(); // the cursor and QXmlStreamReader read the document differently
    if (read.ok())
        writesAndReadsBack(read.invoice);
    return 0;
}
