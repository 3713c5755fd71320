#!/usr/bin/python3
"""Objects that name nobody, as DCMTK and dicom3tools read them."""
import subprocess
import unittest

from dump import dump
from generator.encoding import RLE
from generator.kinds import KINDS
from generator.subjects import Instance, Series, Study
from support import SetTests


class PlainTest(SetTests, unittest.TestCase):
    words = ("plain",)

    def test_there_is_every_kind_and_every_syntax(self):
        kinds = [file["kind"] for file in self.files.values()]
        self.assertEqual(set(kinds), {*KINDS, "DICOMDIR"})
        self.assertEqual({file["syntax"] for file in self.files.values()},
                         {"implicit", "explicit", "big endian", "deflated", "RLE", "JPEG", "JPEG 2000"})

    def test_nothing_is_planted(self):
        self.assertEqual([file["path"] for file in self.files.values() if file["planted"]], [])

    def test_the_validator_finds_no_error(self):
        for path in [f"{kind}/IM000001" for kind in KINDS] + ["DICOMDIR"]:
            with self.subTest(path):
                run = subprocess.run(["dciodvfy", self.folder / path], stdout=subprocess.PIPE,
                                     stderr=subprocess.STDOUT, check=False, timeout=60)
                said = run.stdout.decode(errors="replace").splitlines()
                self.assertEqual([line for line in said if "Error" in line], [])
                self.assertGreater(len(said), 0)

    def test_the_cells_are_the_same_in_every_native_syntax(self):
        native = [path for path, file in self.files.items() if file["kind"] == "CT"
                  and file["syntax"] in ("implicit", "explicit", "big endian", "deflated")]
        for path in native:
            self.assertEqual(self.dumps[path].values["(7fe0,0010)"], native_pixels(int(path[-6:])), path)
        self.assertEqual(len(native), 5)

    def test_frames_in_rle_come_out_as_they_went_in(self):
        packed = next(path for path, file in self.files.items() if file["syntax"] == RLE.name)
        decoded = self.scratch / "decoded"
        subprocess.run(["dcmdrle", self.folder / packed, decoded], check=True, timeout=60)
        number = int(packed[-6:])
        values, _ = dump(self.scratch, [decoded])
        self.assertEqual(values[str(decoded)].values["(7fe0,0010)"], native_pixels(number))


def native_pixels(number):
    """What dcmdump shows of the cells of the CT with this number."""
    instance = Instance(Series("1", Study("1"), "1"), "1", number)
    cells = b"".join(KINDS["CT"].make(instance).value("PixelData").frames)
    words = [f"{cells[at + 1]:02x}{cells[at]:02x}" for at in range(0, len(cells), 2)]
    return "OW", "\\".join(words).encode()


if __name__ == "__main__":
    unittest.main()
