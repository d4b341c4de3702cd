#pragma once

#include "einvoice/ublreader.h"
#include "einvoice/ublwriter.h"

namespace qor::einvoice {

// The e-invoice reader and writer use a small XML cursor and builder of
// their own for speed. These are the same reading and writing done by
// QXmlStreamReader and QXmlStreamWriter alone: the references the tests and
// the fuzz target compare them with.

/// readUbl() by QXmlStreamReader alone. readUbl() itself comes here for
/// every document its cursor does not read (see XmlCursor).
QORGENLIB_EXPORT UblReadResult readUblWithQtReader(const QByteArray &document);

/// writeUbl() by QXmlStreamWriter: the very same bytes.
QORGENLIB_EXPORT QByteArray writeUblWithQtWriter(
    const Invoice &invoice, UblLayout layout = UblLayout::Compact);

} // namespace qor::einvoice
