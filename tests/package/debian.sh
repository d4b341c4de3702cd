#!/usr/bin/env bash
# Builds the Debian packages of the build tree and checks that they hold what
# a user needs and that apt can install them with their dependencies.
set -euo pipefail
build="$1"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cpack --config "$build/CPackConfig.cmake" -B "$work" >/dev/null
runtime=$(ls "$work"/libqorgenlib[0-9]*.deb)
dev=$(ls "$work"/libqorgenlib-dev*.deb)

runtime_files=$(dpkg-deb -c "$runtime")
dev_files=$(dpkg-deb -c "$dev")
grep -q 'libqorGenLib.so.0' <<<"$runtime_files" || { echo "runtime lacks the core library"; exit 1; }
grep -q 'bin/qorgen$' <<<"$runtime_files" || { echo "runtime lacks qorgen"; exit 1; }
grep -q 'include/qorgenlib/lib/clsqorgenlib.h' <<<"$dev_files" || { echo "dev lacks the headers"; exit 1; }
grep -q 'cmake/qorGenLib/qorGenLibConfig.cmake' <<<"$dev_files" || { echo "dev lacks the CMake package"; exit 1; }
grep -q 'pkgconfig/qorgenlib.pc' <<<"$dev_files" || { echo "dev lacks the pkg-config file"; exit 1; }
grep -q 'libqt6core6' <<<"$(dpkg-deb -f "$runtime" Depends)" || { echo "runtime does not depend on Qt Core"; exit 1; }
grep -q 'qt6-base-dev' <<<"$(dpkg-deb -f "$dev" Depends)" || { echo "dev does not depend on qt6-base-dev"; exit 1; }

packages=("$runtime" "$dev")
# The Python package, when the build made it.
if grep -q '^QORGENLIB_BUILD_PYTHON:BOOL=ON' "$build/CMakeCache.txt"; then
  python=$(ls "$work"/python3-qorgenlib*.deb)
  python_files=$(dpkg-deb -c "$python")
  grep -q 'usr/lib/python3/dist-packages/qorgenlib/__init__.py' <<<"$python_files" \
    || { echo "python lacks the package"; exit 1; }
  grep -q 'usr/lib/python3/dist-packages/qorgenlib/_core\..*\.so' <<<"$python_files" \
    || { echo "python lacks the compiled module"; exit 1; }
  grep -q 'python3 (>=' <<<"$(dpkg-deb -f "$python" Depends)" \
    || { echo "python does not depend on python3"; exit 1; }
  packages+=("$python")
fi

# apt resolves every dependency (nothing is installed).
apt-get install --simulate -qq "${packages[@]}" >/dev/null
echo "debian: the packages check out"
