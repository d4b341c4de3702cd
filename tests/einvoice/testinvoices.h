#pragma once

// The JSON invoices the e-invoice tests share (QOR_EINVOICE_TEST_DATA is this folder).

#include "einvoice/invoicejson.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

namespace test {

// The file that sets every member of the shape once.
inline const QString completeInvoiceFile
    = QStringLiteral(QOR_EINVOICE_TEST_DATA "/data/complete.json");

// The paths of the test invoices, each one the official rules accept.
inline QStringList testInvoiceFiles()
{
    const QDir folder(QStringLiteral(QOR_EINVOICE_TEST_DATA "/invoices"));
    QStringList files;
    for (const QString &name : folder.entryList({ QStringLiteral("*.json") }, QDir::Files))
        files.append(folder.filePath(name));
    return files;
}

// A JSON file read as the library reads a host's JSON; a file that cannot be
// read gives an error.
inline qor::einvoice::InvoiceFromJson readInvoiceFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return { {}, { path + QStringLiteral(": cannot be read") } };
    return qor::einvoice::invoiceFromJson(QJsonDocument::fromJson(file.readAll()).object());
}

} // namespace test
