#!/bin/sh
# test.sh [PRESET]: builds and runs every test, plainly (dev), then under the address, undefined behaviour (asan) and
# thread (tsan) sanitizers; with the name of a preset only there.
set -eu
cd "$(dirname "$0")/.."

case "${1-}" in
    "") presets="dev asan tsan" ;;
    dev | asan | tsan) presets=$1 ;;
    *) sed -n '2,3s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
esac
echo "This installs the packages for building and testing, builds Dravolin ($presets) and runs its tests."
scripts/install-packages.sh build test desktop package

for preset in $presets; do
    echo "== $preset"
    cmake --preset "$preset"
    cmake --build --preset "$preset"
    ctest --preset "$preset"
done
