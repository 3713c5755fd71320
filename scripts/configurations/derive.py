#!/usr/bin/python3
"""Writes the default configuration and the examples that come with the program, derived from the standard's table.

    derive.py TABLE RESOURCES    writes RESOURCES/DefaultAnonymizationConfiguration.txt and RESOURCES/examples/
    derive.py TABLE              prints the rows of the table that the default does without, and why
"""
import pathlib
import sys

from default import default_sections
from examples import EXAMPLES, named
from sections import text_of
from table import left_out, read


def write(rows, resources):
    sections = default_sections(rows)
    (resources / "DefaultAnonymizationConfiguration.txt").write_text(text_of(sections), encoding="utf-8")
    for name, change in EXAMPLES.items():
        file = resources / "examples" / f"AnonymizationConfiguration_{name}.txt"
        file.write_text(text_of(named(name, change(sections, rows))), encoding="utf-8")


def main():
    if len(sys.argv) not in (2, 3):
        sys.exit(__doc__)
    rows = read(sys.argv[1])
    if len(sys.argv) == 3:
        write(rows, pathlib.Path(sys.argv[2]))
    for row in rows:
        if len(sys.argv) == 2 and left_out(row):
            print(row.tag, row.name, left_out(row), sep="\t")


if __name__ == "__main__":
    main()
