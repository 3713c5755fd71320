#!/bin/sh
# check-format.sh [--fix]: names every line of the C++ sources that clang-format would write otherwise, and then
# ends with 1; with --fix rewrites the files.
set -eu
cd "$(dirname "$0")/.."

case "${1-}" in
    "") mode="--dry-run --Werror" ;;
    --fix) mode=-i ;;
    *) sed -n '2,3s/^# \{0,1\}//p' "$0" >&2; exit 2 ;;
esac
find . -path ./build -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0 | xargs -0 clang-format $mode
