// IBAN checks over a file of IBANs as typed, one a line: the electronic form
// and the check of each, as ControleerIBAN does them. Prints the checks per
// second of one core (processor time of the thread, fastest and median of
// five passes) and the number of valid IBANs.
//
//   bench_iban IBANS-FILE
//
// Used by bench/compare_iban.py, which times python-stdnum on the same file.

#include "payments/iban.h"
#include "benchclock.h"

#include <QFile>
#include <QStringList>

#include <cstdio>

using namespace qor;

int main(int argc, char **argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: bench_iban IBANS-FILE\n");
        return 2;
    }
    QFile file(QString::fromLocal8Bit(argv[1]));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", argv[1]);
        return 2;
    }
    const QStringList ibans = QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts);
    int valid = 0;
    const bench::Rounds rounds = bench::roundsPerCall(
        [&](int i) {
            valid += ibanAndAccountValidity(ibanElectronicForm(ibans[i])) == PaymentCheck::Valid;
        },
        int(ibans.size()));
    std::printf("%.0f %.0f %d\n", 1e9 / rounds.fastest, 1e9 / rounds.median, valid / 5);
    return 0;
}
