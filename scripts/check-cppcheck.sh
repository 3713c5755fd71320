#!/bin/sh
# check-cppcheck.sh: runs cppcheck over the program's sources; ends with 1 when it finds something that
# scripts/cppcheck-suppressions.txt does not excuse. It does not read the system's headers, or it would take
# minutes.
set -eu
cd "$(dirname "$0")/.."
exec cppcheck --quiet -j 2 --error-exitcode=1 --enable=warning,performance,portability,information --std=c++20 \
    --language=c++ --library=qt \
    --suppressions-list=scripts/cppcheck-suppressions.txt -I . \
    app base batch check cli config dicom identifiers processing run
