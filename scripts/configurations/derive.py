#!/usr/bin/python3
"""Writes the default configuration and the examples that come with the program, derived from the standard's table.

    derive.py TABLE PROJECT    writes resources/DefaultAnonymizationConfiguration.txt and resources/examples/, and
                               tests/data/listed-attributes.txt: what the default lists, with its VR
    derive.py TABLE            prints the rows of the table that the default does without, and why
"""
import pathlib
import sys

from default import default_sections
from examples import EXAMPLES, named
from private import private_attributes
from sections import text_of
from table import left_out, read

# What the table has no row for.
UNNAMED = {"0008,0051": "SQ IssuerOfAccessionNumberSequence", "0012,0063": "LO DeidentificationMethod",
           "0040,a370": "SQ ReferencedRequestSequence", "0400,0500": "SQ EncryptedAttributesSequence"}
# The elements of overlays and curves.
REPEATING = {"0010": "US Rows", "0011": "US Columns", "0022": "LO Description", "0040": "CS Type", "0050": "SS Origin",
             "0100": "US BitsAllocated", "0102": "US BitPosition", "1500": "LO Label", "3000": "OW Data",
             "4000": "LT Comments"}


def attributes_of(sections, rows):
    """One line for each attribute of the sections: its tag, its VR, and its keyword or creator."""
    known = {row.tag: f"{row.vr} {row.keyword}" for row in rows if len(row.vr) == 2}
    tags = sorted({line.attribute for section in sections for line in section.lines})
    public = [f"{tag} {known.get(tag) or UNNAMED.get(tag) or REPEATING[tag[5:]]}" for tag in tags if int(tag[:4], 16) % 2 == 0]
    return "\n".join(public + private_attributes()) + "\n"


def write(rows, project):
    sections, resources = default_sections(rows), project / "resources"
    (resources / "DefaultAnonymizationConfiguration.txt").write_text(text_of(sections), encoding="utf-8")
    (project / "tests/data/listed-attributes.txt").write_text(attributes_of(sections, rows), encoding="utf-8")
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
