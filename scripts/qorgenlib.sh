#!/usr/bin/env bash
# Installs what is missing, builds, and then runs the tour (tour) or all tests (test).
set -euo pipefail
cd "$(dirname "$0")/.."

job="${1:-test}"
packages=(cmake ninja-build g++ qt6-base-dev qt6-multimedia-dev libgl-dev fonts-dejavu-core)

missing=()
for package in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$package")
  fi
done
if ((${#missing[@]})); then
  echo "Installing ${missing[*]}"
  apt-get update -qq
  DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build

case "$job" in
  tour)
    bash examples/tour.sh build/tools/qorgen/qorgen
    ;;
  test)
    cd build
    QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j2
    ;;
  *)
    echo "usage: $0 tour|test" >&2
    exit 2
    ;;
esac
