"""qorgenlib.einvoice: the invoice model as a dict, written as UBL."""
import copy
import json
import os
import pathlib
import subprocess

import pytest

from qorgenlib import einvoice

INVOICES = pathlib.Path(__file__).parents[2] / "tests" / "einvoice" / "invoices"
RULES = pathlib.Path(os.environ.get("QORGENLIB_EINVOICE_RULES",
                                    pathlib.Path(__file__).parents[3] / "shared" / "einvoice"))


@pytest.fixture(scope="module")
def invoice():
    return json.loads((INVOICES / "01-two-rates.json").read_text(encoding="utf-8"))


def test_written_invoice_passes_the_official_rules(invoice, tmp_path):
    document = einvoice.write(invoice)
    assert einvoice.check(invoice) == []
    path = tmp_path / "invoice.xml"
    path.write_bytes(document)
    run = subprocess.run(["bash", str(RULES / "validate.sh"), str(path)], capture_output=True,
                         text=True, timeout=180)
    assert run.returncode == 0, run.stdout + run.stderr
    assert b"<cbc:ID>F-2026-0001</cbc:ID>" in document


WRONG_MEMBERS = {
    # name: (change, path in the message)
    "quantity that is no decimal": (lambda i: i["lines"][1].update(quantity="twee"), "lines[1]"),
    "date that does not exist": (lambda i: i.update(issueDate="2026-02-30"), "issueDate"),
    "unknown member": (lambda i: i["seller"].update(colour="red"), "seller"),
}


@pytest.mark.parametrize("change,path", WRONG_MEMBERS.values(), ids=WRONG_MEMBERS.keys())
def test_member_that_cannot_be_taken_is_named(invoice, change, path):
    wrong = copy.deepcopy(invoice)
    change(wrong)
    messages = einvoice.check(wrong)
    assert len(messages) == 1 and messages[0].startswith(path)
    with pytest.raises(ValueError, match=path.replace("[", r"\[")):
        einvoice.write(wrong)


NO_INVOICE = {
    "a list": ([], TypeError),
    "not a number": ({"lines": [{"quantity": float("nan")}]}, ValueError),
    "lone surrogate": ({"number": "F\ud800"}, ValueError),
}


@pytest.mark.parametrize("value,error", NO_INVOICE.values(), ids=NO_INVOICE.keys())
def test_what_is_no_invoice_raises(value, error):
    with pytest.raises(error):
        einvoice.write(value)


def test_read_document_is_written_back_the_same():
    example = RULES / "examples" / "peppol-base-example.xml"
    invoice = einvoice.read(example)
    assert einvoice.read(einvoice.write(invoice)) == invoice
    assert einvoice.read(example.read_bytes()) == invoice
    assert einvoice.read_report(example)["differences"] == []


NO_DOCUMENT = {
    "None": (None, TypeError),
    "another XML document": (b"<x/>", ValueError),
    "a DOCTYPE": (b'<!DOCTYPE x [<!ENTITY e "e">]><Invoice/>', ValueError),
    "no XML": (b"\xff\xfe", ValueError),
}


@pytest.mark.parametrize("source,error", NO_DOCUMENT.values(), ids=NO_DOCUMENT.keys())
def test_what_is_no_document_raises(source, error):
    with pytest.raises(error):
        einvoice.read(source)
