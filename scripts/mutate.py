#!/usr/bin/env python3
"""mutate.py [--check] [WORD...]: breaks the program at many places, one at a time, and sees that a test notices each.

tests/mutations/*.txt list the places: lines "file PATH" and "test NAME" hold for what follows them; "- TEXT" and
"+ TEXT" are a piece of a line that the file has exactly once, and what takes its place. The test has to fail with it.
WORDs choose the mutations of the files and tests whose names contain one of them. Ends with 1 when a mutation goes
unnoticed, does not compile, or its text is not there exactly once; --check looks for the texts only. All of it happens on
a copy of the sources, in build/mutations.
"""

import dataclasses
import os
import pathlib
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORK = ROOT / "build" / "mutations"
SOURCE = WORK / "source"
BUILD = WORK / "build"
TIME_LIMIT = 120  # seconds; a test that hangs has noticed


@dataclasses.dataclass
class Mutation:
    place: str  # in the list
    file: str
    test: str
    text: str
    replacement: str

    def fits(self, folder):
        return (folder / self.file).read_text(encoding="utf-8").count(self.text) == 1


def mutations():
    for path in sorted((ROOT / "tests" / "mutations").glob("*.txt")):
        file = test = text = None
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            mark, _, rest = line.partition(" ")
            if mark == "file":
                file = rest
            elif mark == "test":
                test = rest
            elif mark == "-":
                text = rest
            elif mark == "+":
                yield Mutation(f"{path.name}:{number}", file, test, text, rest)
            elif line and mark != "#":
                sys.exit(f"{path}:{number}: not a line of a list")


def copy_sources():
    """Brings the copy up to date; what has not changed keeps its time, so that it is not built again."""
    for path in ROOT.rglob("*"):
        name = path.relative_to(ROOT)
        if name.parts[0] in {"build", ".git"} or not path.is_file():
            continue
        copy = SOURCE / name
        if not copy.exists() or copy.read_bytes() != path.read_bytes():
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(path, copy)


def configure():
    subprocess.run(["cmake", "-G", "Ninja", "-S", SOURCE, "-B", BUILD, "-D", "CMAKE_BUILD_TYPE=Debug",
                    "-D", "DRAVOLIN_PRECOMPILE=ON"], check=True, stdout=subprocess.DEVNULL)


def command_of(test):
    """How the executable of the test's room is told to run it."""
    room, = (file.parent.name for file in (SOURCE / "tests").glob(f"*/{test}.cpp"))
    return [BUILD / "tests" / f"{room}_tests", test]


def build(command):
    return subprocess.run(["cmake", "--build", BUILD, "--target", command[0].name], check=False,
                          stdout=subprocess.DEVNULL).returncode == 0


def passes(command):
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "LC_ALL": "C.UTF-8"}
    try:
        return subprocess.run(command, env=environment, timeout=TIME_LIMIT, check=False, stdout=subprocess.DEVNULL,
                              stderr=subprocess.DEVNULL).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def verdict(mutation, command):
    file = SOURCE / mutation.file
    original = file.read_text(encoding="utf-8")
    try:
        file.write_text(original.replace(mutation.text, mutation.replacement), encoding="utf-8")
        if not build(command):
            return "does not compile"
        return "unnoticed" if passes(command) else "noticed"
    finally:
        file.write_text(original, encoding="utf-8")


def main(arguments):
    words = [argument for argument in arguments if argument != "--check"]
    chosen = [mutation for mutation in mutations()
              if not words or any(word in mutation.file or word in mutation.test for word in words)]
    failures = [f"{mutation.place}: {mutation.file} does not have exactly once: {mutation.text}"
                for mutation in chosen if not mutation.fits(ROOT)]
    if "--check" not in arguments and not failures:
        copy_sources()
        configure()
        commands = {mutation.test: command_of(mutation.test) for mutation in chosen}
        for test in sorted(commands):
            if not build(commands[test]) or not passes(commands[test]):
                sys.exit(f"{test} fails without a mutation")
        for mutation in chosen:
            result = verdict(mutation, commands[mutation.test])
            print(f"{result:9} {mutation.place} {mutation.file}: {mutation.text} -> {mutation.replacement}", flush=True)
            if result != "noticed":
                failures.append(f"{mutation.place}: {result} by {mutation.test}: {mutation.text}")
    print("\n".join(failures) or f"{len(chosen)} mutations, all in order")
    return 1 if failures or not chosen else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
