#!/bin/sh
# bench.sh [large]: builds the benchmarks, runs them all, prints each figure beside its limit and ends with 1
# when one is above. "large" adds runs over 100000 folders. What is measured with a tool that does nothing lies
# in memory where possible, so that the disk is on neither side; TMPDIR names another place for everything. A
# busy machine spoils the ratios.
set -u
cd "$(dirname "$0")/.."
scripts/install-packages.sh build test desktop bench || exit 1
cmake --preset bench >/dev/null && cmake --build --preset bench >/dev/null || exit 1
bin=build/bench/bin
memory=${TMPDIR:-/tmp}
[ -n "${TMPDIR:-}" ] || [ ! -w /dev/shm ] || memory=/dev/shm
result=0
run() {
    echo
    echo "== $* (scratch files in ${TMPDIR:-/tmp}; $(uptime | sed 's/.*load/load/'))"
    "$bin/$@" || result=1
}
run bench_overhead folder tree
run bench_run check
echo
echo "== bench_window"
/usr/bin/python3 desktop/in_a_box.py "$PWD/$bin/bench_window" "$PWD/$bin/Dravolin" || result=1
export TMPDIR="$memory"
run bench_overhead stub ${1:-}
run bench_memory
run bench_log
run bench_analysis
run bench_growth
scripts/growth.py "$bin/bench_growth" || result=1
run bench_load
[ -z "${1:-}" ] || run bench_load large
run bench_lut
run bench_configuration
run bench_run small tree medium large table
run bench_worker
run bench_bigint
run bench_check
exit $result
