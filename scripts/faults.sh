#!/bin/sh
# faults.sh: sets up every fault of tests/faults around the built program, says what comes of each, and writes
# docs/faults.md. Takes a quarter of an hour; wants root, for disks of its own. The short form is a test:
# ctest --preset dev -R faults
set -eu
cd "$(dirname "$0")/.."
if [ $# -gt 0 ]; then sed -n '2,4s/^# \{0,1\}//p' "$0" >&2; exit 2; fi
scripts/install-packages.sh build run test desktop
cmake --preset dev >/dev/null
cmake --build --preset dev --target Dravolin
python=/usr/bin/python3
exec $python desktop/in_a_box.py $python tests/faults/bench.py build/dev/bin/Dravolin docs/faults.md --long
