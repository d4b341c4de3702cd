// The identifier checks over a file of numbers, one a line, as a host checking
// a file would run them: prints a 1 or a 0 per number (accepted or not) to the
// output file and the checks per second (processor time) on standard output,
// the best of PASSES passes over the file (default 1).
//
//   bench_check_numbers bank|vat|natnr|ident|ogm NUMBERS-FILE VERDICTS-FILE [PASSES]
//
// Used by bench/compare_peer.py; any file of numbers will do.

#include "benchclock.h"
#include "runtime/regionalsettings.h"
#include "validate/bankaccount.h"
#include "validate/identitycard.h"
#include "validate/nationalnumber.h"
#include "validate/paymentreference.h"
#include "validate/vatnumber.h"

#include <QFile>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>
#include <vector>

using namespace qor;

namespace {

// Checks every line in place and writes its verdict; returns checks per second
// of processor time.
template <typename Check>
double checkAll(Check check, const QString &pool,
    const std::vector<std::pair<qsizetype, qsizetype>> &lines, QByteArray &verdicts)
{
    QString number;
    QString display;
    number.reserve(64);
    display.reserve(64);
    const double start = bench::threadSeconds();
    for (size_t i = 0; i < lines.size(); ++i) {
        const auto [from, length] = lines[i];
        number.resize(length);
        std::copy_n(pool.constData() + from, length, number.data());
        verdicts[qsizetype(2 * i)] = check(number, display) == Verdict::Accepted ? '1' : '0';
    }
    return double(lines.size()) / (bench::threadSeconds() - start);
}

// The check named on the command line, called directly as a host calls it.
double checkAllOfKind(const QByteArray &kind, const QString &pool,
    const std::vector<std::pair<qsizetype, qsizetype>> &lines, QByteArray &verdicts)
{
    static QString belgian = QStringLiteral("BE");
    static const QString noLand;
    static const RegionalSettings rs = RegionalSettings::fromLocale(QStringLiteral("nl_BE"));
    if (kind == "bank")
        return checkAll(
            [](QString &n, QString &d) { return checkBankAccount(n, d); }, pool, lines, verdicts);
    if (kind == "vat")
        return checkAll([](QString &n, QString &d) { return checkVatNumber(n, belgian, d); }, pool,
            lines, verdicts);
    if (kind == "natnr")
        return checkAll([](QString &n, QString &d) { return checkNationalNumber(n, noLand, d); },
            pool, lines, verdicts);
    if (kind == "ident")
        return checkAll([](QString &n, QString &d) { return checkIdentityCard(n, rs, d); }, pool,
            lines, verdicts);
    if (kind == "ogm")
        return checkAll([](QString &n, QString &d) { return checkPaymentReference(n, d); }, pool,
            lines, verdicts);
    return -1;
}

} // namespace

int main(int argc, char *argv[])
{
    static const QList<QByteArray> kinds { "bank", "vat", "natnr", "ident", "ogm" };
    const bool argsOk = argc == 4 || argc == 5;
    const QByteArray kind = argsOk ? QByteArray(argv[1]) : QByteArray();
    QFile in(QString::fromLocal8Bit(argsOk ? argv[2] : ""));
    QFile out(QString::fromLocal8Bit(argsOk ? argv[3] : ""));
    const int passes = argc == 5 ? std::atoi(argv[4]) : 1;
    if (!kinds.contains(kind) || passes < 1 || !in.open(QIODevice::ReadOnly)
        || !out.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr,
            "usage: bench_check_numbers bank|vat|natnr|ident|ogm NUMBERS-FILE "
            "VERDICTS-FILE [PASSES]\n");
        return 2;
    }
    // The numbers side by side in one text, as read from the file.
    const QString pool = QString::fromUtf8(in.readAll());
    std::vector<std::pair<qsizetype, qsizetype>> lines;
    for (qsizetype from = 0; from < pool.size();) {
        qsizetype end = pool.indexOf(QLatin1Char('\n'), from);
        if (end < 0)
            end = pool.size();
        lines.emplace_back(from, end - from);
        from = end + 1;
    }
    QByteArray verdicts(lines.size() * 2, '\n');
    double checksPerSecond = 0;
    for (int pass = 0; pass < passes; ++pass)
        checksPerSecond = std::max(checksPerSecond, checkAllOfKind(kind, pool, lines, verdicts));
    out.write(verdicts);
    std::printf("%.0f\n", checksPerSecond);
    return 0;
}
