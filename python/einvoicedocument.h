#pragma once

#include <QByteArray>
#include <QStringList>

namespace qor::python {

// What became of an invoice in its JSON shape written as UBL: the document,
// or the messages of the members that could not be taken (and no document).
struct UblDocument
{
    QByteArray document;
    QStringList errors;
};

// The UBL 2.1 document of an invoice given as UTF-8 JSON in the model's shape.
UblDocument ublFromJson(const QByteArray &json);

} // namespace qor::python
