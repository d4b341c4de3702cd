#include "python/einvoicedocument.h"

#include "einvoice/invoicejson.h"
#include "einvoice/ublreader.h"
#include "einvoice/ublwriter.h"

#include <QJsonDocument>
#include <QJsonParseError>

namespace qor::python {

UblDocument ublFromJson(const QByteArray &json)
{
    UblDocument made;
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        made.errors.append(QStringLiteral("not JSON: %1").arg(parseError.errorString()));
        return made;
    }
    if (!document.isObject()) {
        made.errors.append(QStringLiteral("an invoice is a JSON object"));
        return made;
    }
    const einvoice::InvoiceFromJson read = einvoice::invoiceFromJson(document.object());
    made.errors = read.errors;
    if (made.errors.isEmpty())
        made.document = einvoice::writeUbl(read.invoice);
    return made;
}

ReadDocument jsonFromUbl(const QByteArray &document)
{
    const einvoice::UblReadResult read = einvoice::readUbl(document);
    ReadDocument made;
    made.errors = read.errors;
    made.dropped = read.dropped;
    for (const einvoice::AmountDifference &difference : read.differences)
        made.differences.append({ difference.place, difference.stated, difference.computed });
    if (read.ok())
        made.json
            = QJsonDocument(einvoice::invoiceToJson(read.invoice)).toJson(QJsonDocument::Compact);
    return made;
}

} // namespace qor::python
