#!/usr/bin/python3
"""Objects of all kinds, written in all ways."""
import collections
import json
import unittest

from generator.encoding import DEFLATED, EXPLICIT, IMPLICIT, JPEG_2000
from generator.kinds import KINDS
from support import SetTests, make, split

ITEM_TAG = b"\xfe\xff\x00\xe0"
PIXELS = b"\xe0\x7f\x10\x00OB\0\0\xff\xff\xff\xff"
# What dcmdump calls the transfer syntaxes.
NAMES = {"1.2.840.10008.1.2": "Little Endian Implicit", "1.2.840.10008.1.2.1": "Little Endian Explicit",
         "1.2.840.10008.1.2.2": "Big Endian Explicit",
         "1.2.840.10008.1.2.1.99": "Deflated Explicit VR Little Endian",
         "1.2.840.10008.1.2.5": "RLE Lossless",
         "1.2.840.10008.1.2.4.70": "JPEG Lossless, Non-hierarchical, 1st Order Prediction",
         "1.2.840.10008.1.2.4.90": "JPEG 2000 (Lossless only)"}


class MixedTest(SetTests, unittest.TestCase):
    words = ("mixed", "--count", "240", "--pixels", "2000")

    def test_syntaxes_are_what_they_are_called(self):
        for path, file in self.objects().items():
            self.assertEqual(self.dumps[path].syntax, NAMES[file["transfer_syntax"]], path)

    def test_deflated_data_sets_are_streams_without_a_header(self):
        deflated = [path for path, file in self.files.items() if file["transfer_syntax"] == DEFLATED.uid]
        for path in deflated:
            data = (self.folder / path).read_bytes()
            self.assertNotIn(b"GENERATED 1", data, path)
            self.assertIn(b"GENERATED 1", split(data)[2], path)
        self.assertGreater(len(deflated), 20)

    def test_every_kind_comes_in_every_syntax_and_with_all_lengths(self):
        found = {(file["kind"], file["syntax"]) for file in self.objects().values()}
        for kind in KINDS.values():
            syntaxes = {syntax for name, syntax in found if name == kind.name}
            self.assertLessEqual({"implicit", "explicit", "big endian", "deflated"}, syntaxes, kind.name)
            self.assertEqual({"RLE", "JPEG", "JPEG 2000"} <= syntaxes, kind.has_pixels, kind.name)
        self.assertEqual(len({json.dumps(file["undefined_lengths"]) for file in self.objects().values()}), 4)

    def test_names_and_uids_stand_nowhere_but_where_they_are_told(self):
        for path, file in self.files.items():
            data_set = split((self.folder / path).read_bytes())[2]
            told = collections.Counter(plant["bytes"] for plant in file["planted"]
                                       if plant["value_class"] in ("person", "UID"))
            found = {written: data_set.count(bytes.fromhex(written)) for written in told}
            self.assertEqual(found, dict(told), path)
            self.assertGreater(len(told), 3, path)

    def test_references_lead_to_objects_of_the_same_study(self):
        objects = {value(self.dumps[path], "(0008,0018)"): self.dumps[path] for path in self.objects()}
        # A structure set names the study itself in its (3006,0012).
        leads = [(dumped, text(shown)) for dumped in objects.values() for tag, shown in dumped.values.items()
                 if tag.endswith("(0008,1155)") and not tag.endswith("(3006,0012)[0].(0008,1155)")]
        self.assertGreater(len(leads), 50)
        for dumped, uid in leads:
            self.assertEqual(value(objects[uid], "(0020,000d)"), value(dumped, "(0020,000d)"))

    def test_what_belongs_to_one_patient_is_the_same_in_all_his_objects(self):
        for outer, inner in (("(0010,0020)", "(0010,0010)"), ("(0010,0020)", "(0010,0030)"),
                             ("(0020,000d)", "(0010,0020)"), ("(0020,000e)", "(0020,000d)"),
                             ("(0020,000d)", "(0008,0020)"), ("(0020,000e)", "(0008,0060)")):
            found = {}
            for path in self.objects():
                found.setdefault(value(self.dumps[path], outer), set()).add(value(self.dumps[path], inner))
            self.assertEqual({len(values) for values in found.values()}, {1}, (outer, inner))
            self.assertGreater(len(found), 1)

    def test_the_directory_lists_every_object(self):
        shown = self.dumps["DICOMDIR"].values.items()
        listed = {text(entry).replace("\\", "/") for tag, entry in shown if tag.endswith("(0004,1500)")}
        self.assertEqual(listed, set(self.objects()))

    def test_the_directory_leads_to_each_record_once(self):
        data = (self.folder / "DICOMDIR").read_bytes()
        shown = self.dumps["DICOMDIR"].values
        records = {tag.partition(".")[0] for tag in shown if tag.startswith("(0004,1220)[")}
        leads = [int(number) for tag, (_, number) in shown.items()
                 if tag == "(0004,1200)" or tag.endswith((".(0004,1400)", ".(0004,1420)"))]
        leads = [offset for offset in leads if offset]
        self.assertEqual(len(set(leads)), len(leads))
        self.assertEqual(len(leads), len(records))
        self.assertEqual({data[offset:offset + 4] for offset in leads}, {ITEM_TAG})

    def test_offset_tables_lead_to_the_frames(self):
        frames = 0
        for path, file in self.files.items():
            if file["syntax"] == JPEG_2000.name:
                pixels = split((self.folder / path).read_bytes())[2].partition(PIXELS)[2]
                size = int.from_bytes(pixels[4:8], "little")
                for at in range(0, size, 4):
                    frame = pixels[8 + size + int.from_bytes(pixels[8 + at:12 + at], "little"):]
                    self.assertEqual((frame[:4], frame[8:12]), (ITEM_TAG, b"\xff\x4f\xff\x51"), path)
                    frames += 1
                self.assertGreater(pixels.count(ITEM_TAG), size // 4 * 2, path)
        self.assertGreater(frames, 20)

    def test_sizes_folders_and_the_directory_can_be_chosen(self):
        flat = self.scratch / "flat"
        told = make("mixed", flat, "--count", "20", "--pixels", "100000", "--flat", "--no-directory")
        self.assertEqual([file["path"] for file in told["files"]],
                         [f"IM{number:06}" for number in range(1, 21)])
        sizes = [(flat / file["path"]).stat().st_size for file in told["files"]
                 if file["kind"] in ("CT", "MR") and file["syntax"] in (EXPLICIT.name, IMPLICIT.name)]
        self.assertTrue(sizes and all(98000 < size < 104000 for size in sizes), sizes)


def text(shown):
    return shown[1].decode("latin-1").strip("[]")


def value(dumped, tag):
    return text(dumped.values[tag])


if __name__ == "__main__":
    unittest.main()
