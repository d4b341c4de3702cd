#!/usr/bin/python3
"""IBAN checks per second against python-stdnum on the same IBANs, in one run.

    bench/compare_iban.py [BUILD-DIR] [--count N]   (default: build, 200000 IBANs)

Needs python3-stdnum (run with /usr/bin/python3) and a build of bench_iban.
Generates IBANs as typed (of every registry country, in print and electronic
form, half of them with one wrong character), times the library (bench_iban:
processor time of one thread, fastest and median of five passes) and
python-stdnum's iban.is_valid in this process (processor time, best of three
passes), and prints both rates and their ratio.
"""

import argparse
import os
import random
import string
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from stdnum import iban as peer_iban

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / 'tests' / 'payments'))
from compare_stdnum import CLASSES, registry, with_check_digits  # noqa: E402


def ibans(count, seed=13616):
    rng = random.Random(seed)
    countries = registry()
    codes = sorted(countries)
    typed = []
    for n in range(count):
        country = codes[n % len(codes)]
        number = with_check_digits(
            country, ''.join(rng.choice(CLASSES[c]) for c in countries[country]))
        if n % 2:
            i = rng.randrange(4, len(number))
            number = number[:i] + rng.choice(string.digits) + number[i + 1:]
        if n % 3 == 0:
            number = ' '.join(number[i:i + 4] for i in range(0, len(number), 4))
        typed.append(number)
    return typed


def peer_rate(numbers):
    best = None
    for _ in range(3):
        start = time.process_time()
        for number in numbers:
            peer_iban.is_valid(number)
        spent = time.process_time() - start
        best = spent if best is None else min(best, spent)
    return len(numbers) / best


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument('build', nargs='?', default='build')
    parser.add_argument('--count', type=int, default=200000)
    args = parser.parse_args()
    numbers = ibans(args.count)
    with tempfile.NamedTemporaryFile('w', suffix='.txt', delete=False) as file:
        file.write('\n'.join(numbers) + '\n')
    try:
        out = subprocess.run([os.path.join(args.build, 'bench', 'bench_iban'), file.name],
                             stdout=subprocess.PIPE, check=True, text=True).stdout.split()
    finally:
        os.unlink(file.name)
    fastest, median = float(out[0]), float(out[1])
    peer = peer_rate(numbers)
    print('IBANs: %d (%s valid), load average %s' % (len(numbers), out[2],
                                                    ' '.join('%.1f' % x for x in os.getloadavg())))
    print('qorGenLib      %12.0f checks/s (median pass %.0f)' % (fastest, median))
    print('python-stdnum  %12.0f checks/s' % peer)
    print('ratio          %12.1f x' % (fastest / peer))


if __name__ == '__main__':
    main()
