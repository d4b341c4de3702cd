#!/usr/bin/python3
"""Our identifier checks against python-stdnum on the same million numbers.

    bench/compare_peer.py [BUILD-DIR] [--count N] [--batch-count N] [--passes N]

Needs: python3 and python3-stdnum (Debian packages: apt-get install python3-stdnum),
and a build of bench_check_numbers and qorgen (a Release build for fair figures:
cmake -B build-release -DCMAKE_BUILD_TYPE=Release; cmake --build build-release
--target bench_check_numbers qorgen). Installs nothing itself.

For each identifier both sides know (enterprise/VAT number, national number, bank
account), it generates the same numbers, half of them right and half wrong, and
checks them three ways in one run: in process through the C++ checks
(bench_check_numbers), through `qorgen batch`, and through python-stdnum in
this Python process. It then verifies that both libraries give the same verdict
wherever their rules agree and prints checks per second and the ratios.
Times are processor time of the checking process (qorgen: wall time of the
whole batch, JSON included). In process, each side goes over its numbers
--passes times (default 3) and its best pass counts, so that a neighbour that
takes the processor for a moment does not decide the ratio.
"""

import argparse
import datetime
import json
import os
import random
import subprocess
import sys
import tempfile
import time

try:
    from stdnum.be import iban as peer_iban
    from stdnum.be import nn as peer_nn
    from stdnum.be import vat as peer_vat
    import stdnum
except ImportError:
    sys.exit("compare_peer.py needs python-stdnum: apt-get install python3-stdnum")


def vat_numbers(rng, count):
    """'BE 0xxx.xxx.xxx' strings; rules agree unless the first part is a multiple
    of 97 with check digits 00, which only the peer accepts."""
    numbers, agree = [], []
    for i in range(count):
        first = rng.randrange(0, 20000000)  # a leading 0 or 1, as issued
        check = 97 - first % 97
        if i % 2:
            check = (check + rng.randrange(1, 97)) % 100
        digits = '%08d%02d' % (first, check)
        numbers.append('BE %s.%s.%s' % (digits[:4], digits[4:7], digits[7:]))
        agree.append(not (first % 97 == 0 and check == 0) and int(digits) > 0)
    return numbers, agree


def birth_date(rng):
    day = datetime.date(1930, 1, 1) + datetime.timedelta(days=rng.randrange(0, 35000))
    return day


def national_numbers(rng, count):
    """'yy.mm.dd-sss.cc' strings with real birth dates; rules agree except for
    the rule for births from 2000 on a year the peer takes for the 1900s."""
    this_year = datetime.date.today().year
    numbers, agree = [], []
    for i in range(count):
        born = birth_date(rng)
        first = int(born.strftime('%y%m%d')) * 1000 + rng.randrange(1, 999)
        base = first if born.year < 2000 else 2000000000 + first
        check = 97 - base % 97
        if i % 2:
            check = (check + rng.randrange(1, 97)) % 100
        digits = '%09d%02d' % (first, check)
        numbers.append('%s.%s.%s-%s.%s' % (digits[:2], digits[2:4], digits[4:6], digits[6:9],
                                           digits[9:]))
        # We accept either rule for any year; the peer tries the 2000 rule only
        # for years not in the future.
        old_rule = 97 - first % 97 == check
        new_rule = 97 - (2000000000 + first) % 97 == check
        peer_tries_new = int(digits[:2]) + 2000 <= this_year
        agree.append(old_rule or not new_rule or peer_tries_new)
    return numbers, agree


def iban_of(bban):
    """The Belgian IBAN of a twelve-digit account number."""
    check = 98 - int(bban + '111400') % 97  # B=11, E=14, then 00
    return 'BE%02d%s' % (check, bban)


def known_bank_codes():
    """The three-digit bank codes the peer knows: it refuses an IBAN of any other
    bank, where we check the digits alone."""
    return {code for code in range(1000) if peer_iban.info('BE00%03d000000000' % code)}


