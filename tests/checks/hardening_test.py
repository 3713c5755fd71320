#!/usr/bin/env python3
"""hardening_test.py SOURCE_FOLDER: every source of the programs is compiled with the checks of a release."""

import json
import pathlib
import subprocess
import sys
import tempfile

FLAGS = {"-fstack-protector-strong", "-fstack-clash-protection", "-fcf-protection", "-D_FORTIFY_SOURCE=3", "-O3", "-fPIC"}


def compile_commands(source):
    """What the preset for releases compiles, as pairs of a file and its options."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run(["cmake", "--preset", "release", "-B", folder], cwd=source, check=True,
                       stdout=subprocess.DEVNULL)
        commands = json.loads((pathlib.Path(folder) / "compile_commands.json").read_text(encoding="utf-8"))
    return [(entry["file"], set(entry["command"].split())) for entry in commands]


def main(source):
    commands = compile_commands(source)
    bare = [f"{file} is compiled without {' '.join(sorted(FLAGS - options))}"
            for file, options in commands if not FLAGS <= options]
    print("\n".join(bare) or f"{len(commands)} sources, all as they should be")
    return 1 if bare or not commands else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(sys.argv[1])))
