#!/bin/sh
# fuzz.sh NAME SECONDS [OPTION...]: builds one of the programs of tests/fuzz with Clang and has libFuzzer feed it for so
# long, on one core, with its corpus in build/fuzz/corpus. An input that ends the program is left in
# build/fuzz/findings, and the exit status is then not 0.
#
#   configuration, table     a file, its rules or rows, and these written and read again
#   output                   what the tools print, and its judgement
#   dump                     a line of a search, and the command that follows from it
#   names                    names of files as bytes, as texts, and as words of a shell
#   settings                 the settings file, and the rules for the root in it
#   check                    the whole reading of one file: the walk over its bytes, GDCM, the search
#   all                      each but check, two at a time
set -eu
cd "$(dirname "$0")/.."
if [ $# -lt 2 ]; then sed -n '2,12s/^# \{0,1\}//p' "$0" >&2; exit 2; fi
rules="configuration table output dump names settings"
case "$1" in all) names=$rules ;; *) names=$1 ;; esac
seconds=$2
shift 2
work=$PWD/build/fuzz
# what is written and read for each input lies in memory where possible
if [ -z "${TMPDIR-}" ] && [ -w /dev/shm ]; then export TMPDIR=/dev/shm; fi

feed() { # NAME OPTION...
    name=$1
    shift
    mkdir -p "$work/corpus/$name" "$work/findings"
    nice -n 19 "$work/fuzz/fuzz_$name" "$work/corpus/$name" -timeout=20 -rss_limit_mb=4096 \
        -artifact_prefix="$work/findings/$name-" -max_total_time="$seconds" -print_final_stats=1 "$@"
}

objects() {
    if [ ! -d "$work/seeds" ]; then
        for set in hostile places plain; do
            python3 tests/objects/make_objects.py "$set" "$work/seeds/$set" >/dev/null
        done
        find "$work/seeds" -type f ! -name planted.json -size +12k -delete
    fi
    echo "$work/seeds"
}

seeds_of() {
    case "$1" in check) objects ;; *) echo "$PWD/tests/fuzz/seeds/$1" ;; esac
}

options_of() {
    case "$1" in check) echo "-dict=tests/fuzz/object.dict -max_len=8192" ;; *) echo "-max_len=2048" ;; esac
}

one() { # NAME OPTION...
    name=$1
    shift
    feed "$name" "$(seeds_of "$name")" $(options_of "$name") "$@"
}

# One after the other; what a program says is shown when it has ended.
several() { # NAME...
    result=0
    for each in "$@"; do
        if (one "$each") >"$work/$each.log" 2>&1; then
            echo "== $each: $(sed -n 's/^stat::number_of_executed_units: *//p' "$work/$each.log") inputs"
        else
            echo "== $each"
            tail -n 40 "$work/$each.log"
            result=1
        fi
    done
    return $result
}

scripts/install-packages.sh build fuzz
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target $(printf 'fuzz_%s ' $names)
if [ "$names" != "$rules" ]; then one "$names" "$@"; exit; fi
several configuration table output &
first=$!
result=0
several dump names settings || result=1
wait $first || result=1
exit $result
