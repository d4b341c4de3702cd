#pragma once

#include "einvoice/ublreader.h"

namespace qor::einvoice {

/// readUbl() done by QXmlStreamReader alone. readUbl() reads the plain XML
/// of e-invoices with its own small reader (XmlCursor) and comes here for
/// every other document; this is the reference the tests compare it with.
QORGENLIB_EXPORT UblReadResult readUblWithQtReader(const QByteArray &document);

} // namespace qor::einvoice
