#!/usr/bin/python3
"""Every pair of the set `places` as dravolin-cli check tells it.

    test_check.py EXECUTABLE
"""
import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

from support import make

EXECUTABLE = pathlib.Path()
PLACES = {"trailing bytes": "bytes behind the end"}
GRADES = {"person": "certain", "identifier": "certain", "UID": "certain", "date": "possible"}


def masked(name):
    return f"<{name[0]}‥‥‥{name[-1]}, {len(name)} characters>"


def grade(plant):
    """A short number in binary may be there by chance."""
    if "alone" in plant["spelling"]:
        return "likely"
    short = plant["encoding"] == "binary" and len(plant["value"]) < 6
    return "possible" if short else GRADES[plant["value_class"]]


def told_path(row):
    """The result's path as a report has it: without a name that identifies somebody."""
    path = pathlib.PurePosixPath(row["path"]).relative_to("RESULT")
    place = row["planted"][0]["place"] if row["planted"] else ""
    return "/".join((masked(path.parts[0]) if place == "folder name" else path.parts[0],
                     masked(path.name) if place == "file name" else path.name))


def places(plant):
    """Where a finding may be said to be. An element of VR UN need not be looked into."""
    place = plant["tag"] or PLACES.get(plant["place"], plant["place"])
    return {place, place.partition("[")[0]} if plant["written_vr"] == "UN" else {place}


class CheckTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        told = make("places", folder / "pairs")
        cls.rows = [file for file in told["files"] if file["path"].startswith("RESULT/")]
        (folder / "report").mkdir()
        words = ["check", "--quiet", "--report", "report", "pairs/ORIGINALS", "pairs/RESULT"]
        cls.ended = subprocess.run([EXECUTABLE, *words], cwd=folder, stdout=subprocess.PIPE,
                                 stderr=subprocess.STDOUT, check=False, timeout=300)
        report = json.loads((folder / "report/report.json").read_text(encoding="utf-8"))
        cls.found = {}
        for finding in report["findings"]:
            cls.found.setdefault(finding["file"], []).append(finding)

    def test_values_were_found(self):
        self.assertEqual((self.ended.returncode, self.ended.stdout), (1, b""))

    def test_each_planted_value_is_found_at_its_place(self):
        for row in self.rows:
            for plant in row["planted"]:
                with self.subTest(row["row"]):
                    findings = self.found.get(told_path(row), [])
                    self.assertNotEqual(findings, [])
                    self.assertLessEqual({finding["place"] for finding in findings}, places(plant))
                    self.assertEqual({finding["class"] for finding in findings}, {plant["value_class"]})

    def test_grades_are_those_of_the_values(self):
        for row in self.rows:
            for plant in row["planted"]:
                if plant["value_class"] in GRADES:
                    with self.subTest(row["row"]):
                        grades = [finding["grade"] for finding in self.found.get(told_path(row), [])]
                        self.assertEqual(min(grades), grade(plant))  # in the order of the alphabet

    def test_nothing_is_found_where_nothing_is_planted(self):
        clean = [row for row in self.rows if not row["planted"]]
        self.assertEqual([row["row"] for row in clean if told_path(row) in self.found], [])
        self.assertGreater(len(clean), 10)

    def test_nothing_is_found_anywhere_else(self):
        self.assertEqual(set(self.found) - {told_path(row) for row in self.rows}, set())


if __name__ == "__main__":
    EXECUTABLE = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
