// What calling the library by name costs beside calling it directly: a method
// with one String argument, a property read and a property assignment, each
// through clsqorGenLib::Invoke and straight through the header.

#include "benchclock.h"
#include "lib/clsqorgenlib.h"
#include "platform/recordingplatform.h"
#include "runtime/runtimeerror.h"

#include <QVariantList>

#include <cstdio>
#include <memory>

namespace {

constexpr int callsPerRound = 200000;

void report(const char *what, double byName, double direct)
{
    std::printf("%-28s %10.1f %10.1f %10.1f\n", what, byName, direct, byName - direct);
}

} // namespace

int main()
{
    qor::Platform::install(std::make_shared<qor::RecordingPlatform>());
    clsqorGenLib lib;
    const QString name = QStringLiteral("jan peeters");
    volatile qsizetype sink = 0;

    std::printf("%-28s %10s %10s %10s\n", "call", "by name ns", "direct ns", "overhead");
    const double sCaseByName = bench::nanosecondsPerCall(
        [&](int) {
            QVariantList args { name };
            sink = sink + lib.Invoke(QStringLiteral("scase"), args).toString().size();
        },
        callsPerRound);
    const double sCaseDirect = bench::nanosecondsPerCall(
        [&](int) {
            QString text = name;
            sink = sink + lib.SCase(text).size();
        },
        callsPerRound);
    report("SCase (one String)", sCaseByName, sCaseDirect);

    const double readByName = bench::nanosecondsPerCall(
        [&](int) {
            QVariantList args;
            sink = sink + lib.Invoke(QStringLiteral("Offset"), args).toInt();
        },
        callsPerRound);
    const double readDirect = bench::nanosecondsPerCall(
        [&](int) { sink = sink + lib.property("Offset").toInt(); }, callsPerRound);
    report("Offset read", readByName, readDirect);

    const double writeByName = bench::nanosecondsPerCall(
        [&](int i) {
            QVariantList args { (i & 1) * 10000 };
            lib.Invoke(QStringLiteral("offset"), args);
        },
        callsPerRound);
    const double writeDirect = bench::nanosecondsPerCall(
        [&](int i) { lib.setProperty("Offset", (i & 1) * 10000); }, callsPerRound);
    report("Offset assignment", writeByName, writeDirect);

    const double unknown = bench::nanosecondsPerCall(
        [&](int) {
            QVariantList args;
            try {
                lib.Invoke(QStringLiteral("NoSuchMethod"), args);
            } catch (const qor::RuntimeError &) {
                sink = sink + 1;
            }
        },
        callsPerRound / 10);
    report("unknown name (error 438)", unknown, 0);
    return 0;
}
