"""The plain number functions: verdicts, compact and printed forms, bad input."""
import pytest

import qorgenlib
from qorgenlib import iban, iso11649
from qorgenlib.be import iban as beiban
from qorgenlib.be import nn, ogm, vat

OK = None  # the verdict of a valid number


def verdict(module, number):
    try:
        module.validate(number)
        return OK
    except qorgenlib.ValidationError as error:
        return type(error)


VERDICTS = [
    # module, number, verdict
    (vat, "BE 0403.170.701", OK),
    (vat, "403170701", OK),                    # nine digits take a leading zero
    (vat, "1000000021", OK),                   # newer numbers start with 1
    (vat, "0403170702", qorgenlib.InvalidChecksum),
    (vat, "0", qorgenlib.InvalidFormat),       # "0" means no number to the classic check
    (vat, "0000000000", qorgenlib.InvalidFormat),
    (vat, "NL0403170701", qorgenlib.InvalidFormat),
    (vat, "04031707011", qorgenlib.InvalidLength),
    (vat, "1", qorgenlib.InvalidLength),
    (nn, "85.07.30-033.28", OK),
    (nn, "17073003384", OK),                   # born from 2000: a 2 in front of the sum
    (nn, "85073003384", qorgenlib.InvalidChecksum),  # the same digits before 2000
    (nn, "99010100147", qorgenlib.InvalidChecksum),  # from 2000 on, but 2099 is to come
    (nn, "8507300332", qorgenlib.InvalidLength),  # the classic check does not count digits
    (nn, "00000000000", qorgenlib.InvalidFormat),
    (nn, "85073003328x", qorgenlib.InvalidFormat),
    (ogm, "+++090/9337/55493+++", OK),
    (ogm, "000/0000/97097", OK),               # remainder 0 takes 97
    (ogm, "000/0000/97000", qorgenlib.InvalidChecksum),
    (ogm, "999/9999/99990", qorgenlib.InvalidChecksum),  # beyond 32 bits: no Overflow here
    (ogm, "090/9337/5549", qorgenlib.InvalidLength),
    (ogm, "090/9337/5549a", qorgenlib.InvalidFormat),
    (iban, "NL91 ABNA 0417 1643 00", OK),
    (iban, "BE98 0961 2345 6768", qorgenlib.InvalidChecksum),  # the account's own check
    (iban, "BE68 5390 0754 7034", qorgenlib.InvalidComponent),  # no bank has code 539
    (beiban, "NL91ABNA0417164300", qorgenlib.InvalidComponent),
    (beiban, "be71 0961 2345 6769", OK),
    (iso11649, "RF18 5390 0754 7034", OK),
    (iso11649, "RF18 5390 0754 7035", qorgenlib.InvalidChecksum),
]


@pytest.mark.parametrize("module,number,expected", VERDICTS,
                         ids=[f"{m.__name__.split('.')[-1]}:{n}" for m, n, _ in VERDICTS])
def test_verdict(module, number, expected):
    assert verdict(module, number) is expected
    assert module.is_valid(number) is (expected is OK)


FORMS = [
    # module, typed, compact, printed
    (vat, " be 0403/170-701 ", "0403170701", "0403.170.701"),
    (vat, "０４０３１７０７０１", "0403170701", "0403.170.701"),  # full-width digits
    (vat, "0403\u00a0170701", "0403170701", "0403.170.701"),  # no-break space
    (nn, "850730 033 28", "85073003328", "85.07.30-033.28"),
    (nn, "be85/07/30", "be85/07/30", "be.85./0-7/3.0"),     # nn keeps letters and slashes
    (ogm, "+++090/9337/55493+++", "090933755493", "+++090/9337/55493+++"),
    (iban, " be71-0961.2345 6769\t", "BE71096123456769", "BE71 0961 2345 6769"),
    (iso11649, "rf18:5390,0754/7034", "RF18539007547034", "RF18 5390 0754 7034"),
]


@pytest.mark.parametrize("module,typed,compact,printed", FORMS,
                         ids=[f"{m.__name__.split('.')[-1]}:{t!r}" for m, t, _, _ in FORMS])
def test_compact_and_format(module, typed, compact, printed):
    assert module.compact(typed) == compact
    assert module.format(typed) == printed


BAD_VALUES = [None, b"0403170701", 403170701, 4.0, ["0403170701"], object()]


@pytest.mark.parametrize("value", BAD_VALUES, ids=[type(v).__name__ for v in BAD_VALUES])
@pytest.mark.parametrize("module", [vat, nn, ogm, iban, beiban, iso11649],
                         ids=["vat", "nn", "ogm", "iban", "be.iban", "iso11649"])
def test_value_that_is_no_text(module, value):
    assert module.is_valid(value) is False
    with pytest.raises(qorgenlib.InvalidFormat):
        module.validate(value)
    with pytest.raises(TypeError):
        module.compact(value)
    with pytest.raises(TypeError):
        module.format(value)


ODD_TEXTS = {
    # name: (text, valid)
    "lone surrogate": ("0403\ud800170701", False),
    "beyond the first plane": ("0403170701\U0001F600", False),
    "ten megabytes of blanks": ("0403" + " " * 10_000_000 + "170701", True),
    "ten megabytes of digits": ("4" * 10_000_000, False),
}


@pytest.mark.parametrize("text,valid", ODD_TEXTS.values(), ids=ODD_TEXTS.keys())
def test_odd_text_is_judged_not_crashed(text, valid):
    assert vat.is_valid(text) is valid
    assert vat.compact(text)[:4] == text[:4]


BANKS = {
    # IBAN as typed: info
    "known bank, check digits wrong": ("BE71 0961 2345 6768", {"bic": "GKCCBEBB"}),
    "bank without a BIC of its own": ("BE00 9070 0000 0000", {"bic": None}),
    "code no bank has": ("BE68 5390 0754 7034", {}),
    "another country": ("NL91ABNA0417164300", {}),
    "too short for a code": ("BE7", {}),
}


@pytest.mark.parametrize("number,info", BANKS.values(), ids=BANKS.keys())
def test_bank_of_a_belgian_account(number, info):
    found = beiban.info(number)
    assert {key: found[key] for key in info} == info and bool(found) == bool(info)
    assert beiban.to_bic(number) == info.get("bic")
    if found:
        assert found["bank"]


def test_exceptions_are_value_errors_shared_by_every_module():
    for name in ("InvalidLength", "InvalidFormat", "InvalidChecksum", "InvalidComponent"):
        error = getattr(qorgenlib, name)
        assert issubclass(error, qorgenlib.ValidationError)
        assert getattr(vat, name) is error is getattr(iban, name)
    assert issubclass(qorgenlib.ValidationError, ValueError)
