#!/usr/bin/python3
"""Checks per second from Python: qorgenlib against python-stdnum, same interpreter.

    PYTHONPATH=build/python bench/python_numbers.py [--count N] [--passes N]

Needs Debian's python3 with python3-stdnum and a build of the Python package
(cmake --build build --target qorgenlib_core). For each kind it makes the same
numbers, half right and half wrong, and times `is_valid` over them on both
sides; each side's best of --passes passes counts, so that a neighbour taking
the processor for a moment does not decide the ratio. Times are processor time
of this process. Prints checks per second and the ratio; run by hand.
"""

import argparse
import os
import random
import time

import stdnum.be.nn
import stdnum.be.vat
import stdnum.iban

import qorgenlib


def with_check_digits(body, prefix=""):
    return body + "%02d" % (97 - int(prefix + body) % 97)


def vat_numbers(rng, count):
    numbers = [with_check_digits("0%07d" % rng.randrange(10**7)) for _ in range(count)]
    return ["BE " + n[:4] + "." + n[4:7] + "." + n[7:] for n in numbers]


def national_numbers(rng, count):
    return [with_check_digits("%02d%02d%02d%03d" % (rng.randrange(100), rng.randrange(1, 13),
                                                    rng.randrange(1, 29), rng.randrange(1000)))
            for _ in range(count)]


def iban_numbers(rng, count):
    numbers = []
    for _ in range(count):
        bban = "%010d" % rng.randrange(10**10)
        bban += "%02d" % (int(bban) % 97 or 97)
        check = 98 - int(bban + "111400") % 97  # B=11 E=14
        numbers.append("BE%02d %s %s %s" % (check, bban[:4], bban[4:8], bban[8:]))
    return numbers


def spoil_half(rng, numbers):
    """Every other number gets one digit changed."""
    for i in range(1, len(numbers), 2):
        digits = [j for j, c in enumerate(numbers[i]) if c.isdigit()]
        at = rng.choice(digits)
        text = numbers[i]
        numbers[i] = text[:at] + str((int(text[at]) + 1) % 10) + text[at + 1:]
    return numbers


def best_rate(check, numbers, passes):
    best = None
    for _ in range(passes):
        start = time.process_time()
        for number in numbers:
            check(number)
        spent = time.process_time() - start
        best = spent if best is None else min(best, spent)
    return len(numbers) / best


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--count", type=int, default=200_000)
    parser.add_argument("--passes", type=int, default=3)
    options = parser.parse_args()
    rng = random.Random(11)
    kinds = [
        ("be.vat", vat_numbers, qorgenlib.be.vat.is_valid, stdnum.be.vat.is_valid),
        ("be.nn", national_numbers, qorgenlib.be.nn.is_valid, stdnum.be.nn.is_valid),
    ]
    if hasattr(qorgenlib, "iban"):
        kinds.insert(0, ("iban", iban_numbers, qorgenlib.iban.is_valid, stdnum.iban.is_valid))
    print("load average at start: %.2f %.2f %.2f" % os.getloadavg())
    print("%-8s %16s %16s %8s %9s" % ("check", "qorgenlib/s", "stdnum/s", "ratio", "verdicts"))
    for name, make, ours, theirs in kinds:
        numbers = spoil_half(rng, make(rng, options.count))
        agree = sum(ours(n) == theirs(n) for n in numbers)
        our_rate = best_rate(ours, numbers, options.passes)
        their_rate = best_rate(theirs, numbers, options.passes)
        print("%-8s %16.0f %16.0f %7.1fx %9s" % (name, our_rate, their_rate, our_rate / their_rate,
                                                 "%d/%d" % (agree, len(numbers))))
    print("load average at end: %.2f %.2f %.2f" % os.getloadavg())


if __name__ == "__main__":
    main()
