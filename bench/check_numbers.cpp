// The identifier checks over a file of numbers, one a line, as a host checking
// a file would run them: prints a 1 or a 0 per number (accepted or not) to the
// output file and the checks per second (processor time) on standard output.
//
//   bench_check_numbers bank|vat|natnr|ident|ogm NUMBERS-FILE VERDICTS-FILE
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

#include <cstdio>
#include <functional>
#include <utility>
#include <vector>

using namespace qor;

namespace {

using Check = std::function<Verdict(QString &, QString &)>;

Check checkFor(const QByteArray &kind)
{
    static QString belgian = QStringLiteral("BE");
    static const QString noLand;
    static const RegionalSettings rs = RegionalSettings::fromLocale(QStringLiteral("nl_BE"));
    if (kind == "bank")
        return [](QString &n, QString &d) { return checkBankAccount(n, d); };
    if (kind == "vat")
        return [](QString &n, QString &d) { return checkVatNumber(n, belgian, d); };
    if (kind == "natnr")
        return [](QString &n, QString &d) { return checkNationalNumber(n, noLand, d); };
    if (kind == "ident")
        return [](QString &n, QString &d) { return checkIdentityCard(n, rs, d); };
    if (kind == "ogm")
        return [](QString &n, QString &d) { return checkPaymentReference(n, d); };
    return nullptr;
}

} // namespace

int main(int argc, char *argv[])
{
    const Check check = argc == 4 ? checkFor(argv[1]) : nullptr;
    QFile in(QString::fromLocal8Bit(argc == 4 ? argv[2] : ""));
    QFile out(QString::fromLocal8Bit(argc == 4 ? argv[3] : ""));
    if (!check || !in.open(QIODevice::ReadOnly) || !out.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr,
            "usage: bench_check_numbers bank|vat|natnr|ident|ogm NUMBERS-FILE VERDICTS-FILE\n");
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
    const double seconds = bench::threadSeconds() - start;
    out.write(verdicts);
    std::printf("%.0f\n", double(lines.size()) / seconds);
    return 0;
}
