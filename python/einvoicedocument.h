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

// What became of a UBL document read into the model: the model in its JSON
// shape (UTF-8), or the messages why it could not be read; the elements the
// model does not hold; the amounts the document states otherwise than the
// library computes them (place, stated, computed).
struct ReadDocument
{
    QByteArray json;
    QStringList errors;
    QStringList dropped;
    QList<QStringList> differences;
};

ReadDocument jsonFromUbl(const QByteArray &document);

} // namespace qor::python
