#!/usr/bin/python3
"""Makes DICOM objects whose values are known, for tests and benchmarks.

    make_objects.py SET FOLDER [--seed N] [option of the set]...

    plain             objects of every kind that name nobody, CT in every transfer syntax, a DICOMDIR
    attributes        a value that stands nowhere else in each attribute of a list: KIND/plain.dcm has none,
      --list FILE     KIND/planted.dcm has them at the top level, in (0008,1032)[1] and in
                      (0008,1032)[1].(0008,0121)[0], KIND/planted-un.dcm others with VR UN. A sequence of the
                      list has its value in (0008,0104) of its first item. The list has lines of
                      "gggg,eeee VR keyword", for private tags "gggg,eeee VR creator"
    mixed             objects of all kinds, in both byte orders, implicit, explicit, deflated, encapsulated,
      --count N       with undefined lengths and private attributes, nested three deep; several patients
      --pixels BYTES  (each with its character set), studies, and series of 5 in folders of their own. BYTES
      --flat          is the size of one frame. --flat puts all into one folder, --no-directory leaves out the
      --no-directory  DICOMDIR that comes beside the N objects
    places            pairs ORIGINALS/N/image.dcm and RESULT/N/image.dcm: the original has values of every
                      class, the result still has one of them, at one place, in one spelling and encoding, or
                      none; for a file or folder name the result's path differs. In planted.json `row` names
                      the pair, `source` the original's attribute and value
    hostile           damaged, truncated, endless and deeply nested files, false headers, no objects;
      --special       planted.json has the `fault` of each. unusual/ is well-formed. --special adds special/,
                      which is not listed: names that are not UTF-8, links, a pipe

The folder is made when it is not there. planted.json in it describes every file (path, kind, sop_class,
modality, transfer_syntax, character_set, undefined_lengths) and in `planted` each identifying value:

    value, bytes        the text; the bytes without padding as hexadecimal digits
    tag, keyword, vr    tags as (0040,0275)[1].(0032,1060), items counted from 0, digits in lower case;
                        written_vr is UN where the file does not tell the VR
    place               "data set", "private bytes", "file meta", "preamble", "trailing bytes", "file name",
                        "folder name"
    value_class         person, identifier, date, place, contact, device, institution, free text, UID
    spelling, encoding  how the text differs from the original's; the character set of the bytes

The same set, options and seed give the same bytes; another seed gives other UIDs and numbers. A program can
take the package itself: `from generator.sets import mixed`, `from generator.kinds import KINDS`.
"""
import argparse
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent))
from generator.sets import attributes, hostile, mixed, places, plain  # noqa: E402


def arguments(words):
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    sets = parser.add_subparsers(dest="set", required=True)
    options = {name: sets.add_parser(name) for name in SETS}
    for parser_of_set in options.values():
        parser_of_set.add_argument("folder")
        parser_of_set.add_argument("--seed", type=int, default=1)
    options["attributes"].add_argument("--list", required=True)
    options["hostile"].add_argument("--special", action="store_true")
    options["mixed"].add_argument("--count", type=int, required=True)
    options["mixed"].add_argument("--pixels", type=int, default=512)
    options["mixed"].add_argument("--flat", action="store_true")
    options["mixed"].add_argument("--no-directory", dest="directory", action="store_false")
    return parser.parse_args(words)


SETS = {"plain": plain.write, "attributes": attributes.write, "mixed": mixed.write, "places": places.write,
        "hostile": hostile.write}


def main(words):
    options = arguments(words)
    try:
        count = SETS[options.set](pathlib.Path(options.folder), options.seed, options)
    except (OSError, ValueError) as error:
        print(f"make_objects.py: {error}", file=sys.stderr)
        return 1
    print(f"{count} files")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
