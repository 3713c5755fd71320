#!/usr/bin/env python3
"""check-tidy.py: runs clang-tidy with the checks of .clang-tidy over the program's sources; ends with 1 when it finds
something.

Twenty sources are read as one, because reading Qt's headers is nearly all of the work. Where that cannot be compiled (two
of them use a name for themselves) each half of them is.
"""

import concurrent.futures
import json
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "tidy"
AT_ONCE = 20
PROCESSES = 2


def prepare():
    """The compile commands, and what is made for the compiler: headers from layouts, a table of attributes."""
    for command in (["cmake", "--preset", "tidy"],
                    ["cmake", "--build", BUILD, "--target", "autogen", "dictionary_table"]):
        subprocess.run(command, cwd=ROOT, check=True, stdout=subprocess.DEVNULL)


def batches():
    """Lists of sources that are compiled with the same options, each with these options."""
    sources = {}
    for entry in json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8")):
        if BUILD in pathlib.Path(entry["file"]).parents:
            continue
        options = re.sub(r" (-o|-c) \S+", "", entry["command"].split(" ", 1)[1])
        sources.setdefault(options, []).append(entry["file"])
    for options, files in sources.items():
        for start in range(0, len(files), AT_ONCE):
            yield files[start:start + AT_ONCE], shlex.split(options)


def findings(file, options):
    """What clang-tidy says about one file; empty when it finds nothing."""
    run = subprocess.run(["clang-tidy", "--quiet", file, "--", *options], cwd=BUILD, text=True, check=False,
                         stdout=subprocess.PIPE, stderr=subprocess.PIPE)
    return run.stdout or (run.stderr if run.returncode else "")


def check(files, options):
    with tempfile.NamedTemporaryFile("w", suffix=".cpp", dir=BUILD, encoding="utf-8") as together:
        together.write("".join(f'#include "{file}"\n' for file in files))
        together.flush()
        found = findings(together.name, options)
    if "clang-diagnostic-error" in found and len(files) > 1:
        half = len(files) // 2
        found = check(files[:half], options) + check(files[half:], options)
    return found


def main():
    prepare()
    with concurrent.futures.ThreadPoolExecutor(PROCESSES) as pool:
        jobs = [pool.submit(check, *batch) for batch in batches()]
        found = "".join(job.result() for job in jobs)
    print(found or f"{len(jobs)} batches, nothing found")
    return 1 if found or not jobs else 0


if __name__ == "__main__":
    sys.exit(main())
