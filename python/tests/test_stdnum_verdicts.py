"""The same verdicts as python-stdnum on generated numbers, valid and broken."""
import random

import pytest
import stdnum.be.iban
import stdnum.be.nn
import stdnum.be.vat
import stdnum.iban
import stdnum.iso11649

import qorgenlib.be.iban
import qorgenlib.be.nn
import qorgenlib.be.vat
import qorgenlib.iban
import qorgenlib.iso11649

CASES_PER_KIND = 20_000


def verdict(module, number):
    try:
        return module.validate(number)
    except ValueError as error:
        return type(error).__name__


def with_check_digits(body, prefix=""):
    return body + "%02d" % (97 - int(prefix + body) % 97)


def vat_number(rng):
    return with_check_digits("%d%07d" % (rng.choice([0, 0, 1, 2, 9]), rng.randrange(10**7)))


def national_number(rng):
    body = "%02d%02d%02d%03d" % (rng.randrange(100), rng.randrange(13), rng.randrange(32),
                                 rng.randrange(1000))
    return with_check_digits(body, rng.choice(["", "2"]))


def mod97(text):
    """The remainder of the text read with letters as 10 to 35."""
    return int("".join(str(int(c, 36)) for c in text)) % 97


def bank_code_known(module, code):
    return bool(module.info("BE00%03d0000000" % code))


# The two lists of Belgian banks are of different dates: only the codes both
# know or both do not know tell whether the checks agree.
BANK_CODES = [code for code in range(1000) if bank_code_known(qorgenlib.be.iban, code)
              == bank_code_known(stdnum.be.iban, code)]


def account_number(rng):
    country, bban = rng.choice([
        ("BE", "%03d%07d" % (rng.choice(BANK_CODES), rng.randrange(10**7))),
        ("NL", "ABNA%010d" % rng.randrange(10**10)),
        ("DE", "%018d" % rng.randrange(10**18)),
        ("GB", "NWBK%014d" % rng.randrange(10**14)),
    ])
    if country == "BE":  # the account's own check digits, right three times in four
        bban += "%02d" % ((int(bban) % 97 or 97) - rng.choice([0, 0, 0, 1]))
    return "%s%02d%s" % (country, 98 - mod97(bban + country + "00"), bban)


def creditor_reference(rng):
    reference = "".join(rng.choice("0123456789ABCXYZ") for _ in range(rng.randrange(1, 22)))
    return "RF%02d%s" % (98 - mod97(reference + "RF00"), reference)


def typed(rng, number, prefixes):
    """A number as people type it: digits changed, added or dropped, separators,
    a land code, blanks at either end, a stray letter."""
    digits = list(number)
    change = rng.randrange(8)
    if change == 0:
        digits[rng.randrange(len(digits))] = str(rng.randrange(10))
    elif change == 1:
        digits.insert(rng.randrange(len(digits) + 1), str(rng.randrange(10)))
    elif change == 2:
        del digits[rng.randrange(len(digits))]
    elif change == 3:
        digits[rng.randrange(len(digits))] = rng.choice("xO,_")
    elif change == 4:
        digits = ["0"] * rng.randrange(1, 12)
    for _ in range(rng.randrange(3)):
        digits.insert(rng.randrange(len(digits) + 1), rng.choice(" .-/"))
    return rng.choice(prefixes) + "".join(digits) + rng.choice(["", " ", "\t"])


KINDS = {
    "vat": (qorgenlib.be.vat, stdnum.be.vat, vat_number, ["", "", "BE", "be ", "B E", "NL"]),
    "nn": (qorgenlib.be.nn, stdnum.be.nn, national_number, ["", "", " "]),
    "iban": (qorgenlib.iban, stdnum.iban, account_number, ["", "", " "]),
    "be.iban": (qorgenlib.be.iban, stdnum.be.iban, account_number, ["", "", " "]),
    "iso11649": (qorgenlib.iso11649, stdnum.iso11649, creditor_reference, ["", "", " "]),
}


@pytest.mark.parametrize("mine,theirs,make,prefixes", KINDS.values(), ids=KINDS.keys())
def test_same_verdict_and_compact_form(mine, theirs, make, prefixes):
    rng = random.Random(2024)
    differences = []
    for _ in range(CASES_PER_KIND):
        number = typed(rng, make(rng), prefixes)
        if (verdict(mine, number) != verdict(theirs, number)
                or mine.compact(number) != theirs.compact(number)
                or mine.is_valid(number) != theirs.is_valid(number)):
            differences.append(number)
    assert differences[:10] == []

