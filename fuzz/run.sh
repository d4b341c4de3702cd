#!/usr/bin/env bash
# Runs every fuzz target for the given number of seconds over its corpus and
# writes a summary to fuzz/results.md (or the file given as the third argument).
#   bash fuzz/run.sh BUILD_DIR SECONDS [RESULTS]
# BUILD_DIR is a clang build configured with -DQORGENLIB_SANITIZE=ON -DQORGENLIB_FUZZ=ON.
# A finding (crash, leak, timeout) leaves its input in fuzz/findings/ and makes
# the script exit 1.
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$(cd "$1" && pwd)
seconds="${2:-60}"
results="${3:-$here/results.md}"
cmake --build "$build" --target fuzz_targets >/dev/null || exit 2

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$here/findings"
export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=detect_leaks=1:allocator_may_return_null=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1

rows=()
total=0
failed=0
for target in "$build"/fuzz/fuzz_*; do
  [ -x "$target" ] || continue
  name=$(basename "$target")
  short=${name#fuzz_}
  mkdir -p "$work/$short"
  cp "$here/corpus/$short"/* "$work/$short/" 2>/dev/null
  dict=()
  [ -f "$here/dict/$short.dict" ] && dict=(-dict="$here/dict/$short.dict")
  log="$work/$short.log"
  "$target" "$work/$short" "${dict[@]}" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
    -max_len=4096 -print_final_stats=1 -artifact_prefix="$here/findings/$short-" >"$log" 2>&1
  status=$?
  execs=$(grep -o 'stat::number_of_executed_units: *[0-9]*' "$log" | grep -o '[0-9]*$' | tail -n 1)
  cov=$(grep -o 'cov: [0-9]*' "$log" | tail -n 1 | grep -o '[0-9]*')
  finding="none"
  if [ "$status" -ne 0 ]; then
    finding=$(grep -m 1 -oE 'ERROR: [A-Za-z]+: [a-z-]+|SUMMARY: [A-Za-z]+: [a-z-]+|runtime error: .*' "$log" | head -n 1)
    [ -n "$finding" ] || finding="exit $status"
    failed=1
    tail -n 40 "$log"
  fi
  total=$((total + ${execs:-0}))
  rows+=("| $short | ${execs:-0} | ${cov:-?} | $finding |")
  echo "$short: ${execs:-0} executions, coverage ${cov:-?}, findings: $finding"
done

{
  echo "# Fuzzing results"
  echo
  echo "$(date -u +%Y-%m-%d), $(nproc) cores, $(grep -m 1 'model name' /proc/cpuinfo | cut -d: -f2 | xargs),"
  echo "$seconds s per target: \`bash fuzz/run.sh BUILD $seconds\`."
  echo
  echo "| target | executions | coverage (edges) | findings |"
  echo "|---|---|---|---|"
  printf '%s\n' "${rows[@]}"
  echo
  echo "Total executions: $total."
} >"$results.new"
mv "$results.new" "$results"
exit $failed
