#!/bin/sh
# package.sh [FOLDER]: builds Dravolin's Debian package in FOLDER (build/package when not given), checks it and says where it is.
set -eu
cd "$(dirname "$0")/.."
folder=${1:-build/package}

scripts/install-packages.sh build package
cmake -S . -B "$folder" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF >/dev/null
cmake --build "$folder"
scripts/check-hardening.sh "$folder/bin/Dravolin" "$folder/bin/dravolin-cli"
# too small to show what is compiled in; a test reads its options
scripts/check-hardening.sh --linked "$folder/lib/dravolin/dravolin-gdcm.so"
(cd "$folder" && cpack -G DEB)
packaging/check.sh "$folder"/dravolin_*.deb
ls "$folder"/dravolin_*.deb
