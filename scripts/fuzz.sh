#!/bin/sh
# fuzz.sh PROGRAM SECONDS [OPTION...]: builds one of the programs of tests/fuzz with Clang and has libFuzzer feed it for
# so long, on one core, with its corpus in build/fuzz/corpus. The seeds are the generator's objects. An input that ends the
# program is left in build/fuzz/findings, and the exit status is then not 0.
#
#   check   the whole reading of one file: the walk over its bytes, GDCM, the search
set -eu
cd "$(dirname "$0")/.."
if [ $# -lt 2 ]; then sed -n '2,6s/^# \{0,1\}//p' "$0" >&2; exit 2; fi
program=$1
seconds=$2
shift 2
scripts/install-packages.sh build fuzz
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target "fuzz_$program"

work=$PWD/build/fuzz
corpus=$work/corpus/$program
mkdir -p "$corpus" "$work/findings"
if [ ! -d "$work/seeds" ]; then
    for set in hostile places plain; do
        python3 tests/objects/make_objects.py "$set" "$work/seeds/$set" >/dev/null
    done
    find "$work/seeds" -type f ! -name planted.json -size +12k -delete
fi
exec nice -n 19 "$work/fuzz/fuzz_$program" "$corpus" "$work/seeds" -dict=tests/fuzz/object.dict -max_len=8192 -timeout=20 \
    -rss_limit_mb=4096 -artifact_prefix="$work/findings/" -max_total_time="$seconds" -print_final_stats=1 "$@"
