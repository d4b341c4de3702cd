// Checks per second of the identifier checks on valid and invalid numbers, as a
// host checking a file of numbers without messages would call them: each number
// copied into one variable, the display text written into storage kept from
// check to check. A million checks a round over 4,096 different numbers, so
// that the figure is the check's and not the memory's. Processor time of the
// checking thread: checks per second from the fastest of five rounds, and the
// median round beside it.

#include "benchclock.h"
#include "runtime/regionalsettings.h"
#include "runtime/runtimeerror.h"
#include "validate/bankaccount.h"
#include "validate/identitycard.h"
#include "validate/nationalnumber.h"
#include "validate/paymentreference.h"
#include "validate/vatnumber.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

using namespace qor;

namespace {

// A million checks a round; fewer when given, to look at one under a profiler.
int checksPerRound = 1000000;
constexpr int distinctNumbers = 4096;
constexpr int rounds = 5;

QString digits(qint64 value, int width)
{
    return QStringLiteral("%1").arg(value, width, 10, QLatin1Char('0'));
}

qint64 rest97(qint64 value, bool zeroAs97)
{
    const qint64 r = value % 97;
    return r == 0 && zeroAs97 ? 97 : r;
}

// A first part for number i, spread over the range of the identifier.
qint64 firstPart(int i, qint64 range)
{
    return (qint64(i) * 7919 + 12345) % range;
}

QString bankNumber(int i, bool valid)
{
    const qint64 first = firstPart(i, 10000000000LL);
    const qint64 check = (rest97(first, true) + (valid ? 0 : 1)) % 100;
    const QString d = digits(first, 10) + digits(check, 2);
    return d.left(3) + QLatin1Char('-') + d.mid(3, 7) + QLatin1Char('-') + d.right(2);
}

QString vatNumber(int i, bool valid)
{
    const qint64 first = firstPart(i, 100000000LL);
    const qint64 check = 97 - first % 97 + (valid ? 0 : 1);
    const QString d = digits(first, 8) + digits(check % 100, 2);
    return QStringLiteral("BE ") + d.left(4) + QLatin1Char('.') + d.mid(4, 3) + QLatin1Char('.')
        + d.right(3);
}

QString nationalNumber(int i, bool valid)
{
    const qint64 first = firstPart(i, 1000000000LL);
    // Never right under either rule: the two checks differ by 68 or 29.
    const qint64 check = 97 - first % 97 + (valid ? 0 : 1);
    const QString d = digits(first, 9) + digits(check % 100, 2);
    return d.left(2) + QLatin1Char('.') + d.mid(2, 2) + QLatin1Char('.') + d.mid(4, 2)
        + QLatin1Char('-') + d.mid(6, 3) + QLatin1Char('.') + d.right(2);
}

QString identityNumber(int i, bool valid)
{
    const qint64 first = firstPart(i, 10000000000LL);
    return digits(first, 10) + digits((rest97(first, false) + (valid ? 0 : 1)) % 100, 2);
}

QString paymentReference(int i, bool valid)
{
    // Within 32 bits, so that the check never overflows.
    const qint64 first = firstPart(i, 2147483648LL);
    const QString d = digits(first, 10) + digits((rest97(first, false) + (valid ? 0 : 1)) % 100, 2);
    return QStringLiteral("+++") + d.left(3) + QLatin1Char('/') + d.mid(3, 4) + QLatin1Char('/')
        + d.right(5) + QStringLiteral("+++");
}

QString referenceNumber(int i, bool shortOne)
{
    return shortOne ? QString::number(i)
                    : QStringLiteral("F") + digits(firstPart(i, 100000000000LL), 11);
}

// A check as a host checking a file of numbers calls it: the number in a
// variable of its own, the display text into storage kept from check to check.
template <typename Check> struct Case
{
    const char *name;
    QString (*make)(int, bool);
    Check check; // true when accepted
};

template <typename Check> void run(const Case<Check> &c, bool valid)
{
    // The numbers side by side in one text, as read from a file.
    QString pool;
    std::vector<std::pair<qsizetype, qsizetype>> inputs;
    inputs.reserve(distinctNumbers);
    for (int i = 0; i < distinctNumbers; ++i) {
        const QString input = c.make(i, valid);
        inputs.emplace_back(pool.size(), input.size());
        pool += input;
    }
    QString number;
    QString display;
    number.reserve(64);
    display.reserve(64);
    int accepted = 0;
    const bench::Rounds nanoseconds = bench::roundsPerCall(
        [&](int i) {
            const auto [from, length] = inputs[size_t(i % distinctNumbers)];
            number.resize(length);
            std::copy_n(pool.constData() + from, length, number.data());
            accepted += c.check(number, display) ? 1 : 0;
        },
        checksPerRound, rounds);
    std::printf("%-22s %-8s %12.0f %10.1f %10.1f %10d\n", c.name, valid ? "valid" : "invalid",
        1e9 / nanoseconds.fastest, nanoseconds.fastest, nanoseconds.median, accepted / rounds);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 1)
        checksPerRound = std::max(1, std::atoi(argv[1]));
    const RegionalSettings rs = RegionalSettings::fromLocale(QStringLiteral("nl_BE"));
    // A land code given as "BE" and one left empty (checked as Belgian).
    QString belgian = QStringLiteral("BE");
    const QString noLand;
    QString digits;
    digits.reserve(64);
    std::printf("%-22s %-8s %12s %10s %10s %10s\n", "identifier", "input", "checks/s", "ns/check",
        "median ns", "accepted");
    // A second of checks first, unmeasured, so that the first figures are not
    // those of a processor still coming up to speed.
    {
        QString number;
        QString display;
        for (const double start = bench::threadSeconds(); bench::threadSeconds() - start < 1.0;) {
            for (int i = 0; i < 10000; ++i) {
                number = bankNumber(i % distinctNumbers, true);
                checkBankAccount(number, display);
            }
        }
    }
    // Each check called directly, as a host calls it.
    const auto both = [](const auto &c) {
        run(c, true);
        run(c, false);
    };
    both(Case { "bank account", bankNumber,
        [](QString &n, QString &d) { return checkBankAccount(n, d) != Verdict::Refused; } });
    both(Case { "VAT number", vatNumber, [&belgian](QString &n, QString &d) {
                   return checkVatNumber(n, belgian, d) != Verdict::Refused;
               } });
    both(Case { "national number", nationalNumber, [&noLand](QString &n, QString &d) {
                   return checkNationalNumber(n, noLand, d) != Verdict::Refused;
               } });
    both(Case { "identity card", identityNumber, [&rs](QString &n, QString &d) {
                   return checkIdentityCard(n, rs, d) != Verdict::Refused;
               } });
    both(Case { "check OGM", paymentReference,
        [](QString &n, QString &d) { return checkPaymentReference(n, d) != Verdict::Refused; } });
    both(Case { "make OGM (short/long)", referenceNumber,
        [&digits](QString &n, QString &d) { return !makePaymentReference(n, digits, d); } });
    return 0;
}
