#!/bin/sh
# coverage.sh [--report]: says which lines of the rooms below app/ no test reaches, and ends with 1 when it is more than
# three in a hundred of all. Without --report it first builds these rooms with the preset asan, whose programs tell what
# they reach, and runs the rooms' own tests. The same line by line is in build/asan/coverage.
set -eu
cd "$(dirname "$0")/.."
rooms="base identifiers config run processing"
build=build/asan

case "${1-}" in
    "")
        scripts/install-packages.sh build test desktop coverage
        cmake --preset asan >/dev/null
        cmake --build --preset asan --target $(printf '%s_tests ' $rooms)
        find $build -name '*.gcda' -delete # of an earlier run
        for room in $rooms; do
            ctest --test-dir "$build/tests/$room" --output-on-failure -j 2
        done
        ;;
    --report) ;;
    *) sed -n '2,4s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
esac
mkdir -p $build/coverage
gcovr --root . --exclude-throw-branches --exclude-unreachable-branches $(printf -- '--filter %s/ ' $rooms) $build \
    --txt --print-summary --html-details $build/coverage/index.html --fail-under-line 97
