#!/bin/sh
# Our identifier checks against python-stdnum on the same million numbers per
# identifier: checks per second in process, through `qorgen batch`, and the peer's,
# with the ratios and a check that both agree wherever their rules agree.
#
#   bench/compare_peer.sh [BUILD-DIR] [OPTIONS OF compare_peer.py]   (default: build-release)
#
# Needs python3 with python-stdnum (Debian: apt-get install python3-stdnum).
set -eu

source_dir=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-"$source_dir/build-release"}
[ $# -gt 0 ] && shift

if [ ! -f "$build/CMakeCache.txt" ]; then
    cmake -S "$source_dir" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DQORGENLIB_BUILD_TESTS=OFF >/dev/null
fi
cmake --build "$build" --target bench_check_numbers qorgen >/dev/null

# The system's python3 first: that is where the Debian package puts the module.
for python in /usr/bin/python3 python3; do
    if command -v "$python" >/dev/null 2>&1 && "$python" -c "import stdnum" 2>/dev/null; then
        exec "$python" "$source_dir/bench/compare_peer.py" "$build" "$@"
    fi
done
echo "compare_peer.sh needs python3 with python-stdnum (apt-get install python3-stdnum)" >&2
exit 2
