"""E-invoices: the invoice model as a dict, in the JSON shape of `qorgen einvoice`.

    from qorgenlib import einvoice
    invoice = einvoice.read("invoice.xml") # or the document's bytes
    document = einvoice.write(invoice)     # bytes: UBL 2.1 (Peppol BIS Billing 3.0), UTF-8
    einvoice.check(invoice)                # [] or the members that cannot be taken

Amounts, quantities and rates are strings ("12.50") so that no digit is lost
(numbers are taken too); dates are "YYYY-MM-DD"; see docs/python.md.
"""

import json
import os

from . import _core

__all__ = ["read", "read_report", "write", "check"]


def _ubl(invoice):
    if not isinstance(invoice, dict):
        raise TypeError("an invoice is a dict, not a %s" % type(invoice).__name__)
    try:
        text = json.dumps(invoice, ensure_ascii=False, allow_nan=False)
    except (TypeError, ValueError) as error:
        raise ValueError("the invoice is no JSON: %s" % error) from None
    return _core.einvoice_ubl(text.encode("utf-8", "surrogatepass"))


def check(invoice):
    """The messages of the members the model cannot take, each naming its path
    ("lines[2].quantity: ..."); [] when the whole invoice was taken."""
    return _ubl(invoice)[1]


def write(invoice):
    """The UBL document of the invoice (bytes). Raises ValueError naming every
    member the model cannot take. The model is written as it is, even when it
    breaks the rules of the norm, so that such a document can be shown to the
    official validation."""
    document, errors = _ubl(invoice)
    if errors:
        raise ValueError("; ".join(errors))
    return document


def _document_of(source):
    if isinstance(source, (bytes, bytearray, memoryview)):
        return bytes(source)
    if isinstance(source, (str, os.PathLike)):
        with open(source, "rb") as file:
            return file.read()
    raise TypeError("a document is bytes or a path, not a %s" % type(source).__name__)


def read_report(source):
    """What reading a UBL document (bytes, or the path of a file) gave:
    {"invoice": dict, "dropped": [elements the model does not hold],
    "differences": [(place, stated, computed), ...]}. Raises ValueError naming
    why the document cannot be read."""
    model, errors, dropped, differences = _core.einvoice_read(_document_of(source))
    if errors:
        raise ValueError("; ".join(errors))
    return {"invoice": json.loads(model), "dropped": dropped, "differences": differences}


def read(source):
    """The invoice of a UBL 2.1 Invoice or CreditNote (bytes, or the path of a
    file) as a dict. Raises ValueError naming why the document cannot be read."""
    return read_report(source)["invoice"]
