#!/bin/sh
# test.sh [PRESET]: builds and runs every test, plainly (dev), then under the address, undefined behaviour (asan) and
# thread (tsan) sanitizers; then feeds each parser for a minute (fuzz). With the name of a preset only there. Behind the
# tests under asan it says what they have left out below app/.
set -eu
cd "$(dirname "$0")/.."

case "${1-}" in
    "") presets="dev asan tsan fuzz" ;;
    dev | asan | tsan | fuzz) presets=$1 ;;
    *) sed -n '2,4s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
esac
echo "This installs the packages for building and testing, builds Dravolin ($presets) and runs its tests."
scripts/install-packages.sh build test desktop package fuzz coverage

for preset in $presets; do
    echo "== $preset"
    if [ "$preset" = fuzz ]; then
        scripts/fuzz.sh all 60
        continue
    fi
    cmake --preset "$preset"
    cmake --build --preset "$preset"
    find "build/$preset" -name '*.gcda' -delete # what an earlier run reached
    ctest --preset "$preset"
    if [ "$preset" = asan ]; then scripts/coverage.sh --report; fi
done
