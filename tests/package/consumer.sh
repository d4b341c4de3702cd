#!/usr/bin/env bash
# Installs the build tree into a temporary prefix and builds the consumer
# example against it twice, through the CMake package and through pkg-config,
# then runs both. The headless consumer must not pull in Qt Gui, Widgets or
# Multimedia, and the core library must export its API and not its internals.
set -euo pipefail
build="$1" source="$2"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix="$work/prefix"

cmake --install "$build" --prefix "$prefix" >/dev/null
libdir=$(dirname "$(find "$prefix" -name 'libqorGenLib.so' | head -n 1)")
[ -n "$libdir" ] || { echo "libqorGenLib.so was not installed"; exit 1; }

echo "== CMake package"
cmake -S "$source/examples/consumer" -B "$work/cmake" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/cmake" >/dev/null
LD_LIBRARY_PATH="$libdir" "$work/cmake/consumer"

echo "== the installed headers need nothing that is not installed"
include="$prefix/include"
find "$include/qorgenlib" -name '*.h' | sort | sed "s|^$include/|#include <|; s|\$|>|" \
  | c++ -std=c++20 -fPIC -fsyntax-only -x c++ - -I"$include" -I"$include/qorgenlib" \
      $(pkg-config --cflags Qt6Widgets Qt6Multimedia)

echo "== pkg-config"
export PKG_CONFIG_PATH="$libdir/pkgconfig"
c++ -std=c++20 -fPIC "$source/examples/consumer/main.cpp" -o "$work/consumer-pc" \
  $(pkg-config --cflags --libs qorgenlib)
LD_LIBRARY_PATH="$libdir" "$work/consumer-pc"

echo "== no GUI libraries in the headless consumer"
if LD_LIBRARY_PATH="$libdir" ldd "$work/cmake/consumer" | grep -E 'libQt6(Gui|Widgets|Multimedia)'; then
  echo "the headless consumer links a GUI library"; exit 1
fi

echo "== exported symbols"
symbols=$(nm -D --defined-only -C "$libdir/libqorGenLib.so")
for public in 'clsqorGenLib::ControleerBankNr' 'qor::CorePlatform::CorePlatform' \
              'qor::RuntimeError::classicDescription' 'typeinfo for qor::RuntimeError'; do
  grep -qF "$public" <<<"$symbols" || { echo "missing public symbol: $public"; exit 1; }
done
for internal in 'qor::checkBankAccount' 'qor::filterNumeric' 'qor::Catalogue::' 'qor::TextMask'; do
  if grep -qF "$internal" <<<"$symbols"; then echo "internal symbol exported: $internal"; exit 1; fi
done
echo "consumer: all checks passed"
