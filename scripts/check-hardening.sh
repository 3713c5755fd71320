#!/bin/sh
# check-hardening.sh [--linked] PROGRAM...: sees that programs and modules were built so that a fault in memory is hard
# to use: at a random address, with tables that cannot be written once they run, with a stack that cannot be executed,
# and, if not --linked, with checks of the stack, of buffers, and of the targets of jumps. Ends with 1 when one is not.
set -eu

compiled=yes
if [ "${1-}" = --linked ]; then compiled=""; shift; fi
if [ $# = 0 ]; then sed -n '2,4s/^# \{0,1\}//p' "$0" >&2; exit 2; fi

result=0
has() { # WHAT PATTERN: searches the standard input
    if ! grep -q -e "$2" >/dev/null; then
        echo "$program: $1"
        result=1
    fi
}

for program in "$@"; do
    scratch=$(mktemp)
    trap 'rm -f "$scratch"' EXIT
    readelf -hldW --dyn-syms "$program" >"$scratch"
    has "stands at a fixed address" 'Flags: .*\<PIE\>\|DYN (Shared object file)' <"$scratch"
    has "can have its tables written (no RELRO)" '^ *GNU_RELRO ' <"$scratch"
    has "can have its tables written (bound late)" '(FLAGS) *.*\<BIND_NOW\>' <"$scratch"
    has "has a stack that can be executed" '^ *GNU_STACK .* RW  0x' <"$scratch"
    if [ -n "$compiled" ]; then
        has "does not check its stack" '__stack_chk_fail' <"$scratch"
        has "does not check its buffers" '__[a-z]*_chk\>' <"$scratch"
        # a few are in what the compiler adds to every program
        if [ "$(objdump -d -j .text "$program" | grep -c '\<endbr64\>')" -lt 20 ]; then
            echo "$program: does not mark the targets of jumps"
            result=1
        fi
    fi
done
exit $result
