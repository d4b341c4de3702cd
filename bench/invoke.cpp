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

// Short rounds taken in turn with the direct call; see overheadPerCall.
constexpr int callsPerRound = 5000;

void report(const char *what, bench::Overhead figures)
{
    std::printf(
        "%-28s %10.1f %10.1f %10.1f\n", what, figures.call, figures.baseline, figures.extra);
}

} // namespace

int main()
{
    qor::Platform::install(std::make_shared<qor::RecordingPlatform>());
    clsqorGenLib lib;
    const QString name = QStringLiteral("jan peeters");
    volatile qsizetype sink = 0;

    std::printf("%-28s %10s %10s %10s\n", "call", "by name ns", "direct ns", "overhead");
    const auto sCaseDirect = [&](int) {
        QString text = name;
        sink = sink + lib.SCase(text).size();
    };
    report("SCase (one String)",
        bench::overheadPerCall(
            [&](int) {
                QVariantList args { name };
                sink = sink + lib.Invoke(QStringLiteral("scase"), args).toString().size();
            },
            sCaseDirect, callsPerRound));
    QVariantList kept { name };
    report("SCase, argument list kept",
        bench::overheadPerCall(
            [&](int) {
                kept[0] = name;
                sink = sink + lib.Invoke(QStringLiteral("scase"), kept).toString().size();
            },
            sCaseDirect, callsPerRound));
    report("Offset read",
        bench::overheadPerCall(
            [&](int) {
                QVariantList args;
                sink = sink + lib.Invoke(QStringLiteral("Offset"), args).toInt();
            },
            [&](int) { sink = sink + lib.property("Offset").toInt(); }, callsPerRound));
    report("Offset assignment",
        bench::overheadPerCall(
            [&](int i) {
                QVariantList args { (i & 1) * 10000 };
                lib.Invoke(QStringLiteral("offset"), args);
            },
            [&](int i) { lib.setProperty("Offset", (i & 1) * 10000); }, callsPerRound));

    const double unknown = bench::nanosecondsPerCall(
        [&](int) {
            QVariantList args;
            try {
                lib.Invoke(QStringLiteral("NoSuchMethod"), args);
            } catch (const qor::RuntimeError &) {
                sink = sink + 1;
            }
        },
        callsPerRound * 10);
    report("unknown name (error 438)", { unknown, 0, unknown });
    return 0;
}
