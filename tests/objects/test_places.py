#!/usr/bin/python3
"""Pairs of an original and a result that still has one of its values."""
import pathlib
import re
import subprocess
import unittest

from dump import dump
from support import SetTests, split

PLACES = {"data set", "private bytes", "file meta", "preamble", "trailing bytes", "file name", "folder name"}
CLASSES = {"person", "identifier", "date", "place", "contact", "device", "institution", "free text", "UID"}
VRS = {"AE", "CS", "DA", "DS", "DT", "FD", "FL", "IS", "LO", "LT", "OB", "OD", "OF", "OL", "OW", "PN", "SH",
       "SL", "SS", "ST", "SV", "TM", "UC", "UI", "UL", "UR", "US", "UT", "UV"}


class PlacesTest(SetTests, unittest.TestCase):
    words = ("places",)

    def results(self):
        return {path: file for path, file in self.files.items() if path.startswith("RESULT/")}

    def plants(self):
        return {path: file["planted"][0] for path, file in self.results().items() if file["planted"]}

    def test_each_row_has_a_name_of_its_own_and_at_most_one_value(self):
        names = [file["row"] for file in self.results().values()]
        self.assertEqual(len(names), len(set(names)))
        for path, file in self.results().items():
            expected = 0 if file["row"].startswith("nothing planted") else 1
            self.assertEqual(len(file["planted"]), expected, path)

    def test_every_place_vr_and_class_has_a_row(self):
        plants = self.plants().values()
        self.assertEqual({plant["place"] for plant in plants}, PLACES)
        self.assertEqual({plant["value_class"] for plant in plants}, CLASSES)
        self.assertEqual(VRS - {plant["vr"] for plant in plants}, set())

    def test_a_value_stands_where_it_is_said_to(self):
        for path, plant in self.plants().items():
            with self.subTest(path):
                preamble, header, rest = split((self.folder / path).read_bytes())
                name = pathlib.PurePosixPath(path)
                where = {"preamble": preamble, "file meta": header, "trailing bytes": rest[-100:],
                         "file name": name.name.encode(), "folder name": name.parent.name.encode()}
                self.assertIn(bytes.fromhex(plant["bytes"]), where.get(plant["place"], rest))

    def test_names_are_in_the_declared_character_sets(self):
        plants = {path: file for path, file in self.results().items() if " to " in file["row"]}
        for path, file in plants.items():
            plant = file["planted"][0]
            if "ISO 2022 IR 87" in file["character_set"]:  # nothing that DCMTK converts
                run = subprocess.run(["iconv", "-f", "ISO-2022-JP", "-t", "UTF-8"], check=True, timeout=60,
                                     input=bytes.fromhex(plant["bytes"]), stdout=subprocess.PIPE)
                self.assertEqual(run.stdout.decode(), plant["value"])
            else:
                dumps, remarks = dump(self.folder, [path], "+U8")
                self.assertEqual(remarks, [])
                self.assertEqual(dumps[path].values[plant["tag"]], ("PN", f"[{plant['value']}]".encode()))
        self.assertEqual(len(plants), 18)

    def test_nothing_else_of_the_original_is_in_a_result(self):
        for path, file in self.results().items():
            with self.subTest(path):
                everything = path.encode() + b"".join(split((self.folder / path).read_bytes()))
                for plant in file["planted"]:
                    everything = everything.replace(bytes.fromhex(plant["bytes"]), b"", 1)
                others = [bytes.fromhex(plant["bytes"]) for plant in self.files[file["original"]]["planted"]]
                self.assertGreater(len(others), 10)
                self.assertEqual([value for value in others if stands_in(value, everything)], [])

    def test_values_are_those_of_the_original(self):
        for path, file in self.results().items():
            if file["planted"]:
                source = file["source"]
                values = [(plant["tag"], plant["keyword"], plant["value"])
                          for plant in self.files[file["original"]]["planted"]]
                self.assertIn((source["tag"], source["keyword"], source["value"]), values, path)
                self.assertTrue(file["planted"][0]["spelling"]
                                or file["planted"][0]["value"] in source["value"], path)


def stands_in(value, data):
    """As a word of its own: short numbers are parts of UIDs."""
    return re.search(rb"(?<![0-9A-Za-z])" + re.escape(value) + rb"(?![0-9A-Za-z])", data) is not None


if __name__ == "__main__":
    unittest.main()
