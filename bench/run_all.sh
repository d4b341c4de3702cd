#!/bin/sh
# Every benchmark figure of the library from one command, with the machine
# they were measured on. Builds the benchmarks in a Release build folder first.
#
#   bench/run_all.sh [BUILD-DIR]          (default: build-release)
#
# The peer comparison (bench/compare_peer.sh) runs too when python3 and
# python3-stdnum are there; it is skipped with a note otherwise.
set -eu

source_dir=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-"$source_dir/build-release"}

if [ ! -f "$build/CMakeCache.txt" ]; then
    cmake -S "$source_dir" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DQORGENLIB_BUILD_TESTS=OFF >/dev/null
fi
cmake --build "$build" --target bench_validate bench_catalogue bench_invoke \
    bench_qorgen_batch bench_check_numbers bench_records bench_keystrokes bench_sortarray bench_einvoice bench_iban \
    qorgen >/dev/null

cxx=$(sed -n 's/^CMAKE_CXX_COMPILER:[A-Z]*=//p' "$build/CMakeCache.txt")
build_type=$(sed -n 's/^CMAKE_BUILD_TYPE:[A-Z]*=//p' "$build/CMakeCache.txt")
echo "== Machine"
echo "date:       $(date -u '+%Y-%m-%d %H:%M UTC')"
echo "cpu:        $(sed -n 's/^model name[[:space:]]*: //p' /proc/cpuinfo | head -n 1)"
echo "cores:      $(nproc) (load average $(cut -d ' ' -f 1-3 /proc/loadavg))"
echo "compiler:   $("$cxx" --version | head -n 1)"
echo "Qt:         $(qtpaths6 --qt-version 2>/dev/null || qmake6 -query QT_VERSION 2>/dev/null || echo unknown)"
echo "build:      $build_type ($build)"
echo "Times are the processor time of the measuring thread unless said otherwise."

echo
echo "== Identifier checks (bench_validate)"
"$build/bench/bench_validate"
echo
echo "== Catalogue (bench_catalogue)"
"$build/bench/bench_catalogue"
echo
echo "== Calling by name (bench_invoke)"
"$build/bench/bench_invoke"
echo
echo "== E-invoices as UBL (bench_einvoice)"
"$build/bench/bench_einvoice"
echo

echo "== Fixed-field records (bench_records)"
"$build/bench/bench_records"
echo
echo "== Keystroke handlers (bench_keystrokes)"
"$build/bench/bench_keystrokes"
echo
echo "== SortArray (bench_sortarray)"
"$build/bench/bench_sortarray"
echo
echo "== Bridge (bench_qorgen_batch, wall time)"
"$build/bench/bench_qorgen_batch" "$build/tools/qorgen/qorgen"
echo
echo "== Against python-stdnum (bench/compare_peer.sh)"
"$source_dir/bench/compare_peer.sh" "$build" ||
    echo "skipped or failed: needs python3 and python3-stdnum (apt-get install python3-stdnum)"
echo
echo "== IBAN checks against python-stdnum (bench/compare_iban.py)"
/usr/bin/python3 "$source_dir/bench/compare_iban.py" "$build" ||
    echo "skipped or failed: needs python3-stdnum (apt-get install python3-stdnum)"
