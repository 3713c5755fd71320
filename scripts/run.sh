#!/bin/sh
# Builds Dravolin and starts it.
#
#   scripts/run.sh            starts it; without a display: like --sample
#   scripts/run.sh --sample   shows it at work: starts it on a virtual display, anonymizes a sample study there, prints
#                             what became of it and fails when that is not what it should be
#
# Installs the Debian packages that are missing, as root or with sudo, and says which.
set -eu
cd "$(dirname "$0")/.."

sample=no
case "${1-}" in
    "") if [ -z "${DISPLAY-}" ] && [ -z "${WAYLAND_DISPLAY-}" ]; then sample=yes; fi ;;
    --sample) sample=yes ;;
    *) sed -n '2,8s/^# \{0,1\}//p' "$0"; exit 2 ;;
esac

if [ $sample = yes ]; then
    scripts/install-packages.sh build run desktop
else
    scripts/install-packages.sh build run
fi

echo "Building Dravolin in build/release"
cmake --preset release >/dev/null
cmake --build --preset release

program=$PWD/build/release/bin/Dravolin
if [ $sample = no ]; then
    exec "$program"
fi
python=/usr/bin/python3
exec $python desktop/in_a_box.py $python scripts/sample.py "$program" "$PWD/build/sample"
