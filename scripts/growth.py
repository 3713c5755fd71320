#!/usr/bin/env python3
"""growth.py PROGRAM: how the work of each parser grows with what it reads; ends with 1 when ten times as much takes
more than twelve times the work.

Work is the number of instructions that valgrind counts, so that a busy machine, its memory and its caches do not show.
PROGRAM is bench_growth.
"""

import re
import subprocess
import sys

LIMIT = 12
PARSERS = {"configuration-tabs": 5_000, "configuration-spaces": 5_000, "table-tabs": 20_000, "table-spaces": 20_000,
           "output-errors": 20_000, "output-folders": 20_000, "search": 20_000, "table-markers": 3_000}


def instructions(*command):
    """What the command executes; it has to succeed."""
    counted = subprocess.run(["valgrind", "--tool=cachegrind", "--cache-sim=no", "--cachegrind-out-file=/dev/null",
                              *command], check=True, text=True, stderr=subprocess.PIPE)
    return int(re.search(r"I +refs: +([\d,]+)", counted.stderr).group(1).replace(",", ""))


def work(program, name, size):
    """Without the making of what is read."""
    return instructions(program, name, str(size)) - instructions(program, name, str(size), "only")


def main(program):
    result = 0
    for name, size in PARSERS.items():
        factor = work(program, name, size * 10) / work(program, name, size)
        above = factor > LIMIT
        print(f"{name + f', {size * 10} lines beside {size}':<64} {factor:10.1f} x        limit {LIMIT}"
              f"{'   ABOVE' if above else ''}", flush=True)
        result = 1 if above else result
    return result


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1]))
