#!/bin/sh
# Builds and runs every test: plainly, then under the address, undefined behaviour and thread sanitizers.
set -eu
cd "$(dirname "$0")/.."
echo "This installs the packages for building and testing, builds Dravolin three times and runs all its tests."
scripts/install-packages.sh build test desktop

for preset in dev asan tsan; do
    echo "== $preset"
    cmake --preset "$preset"
    cmake --build --preset "$preset"
    ctest --preset "$preset"
done
