#!/usr/bin/python3
"""Damaged and unusual files are what they are said to be."""
import os
import pathlib
import stat
import tempfile
import unittest

from dump import dump
from support import contents, make, unexpected


class HostileTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        cls.folder = cls.scratch / "objects"
        cls.told = make("hostile", cls.folder)
        cls.files = contents(cls.folder)
        del cls.files[pathlib.Path("planted.json")]

    def test_every_file_is_told_with_its_fault(self):
        self.assertEqual({file["path"] for file in self.told["files"]}, set(map(str, self.files)))
        self.assertEqual([file["path"] for file in self.told["files"] if not file["fault"]], [])

    def test_the_same_seed_gives_the_same_bytes(self):
        again = self.scratch / "again"
        make("hostile", again)
        self.assertEqual(contents(again), contents(self.folder))

    def test_sequences_are_as_deep_as_they_say(self):
        depths = set()
        for path, data in self.files.items():
            if path.parts[0] == "nested":
                depth = int(path.name.split("-")[0])
                self.assertEqual(data.count(b"\xfe\xff\x00\xe0"), depth, path)
                depths.add(depth)
        self.assertEqual(depths, {50, 1000, 10000, 100000})

    def test_sequences_of_moderate_depth_are_sound(self):
        paths = [path for path in self.files if path.parts[0] == "nested" and path.name.startswith("50-")
                 and "open" not in path.name]
        dumps, remarks = dump(self.folder, paths)
        self.assertEqual(unexpected(remarks), [])
        self.assertEqual({max(tag.count(".") for tag in dumped.values) for dumped in dumps.values()}, {49})
        self.assertEqual(len(dumps), 4)

    def test_truncated_files_are_beginnings_of_a_sound_one(self):
        cut = {path: data for path, data in self.files.items() if path.parts[0] == "truncated"}
        for kind in ("explicit", "undefined", "implicit", "encapsulated", "deflated"):
            sizes = {int(path.stem.rpartition("-")[2]): data for path, data in cut.items()
                     if path.name.startswith(kind)}
            self.assertGreater(len(sizes), 40)
            longest = sizes[max(sizes)]
            self.assertEqual({size: longest[:size] for size in sizes}, sizes, kind)

    def test_unusual_files_are_sound(self):
        paths = [path for path in self.files if path.parts[0] == "unusual"]
        dumps, remarks = dump(self.folder, paths)
        self.assertEqual(unexpected(remarks), [])
        self.assertEqual(len(dumps), len(paths))

    def test_special_files_come_when_they_are_asked_for(self):
        folder = self.scratch / "special"
        self.assertEqual(make("hostile", folder, "--special"), self.told)
        names = os.listdir(os.fsencode(folder / "special"))
        self.assertIn(b"not-\xff\xfe-utf-8.dcm", names)
        self.assertTrue(stat.S_ISFIFO((folder / "special/pipe.dcm").stat().st_mode))
        self.assertEqual(sum((folder / "special" / os.fsdecode(name)).is_symlink() for name in names), 3)


if __name__ == "__main__":
    unittest.main()
