#!/bin/sh
# coverage.sh: builds and runs the tests of the rooms below app/ so that they tell what they reach, prints the lines of
# each source that no test reaches, and ends with 1 when it is more than three in a hundred of all. The same line by line
# is in build/coverage/report.
set -eu
cd "$(dirname "$0")/.."
rooms="base identifiers config run processing"

scripts/install-packages.sh build test desktop coverage
cmake --preset coverage >/dev/null
cmake --build --preset coverage --target $(printf '%s_tests ' $rooms)
find build/coverage -name '*.gcda' -delete # of an earlier run
for room in $rooms; do
    ctest --test-dir "build/coverage/tests/$room" --output-on-failure -j 2
done
mkdir -p build/coverage/report
gcovr --root . --exclude-throw-branches --exclude-unreachable-branches $(printf -- '--filter %s/ ' $rooms) build/coverage \
    --txt --print-summary --html-details build/coverage/report/index.html --fail-under-line 97
