#!/usr/bin/env bash
# Installs what is missing, builds, and then runs the main job (no argument:
# the invoice demo when there is a display, else the tour through qorgen), the
# tour (tour) or all tests (test: the suite, then the suite again under
# AddressSanitizer and UndefinedBehaviorSanitizer in build-asan/, then every fuzz
# target briefly over its corpus in the same build).
set -euo pipefail
cd "$(dirname "$0")/.."

job="${1:-main}"
packages=(cmake ninja-build g++ qt6-base-dev qt6-multimedia-dev libgl-dev pkg-config dpkg-dev file clang libclang-rt-14-dev
          fonts-dejavu-core pulseaudio ccache
          libqrencode-dev zbar-tools librsvg2-bin                     # payment QR codes, their decoder and an SVG renderer
          python3-dev pybind11-dev python3-pytest python3-stdnum      # the Python module and its peer
          default-jre-headless libsaxonhe-java                        # the official e-invoice rules
          xvfb openbox xdotool doxygen)

missing=()
for package in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$package")
  fi
done
if ((${#missing[@]})) || ! ls /var/lib/apt/lists/*Packages >/dev/null 2>&1; then
  apt-get update -qq
fi
if ((${#missing[@]})); then
  echo "Installing ${missing[*]}"
  DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

# Objects already compiled on this machine are taken from ccache when it is
# there: paths are made relative to the checkout's parent folder, so that a
# fresh clone elsewhere hits the same entries.
if command -v ccache >/dev/null; then
  export CMAKE_CXX_COMPILER_LAUNCHER=ccache CMAKE_C_COMPILER_LAUNCHER=ccache
  export CCACHE_BASEDIR="$(cd .. && pwd)" CCACHE_NOHASHDIR=true
  export CCACHE_SLOPPINESS=include_file_mtime,include_file_ctime,time_macros
  export CCACHE_MAXSIZE=${CCACHE_MAXSIZE:-20G}
fi

build() {
  cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
  cmake --build build
}

# Under the sanitizers the suite leaves out what only checks the build, the real
# display, resident memory, and the runs of the official e-invoice rules and of
# python-stdnum: those spend their time in Java and Python, and the code they
# drive is run under the sanitizers by its own tests and fuzz targets.
sanitized_tests() {
  # Line tables are all a sanitizer report needs, and they build much faster than
  # full debug information.
  cmake -S . -B build-asan -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_COMPILER=clang++ \
    -DCMAKE_CXX_FLAGS_DEBUG=-gline-tables-only \
    -DQORGENLIB_SANITIZE=ON -DQORGENLIB_FUZZ=ON -DQORGENLIB_BUILD_BENCH=OFF -DBUILD_SHARED_LIBS=OFF >/dev/null
  cmake --build build-asan
  (cd build-asan
   ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
     QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j2 \
       -E '^(layers_|package_|docs_|demo_real_display$|tst_qorgenmemory$|tst_ublvalidation$|tst_peppolexamples$|tst_rulecheck$|payments_against_stdnum$)')
}

# Every fuzz target over its corpus and then a few seconds of fuzzing, so that
# an input that once failed, or a new failure close to the corpus, fails CI.
fuzz_smoke() {
  bash fuzz/run.sh build-asan "${QORGENLIB_FUZZ_SECONDS:-10}" build-asan/fuzz-results.md
}

case "$job" in
  main)
    build
    if [[ -n "${DISPLAY:-}" || -n "${WAYLAND_DISPLAY:-}" ]]; then
      build/examples/qorgenlib-demo
    else
      echo "No display: the tour through qorgen instead of the demo window."
      bash examples/tour.sh build/tools/qorgen/qorgen
    fi
    ;;
  tour)
    build
    bash examples/tour.sh build/tools/qorgen/qorgen
    ;;
  test)
    build
    (cd build && QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j2)
    sanitized_tests
    fuzz_smoke
    ;;
  *)
    echo "usage: $0 [main|tour|test]" >&2
    exit 2
    ;;
esac
