#!/usr/bin/python3
"""Compares the payment checks with python-stdnum over a million generated
identifiers: valid ones of every IBAN registry country, one wrong character,
two swapped characters, wrong lengths, lower case and blanks. Both must give
the same verdict and the same print form, apart from the differences listed
in ALLOWED (see docs/payments.md).

usage: compare_stdnum.py <paymentverdicts executable> [count]
"""

import functools
import random
import string
import subprocess
import sys
import time
from collections import Counter
from pathlib import Path

from stdnum import bic, iban, iso11649
from stdnum.be import iban as be_iban
from stdnum.exceptions import ValidationError

DATA = Path(__file__).resolve().parents[2] / '..' / 'shared' / 'data'
ALNUM = string.digits + string.ascii_uppercase
CLASSES = {'n': string.digits, 'a': string.ascii_uppercase, 'c': ALNUM}


@functools.cache
def registry():
    countries = {}
    for line in (DATA / 'iban-structure.tsv').read_text().splitlines():
        if line.startswith('#') or line.startswith('country\t'):
            continue
        code, _name, bban = line.split('\t')
        classes = ''
        for count, _bang, kind in __import__('re').findall(r'(\d+)(!)([nac])', bban):
            classes += kind * int(count)
        countries[code] = classes
    return countries


def value(c):
    return str(int(c, 36))


def with_check_digits(country, bban):
    number = int(''.join(value(c) for c in bban + country + '00'))
    return '%s%02d%s' % (country, 98 - number % 97, bban)


def belgian_bban(rng):
    first = '%010d' % rng.randrange(10 ** 10)
    return first + '%02d' % (int(first) % 97 or 97)


def creditor_reference(rng):
    own = ''.join(rng.choice(ALNUM) for _ in range(rng.randint(1, 21)))
    number = int(''.join(value(c) for c in own + 'RF00'))
    return 'RF%02d%s' % (98 - number % 97, own)


def valid_bic(rng, countries):
    return (''.join(rng.choice(string.ascii_uppercase) for _ in range(4)) + rng.choice(countries)
            + ''.join(rng.choice(ALNUM) for _ in range(rng.choice((2, 5)))))


def mutated(rng, text):
    """The text as typed: right, or with one of the usual mistakes."""
    kind = rng.randrange(10)
    if kind == 0 and text:
        i = rng.randrange(len(text))
        return text[:i] + rng.choice(ALNUM + 'é') + text[i + 1:]
    if kind == 1 and len(text) > 1:
        i = rng.randrange(len(text) - 1)
        return text[:i] + text[i + 1] + text[i] + text[i + 2:]
    if kind == 2 and text:
        i = rng.randrange(len(text))
        return text[:i] + text[i + 1:]
    if kind == 3:
        i = rng.randrange(len(text) + 1)
        return text[:i] + rng.choice(ALNUM) + text[i:]
    if kind == 4:
        return text.lower()
    if kind == 5:
        return ' '.join(text[i:i + 4] for i in range(0, len(text), 4))
    if kind == 6:
        return ''.join(rng.choice(ALNUM + ' -') for _ in range(rng.randint(0, 40)))
    return text


def generate(count, seed=11649):
    rng = random.Random(seed)
    countries = registry()
    codes = sorted(countries)
    # A list of country codes for BICs: those of the registry and some
    # that are not assigned.
    bic_countries = codes + ['QQ', 'ZZ', 'AA']
    cases = []
    for n in range(count):
        kind = n % 10
        if kind < 6:
            country = codes[n % len(codes)]
            bban = ''.join(rng.choice(CLASSES[c]) for c in countries[country])
            cases.append(('iban', mutated(rng, with_check_digits(country, bban))))
        elif kind < 8:
            cases.append(('beiban', mutated(rng, with_check_digits('BE', belgian_bban(rng)))))
        elif kind == 8:
            cases.append(('rf', mutated(rng, creditor_reference(rng))))
        else:
            cases.append(('bic', mutated(rng, valid_bic(rng, bic_countries))))
    return cases


MODULES = {'iban': iban, 'beiban': be_iban, 'rf': iso11649, 'bic': bic}


def peer_verdict(kind, text):
    module = MODULES[kind]
    try:
        module.validate(text)
    except ValidationError as error:
        return type(error).__name__, ''
    return 'Valid', module.format(text)


def allowed(kind, text, ours, theirs):
    """The reason of a difference made on purpose, or None."""
    compact = text.replace(' ', '').replace('-', '').replace('.', '').upper()
    if compact[:2] == 'BE' and ours[0] == 'Valid' and theirs[0] == 'InvalidComponent':
        return 'Belgian bank code missing from python-stdnum\'s bank list'
    if kind == 'bic' and ours[0] == 'InvalidComponent' and theirs[0] == 'Valid':
        return 'BIC country that ISO 3166 does not assign'
    if kind == 'bic' and ours[0] == 'InvalidFormat' and theirs[0] == 'Valid' and '.' in compact:
        return 'dot in a BIC'
    if kind == 'iban' and theirs[0] == 'InvalidComponent' and compact[:2] in registry():
        return 'country newer than python-stdnum\'s registry: ' + compact[:2]
    if kind == 'iban' and ours[0] == 'Valid' and theirs[0] == 'InvalidChecksum':
        return 'national check digits python-stdnum adds: ' + compact[:2]
    if ours[0] == 'InvalidFormat' and theirs[0] == 'InvalidChecksum' and not all(
            c in ALNUM for c in compact):
        return 'character outside 0-9 and A-Z refused before the check digits'
    return None


def main():
    driver = sys.argv[1]
    count = int(sys.argv[2]) if len(sys.argv) > 2 else 1_000_000
    start = time.monotonic()
    cases = generate(count)
    feed = ''.join('%s\t%s\n' % case for case in cases).encode()
    ours = subprocess.run([driver], input=feed, stdout=subprocess.PIPE, check=True).stdout
    ours = [tuple(line.split('\t')) for line in ours.decode().splitlines()]
    assert len(ours) == len(cases), 'the driver answered %d of %d' % (len(ours), len(cases))
    verdicts = Counter()
    differences = Counter()
    failures = []
    for (kind, text), mine in zip(cases, ours):
        theirs = peer_verdict(kind, text)
        verdicts[(kind, theirs[0])] += 1
        if mine == theirs:
            continue
        reason = allowed(kind, text, mine, theirs)
        if reason:
            differences[reason] += 1
        elif len(failures) < 20:
            failures.append((kind, text, mine, theirs))
        else:
            failures.append(None)
    print('%d identifiers in %.1f s' % (len(cases), time.monotonic() - start))
    for (kind, verdict), n in sorted(verdicts.items()):
        print('  %-7s %-17s %7d' % (kind, verdict, n))
    for reason, n in differences.most_common():
        print('  allowed difference: %s: %d' % (reason, n))
    for failure in failures:
        if failure:
            print('  DIFFERENT %s %r: ours %r, python-stdnum %r' % failure)
    if failures:
        print('%d unexplained differences' % len(failures))
        return 1
    return 0


if __name__ == '__main__':
    sys.exit(main())
