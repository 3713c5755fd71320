#!/bin/sh
# bench.sh [large]: builds the benchmarks, runs them all, prints each figure beside its limit and ends with 1
# when one is above. "large" adds a run over 100000 folders. The scratch files lie in memory where possible, so
# that the disk is measured on neither side; TMPDIR names another place. A busy machine spoils the ratios.
set -u
cd "$(dirname "$0")/.."
cmake --preset bench >/dev/null && cmake --build --preset bench >/dev/null || exit 1
if [ -z "${TMPDIR:-}" ] && [ -w /dev/shm ]; then
    TMPDIR=/dev/shm
fi
export TMPDIR="${TMPDIR:-/tmp}"
echo "scratch files in $TMPDIR; $(uptime | sed 's/.*load/load/')"
bin=build/bench/bin
result=0
for benchmark in "bench_overhead folder tree stub ${1:-}" bench_analysis bench_memory bench_bigint; do
    echo
    echo "== $benchmark"
    $bin/$benchmark || result=1
done
exit $result