def bank_numbers(rng, count):
    """'xxx-xxxxxxx-xx' strings for us and their IBAN form for the peer, which
    checks the account's own check digits (and the IBAN's) there. The rules
    agree for the banks the peer knows."""
    known = known_bank_codes()
    ours, peers, agree = [], [], []
    for i in range(count):
        first = rng.randrange(0, 10000000000)
        check = first % 97 or 97
        if i % 2:
            check = (check + rng.randrange(1, 97)) % 100
        digits = '%010d%02d' % (first, check)
        ours.append('%s-%s-%s' % (digits[:3], digits[3:10], digits[10:]))
        peers.append(iban_of(digits))
        agree.append(first // 10000000 in known)
    return ours, peers, agree


def run_ours(tool, kind, numbers, workdir, passes):
    path = os.path.join(workdir, kind + '.txt')
    verdict_path = os.path.join(workdir, kind + '.verdicts')
    with open(path, 'w', encoding='utf-8') as f:
        f.write('\n'.join(numbers))
    rate = float(subprocess.run([tool, kind, path, verdict_path, str(passes)], check=True,
                                capture_output=True, text=True).stdout)
    with open(verdict_path, encoding='ascii') as f:
        verdicts = [line == '1' for line in f.read().split('\n')[:len(numbers)]]
    return rate, verdicts


def run_batch(qorgen, method, numbers, extra_args):
    lines = ''.join(json.dumps({'call': method, 'args': [n] + extra_args, 'props': False}) + '\n'
                    for n in numbers)
    start = time.perf_counter()
    out = subprocess.run([qorgen, 'batch'], input=lines, check=True, capture_output=True,
                         text=True).stdout
    seconds = time.perf_counter() - start
    results = [json.loads(line).get('result', '') != '' for line in out.splitlines()]
    return len(numbers) / seconds, results


def run_peer(is_valid, numbers, passes):
    best = 0.0
    for _ in range(passes):
        start = time.process_time()
        verdicts = [is_valid(n) for n in numbers]
        best = max(best, len(numbers) / (time.process_time() - start))
    return best, verdicts


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument('build', nargs='?', default='build-release')
    parser.add_argument('--count', type=int, default=1000000)
    parser.add_argument('--batch-count', type=int, default=200000,
                        help='how many of the numbers go through qorgen batch')
    parser.add_argument('--passes', type=int, default=3,
                        help='passes over the numbers, ours and the peer\'s; the best counts')
    options = parser.parse_args()
    tool = os.path.join(options.build, 'bench', 'bench_check_numbers')
    qorgen = os.path.join(options.build, 'tools', 'qorgen', 'qorgen')
    for path in (tool, qorgen):
        if not os.access(path, os.X_OK):
            sys.exit('%s is missing: build bench_check_numbers and qorgen first' % path)

    rng = random.Random(20041)
    vat, vat_agree = vat_numbers(rng, options.count)
    natnr, natnr_agree = national_numbers(rng, options.count)
    bank, bank_peer, bank_agree = bank_numbers(rng, options.count)
    cases = [
        ('VAT number', 'vat', vat, vat, vat_agree, peer_vat.is_valid, 'ControleerVAT',
         [False, '']),
        ('national number', 'natnr', natnr, natnr, natnr_agree, peer_nn.is_valid,
         'ControleerNatNr', [False]),
        ('bank account (peer: IBAN)', 'bank', bank, bank_peer, bank_agree, peer_iban.is_valid,
         'ControleerBankNr', [False]),
    ]
    print('python-stdnum %s, %d numbers per identifier, %d of them through qorgen batch;'
          ' in process the best of %d passes on either side'
          % (stdnum.__version__, options.count, min(options.count, options.batch_count),
             options.passes))
    print('%-27s %14s %14s %14s %9s %9s %s' % ('identifier', 'ours checks/s', 'batch req/s',
                                               'peer checks/s', 'ours/peer', 'batch/peer',
                                               'verdicts'))
    failed = False
    with tempfile.TemporaryDirectory() as workdir:
        for title, kind, ours_in, peer_in, agree, peer_check, method, extra in cases:
            ours_rate, ours = run_ours(tool, kind, ours_in, workdir, options.passes)
            batch_in = ours_in[:options.batch_count]
            batch_rate, batch = run_batch(qorgen, method, batch_in, extra)
            peer_rate, peer = run_peer(peer_check, peer_in, options.passes)
            compared = [i for i in range(len(ours)) if agree[i]]
            differ = [i for i in compared if ours[i] != peer[i]]
            batch_differ = [i for i in range(len(batch)) if batch[i] != ours[i]]
            status = 'agree on %d' % len(compared)
            if differ or batch_differ:
                failed = True
                example = (differ or batch_differ)[0]
                status = 'DIFFER on %d (+%d batch), e.g. %s' % (len(differ), len(batch_differ),
                                                                ours_in[example])
            print('%-27s %14.0f %14.0f %14.0f %8.1fx %8.1fx %s'
                  % (title, ours_rate, batch_rate, peer_rate, ours_rate / peer_rate,
                     batch_rate / peer_rate, status))
    return 1 if failed else 0


if __name__ == '__main__':
    sys.exit(main())
