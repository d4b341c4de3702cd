#!/usr/bin/env bash
# Runs every fuzz target over its corpus and then for the given number of
# seconds, one after the other, and writes a summary to fuzz/results.md (or
# the file given as the third argument).
#   bash fuzz/run.sh BUILD_DIR SECONDS [RESULTS] [TARGET...]
# BUILD_DIR is a clang build configured with -DQORGENLIB_SANITIZE=ON -DQORGENLIB_FUZZ=ON.
# Every input of the corpus in the repository runs first, so a SECONDS of a few
# seconds is a quick check that no known input fails again. A finding (crash,
# leak, timeout, sanitizer report) leaves its input in fuzz/findings/ and makes
# the script exit 1. New inputs found on the way are not added to the
# repository's corpus; they stay in a scratch folder that is removed.
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$(cd "$1" && pwd)
seconds="${2:-60}"
results="${3:-$here/results.md}"
shift $(($# < 3 ? $# : 3))
only=("$@")
cmake --build "$build" --target fuzz_targets qorgen >/dev/null || exit 2

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$here/findings"
export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1

rows=()
total=0
failed=0
for source in "$here"/fuzz_*.cpp; do
  name=$(basename "$source" .cpp)
  short=${name#fuzz_}
  if ((${#only[@]})) && [[ ! " ${only[*]} " =~ " $short " ]]; then
    continue
  fi
  target="$build/fuzz/$name"
  if [ ! -x "$target" ]; then
    echo "$short: not built" >&2
    failed=1
    continue
  fi
  mkdir -p "$work/$short"
  cp "$here/corpus/$short"/* "$work/$short/" 2>/dev/null
  if [ "$short" = einvoice ]; then
    # UBL seeds come from the library's own writer, one per test invoice
    # (the leading byte 1 selects UBL), so they follow the writer as it changes.
    for json in "$here/../tests/einvoice/invoices/"*.json; do
      { printf '\001'; "$build/tools/qorgen/qorgen" einvoice write "$json" -o -; } \
        >"$work/$short/$(basename "$json" .json)"
    done
  fi
  dict=()
  [ -f "$here/dict/$short.dict" ] && dict=(-dict="$here/dict/$short.dict")
  log="$work/$short.log"
  started=$(date +%s)
  "$target" "$work/$short" "${dict[@]}" -max_total_time="$seconds" -timeout=25 -rss_limit_mb=2048 \
    -max_len=4096 -print_final_stats=1 -artifact_prefix="$here/findings/$short-" >"$log" 2>&1
  status=$?
  elapsed=$(($(date +%s) - started))
  execs=$(grep -o 'stat::number_of_executed_units: *[0-9]*' "$log" | grep -o '[0-9]*$' | tail -n 1)
  last=$(grep -E '^#[0-9]+' "$log" | grep 'cov:' | tail -n 1)
  cov=$(grep -o 'cov: [0-9]*' <<<"$last" | grep -o '[0-9]*')
  ft=$(grep -o 'ft: [0-9]*' <<<"$last" | grep -o '[0-9]*')
  corpus=$(grep -o 'corp: [0-9]*' <<<"$last" | grep -o '[0-9]*')
  finding="none"
  if [ "$status" -ne 0 ]; then
    finding=$(grep -m 1 -oE 'ERROR: [A-Za-z]+: [A-Za-z-]+|runtime error: .*|SUMMARY: [A-Za-z]+: [A-Za-z-]+' "$log" | head -n 1)
    [ -n "$finding" ] || finding="exit $status"
    failed=1
    tail -n 60 "$log"
  fi
  total=$((total + ${execs:-0}))
  rows+=("| $short | $elapsed | ${execs:-0} | ${cov:-?} | ${ft:-?} | ${corpus:-?} | $finding |")
  echo "$short: ${elapsed} s, ${execs:-0} executions, cov ${cov:-?}, ft ${ft:-?}, findings: $finding"
done

{
  echo "# Fuzzing results"
  echo
  echo "$(date -u +%Y-%m-%d), $(nproc) cores, $(grep -m 1 'model name' /proc/cpuinfo | cut -d: -f2 | xargs),"
  echo "$seconds s per target: \`bash fuzz/run.sh BUILD $seconds\`."
  echo
  echo "| target | seconds | executions | cov (edges) | ft (features) | corpus | findings |"
  echo "|---|---|---|---|---|---|---|"
  printf '%s\n' "${rows[@]}"
  echo
  echo "Total executions: $total."
  # Notes written by hand below the table are kept from run to run.
  [ -f "$results" ] && sed -n '/^## /,$p' "$results" | sed '1s/^/\n/'
} >"$results.new"
mv "$results.new" "$results"
exit $failed
