#!/bin/sh
# mutate.sh [--check] [WORD...]: sees that tests notice when the program is broken; scripts/mutate.py says how.
set -eu
cd "$(dirname "$0")/.."
scripts/install-packages.sh build test desktop
exec python3 scripts/mutate.py "$@"
