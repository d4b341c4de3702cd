// Catalogue look-ups: the first one in the process, then found and missing
// texts through LLGenLib and through the library's own loader.

#include "lib/frame/catalogue.h"
#include "benchclock.h"
#include "lib/clsqorgenlib.h"
#include "lib/frame/modgenlib.h"

#include <cstdio>

namespace {

constexpr int lookUpsPerRound = 1000000;

} // namespace

int main()
{
    volatile qsizetype sink = 0;
    const double firstStart = bench::threadSeconds();
    sink = sink + qor::Catalogue::llGenLib(1028).size();
    const double first = (bench::threadSeconds() - firstStart) * 1e9;

    clsqorGenLib lib;
    // Found ids spread over the languages and ranges; missing ones likewise.
    const qint32 found[] = { 1028, 11028, 21028, 9534, 39534, 1239, 19999, 9910 };
    const qint32 missing[] = { 1023, 31054, 9018, -5, 2147483647, 41000, 0, 60000 };
    std::printf("%-34s %10s\n", "look-up", "ns");
    std::printf("%-34s %10.1f\n", "first in the process", first);
    std::printf("%-34s %10.1f\n", "LLGenLib, text present",
        bench::nanosecondsPerCall(
            [&](int i) { sink = sink + lib.LLGenLib(found[i & 7]).size(); }, lookUpsPerRound));
    std::printf("%-34s %10.1f\n", "LLGenLib, text missing (marker)",
        bench::nanosecondsPerCall(
            [&](int i) { sink = sink + lib.LLGenLib(missing[i & 7]).size(); }, lookUpsPerRound));
    qor::modGenLib().languageOffset = 10000;
    std::printf("%-34s %10.1f\n", "internal loader, French, present",
        bench::nanosecondsPerCall(
            [&](int i) { sink = sink + qor::loadCatalogueText(1000 + (i & 31)).size(); },
            lookUpsPerRound));
    return 0;
}
