"""The same verdicts as python-stdnum on generated numbers, valid and broken."""
import random

import pytest
import stdnum.be.nn
import stdnum.be.vat
import stdnum.exceptions

import qorgenlib.be.nn
import qorgenlib.be.vat

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


def test_exception_classes_are_named_as_in_stdnum():
    for error in (qorgenlib.InvalidLength, qorgenlib.InvalidFormat, qorgenlib.InvalidChecksum,
                  qorgenlib.InvalidComponent, qorgenlib.ValidationError):
        assert error.__name__ in dir(stdnum.exceptions)
