#!/usr/bin/python3
"""The generated objects, as DCMTK and dicom3tools read them."""
import contextlib
import io
import json
import pathlib
import shutil
import subprocess
import tempfile
import unittest
import zlib

import make_objects
from dump import dump, shows
from generator.encoding import DEFLATED, EXPLICIT, IMPLICIT, RLE
from generator.kinds import KINDS
from generator.subjects import Instance, Series, Study

LIST = """
# tag, VR and keyword; a private tag has its creator
0008,0020 DA StudyDate
0008,0021 DA SeriesDate
0008,002A DT AcquisitionDateTime
0008,0030 TM StudyTime
0008,0014 UI InstanceCreatorUID
0008,0054 AE RetrieveAETitle
0008,0080 LO InstitutionName
0008,0081 ST InstitutionAddress
0008,1050 PN PerformingPhysicianName
0010,0010 PN PatientName
0010,0020 LO PatientID
0010,0040 CS PatientSex
0010,1002 SQ OtherPatientIDsSequence
0010,1010 AS PatientAge
0010,1030 DS PatientWeight
0010,21B0 LT AdditionalPatientHistory
0018,A002 DT ContributionDateTime
0028,1199 UI PaletteColorLookupTableUID
0040,0555 SQ AcquisitionContextSequence
0040,A730 SQ ContentSequence
0040,4037 PN HumanPerformerName
0018,1042 TM ContrastBolusStartTime
0018,1400 LO AcquisitionDeviceProcessingDescription
0010,21C0 US PregnancyStatus
0008,0119 UC LongCodeValue
0008,0120 UR URNCodeValue
0020,3401 CS ModifyingDeviceID
0020,0013 IS InstanceNumber
0042,0011 OB EncapsulatedDocument
0040,A160 UT TextValue
6000,3000 OW OverlayData
0021,1015 LO A MAKER 1.0
"""
NAMES = {"1.2.840.10008.1.2": "Little Endian Implicit", "1.2.840.10008.1.2.1": "Little Endian Explicit",
         "1.2.840.10008.1.2.2": "Big Endian Explicit",
         "1.2.840.10008.1.2.1.99": "Deflated Explicit VR Little Endian",
         "1.2.840.10008.1.2.5": "RLE Lossless",
         "1.2.840.10008.1.2.4.70": "JPEG Lossless, Non-hierarchical, 1st Order Prediction",
         "1.2.840.10008.1.2.4.90": "JPEG 2000 (Lossless only)"}


def make(*words):
    """Calls the command line without its output. Returns what planted.json says."""
    with contextlib.redirect_stdout(io.StringIO()):
        status = make_objects.main([str(word) for word in words])
    if status:
        raise AssertionError(f"make_objects.py {words} ended with {status}")
    return json.loads((pathlib.Path(words[1]) / "planted.json").read_text(encoding="utf-8"))


def content(path):
    """What follows the file meta information."""
    data = path.read_bytes()
    return data[144 + int.from_bytes(data[140:144], "little"):]


class SetTests:
    """What holds for every set; `words` are the options of one, `check_plants` of a set with values in it."""

    words = ()

    @classmethod
    def setUpClass(cls):
        cls.scratch = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        (cls.scratch / "list").write_text(LIST, encoding="utf-8")
        cls.options = [word.format(scratch=cls.scratch) for word in cls.words]
        cls.folder = cls.scratch / "objects"
        cls.told = make(cls.options[0], cls.folder, *cls.options[1:])
        cls.files = {file["path"]: file for file in cls.told["files"]}
        cls.dumps, cls.remarks = dump(cls.folder, cls.files)

    def objects(self):
        return {path: file for path, file in self.files.items() if file["kind"] != "DICOMDIR"}

    def test_every_file_is_read_without_an_error(self):
        self.assertEqual([line for line in self.remarks if not line.startswith("W:")], [])
        self.assertEqual(sorted(self.dumps), sorted(self.files))

    def test_every_planted_value_stands_at_its_path(self):
        wrong = [(path, plant["tag"], plant["value"]) for path,
                 file in self.files.items() for plant in file["planted"]
                 if not shows(self.dumps[path], plant["tag"], bytes.fromhex(plant["bytes"]))]
        self.assertEqual(wrong, [])

    def test_the_description_names_class_syntax_and_character_set(self):
        for path, file in self.objects().items():
            with self.subTest(path):
                values = self.dumps[path].values
                self.assertEqual(values["(0002,0010)"][1].decode(), f"[{file['transfer_syntax']}]")
                self.assertEqual(values["(0008,0016)"][1].decode(), f"[{file['sop_class']}]")
                self.assertEqual(values["(0002,0002)"], values["(0008,0016)"])
                self.assertEqual(values["(0008,0060)"][1].decode(), f"[{file['modality']}]")
                declared = values.get("(0008,0005)", ("CS", b"[]"))[1].decode()
                self.assertEqual(declared, f"[{file['character_set']}]")

    def test_all_files_are_described(self):
        found = {str(path.relative_to(self.folder)) for path in self.folder.rglob("*") if path.is_file()}
        self.assertEqual(found, {*self.files, "planted.json"})

    def test_the_same_seed_gives_the_same_bytes_and_another_one_others(self):
        again, other = self.scratch / "again", self.scratch / "other"
        make(self.options[0], again, *self.options[1:])
        make(self.options[0], other, *self.options[1:], "--seed", "2")
        for path in [*self.files, "planted.json"]:
            self.assertEqual((again / path).read_bytes(), (self.folder / path).read_bytes(), path)
            self.assertNotEqual((other / path).read_bytes(), (self.folder / path).read_bytes(), path)

    def test_dcmodify_changes_a_copy_of_each_object(self):
        copies = self.scratch / "copies"
        paths = [copies / path for path in self.objects()]
        shutil.copytree(self.folder, copies)
        run = subprocess.run(["dcmodify", "-nb", "-m", "(0020,0011)=77", *paths], stdout=subprocess.PIPE,
                             stderr=subprocess.STDOUT, check=False, timeout=300)
        remarks = [line for line in run.stdout.decode().splitlines()
                   if not line.startswith("W: Found element")]
        changed, _ = dump(copies, self.objects())
        self.assertEqual((run.returncode, remarks), (0, []))
        self.assertEqual({path: dumped.values["(0020,0011)"] for path, dumped in changed.items()},
                         {path: ("IS", b"[77]") for path in self.objects()})


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

    def test_frames_in_rle_come_out_as_they_went_in(self):
        packed = next(path for path, file in self.files.items() if file["syntax"] == RLE.name)
        decoded = self.scratch / "decoded"
        subprocess.run(["dcmdrle", self.folder / packed, decoded], check=True, timeout=60)
        number = int(packed[-6:])
        values, _ = dump(self.scratch, [decoded])
        self.assertEqual(values[str(decoded)].values["(7fe0,0010)"], native_pixels(number))


class AttributesTest(SetTests, unittest.TestCase):
    words = ("attributes", "--list", "{scratch}/list")

    def test_every_attribute_is_planted_at_three_levels_of_every_kind(self):
        listed = [line.split()[0].lower() for line in LIST.splitlines() if line[:1].isdigit()]
        levels = ["", "(0008,1032)[1].", "(0008,1032)[1].(0008,0121)[0]."]
        expected = {f"{level}({tag})" for level in levels for tag in listed}
        for path, file in self.files.items():
            with self.subTest(path):
                found = {plant["tag"].removesuffix("[0].(0008,0104)") for plant in file["planted"]}
                self.assertEqual(found, set() if path.endswith("/plain.dcm") else expected)

    def test_no_value_stands_twice_in_a_kind(self):
        for kind in KINDS:
            plants = [plant for name in ("planted", "planted-un")
                      for plant in self.files[f"{kind}/{name}.dcm"]["planted"]]
            values = [(plant["vr"], plant["value"]) for plant in plants]
            self.assertEqual(len(values), len(set(values)), kind)

    def test_one_file_of_each_kind_does_not_tell_the_vrs(self):
        for path, file in self.files.items():
            written = {plant["written_vr"] for plant in file["planted"]}
            self.assertEqual(written == {"UN"}, path.endswith("/planted-un.dcm"), path)

    def test_a_list_with_another_line_is_refused(self):
        for line in ("0010,0010", "0010,0010 Name PN", "0002,0016 AE SourceApplicationEntityTitle",
                     "0010 0010 PN Name"):
            (self.scratch / "wrong").write_text(line, encoding="utf-8")
            with contextlib.redirect_stderr(io.StringIO()) as said:
                status = make_objects.main(["attributes", str(self.scratch / "w"), "--list",
                                            str(self.scratch / "wrong")])
            self.assertEqual(status, 1, line)
            self.assertIn(f"{self.scratch}/wrong:1: ", said.getvalue())


class MixedTest(SetTests, unittest.TestCase):
    words = ("mixed", "--count", "240", "--pixels", "2000")

    def test_syntaxes_are_what_they_are_called(self):
        for path, file in self.objects().items():
            self.assertEqual(self.dumps[path].syntax, NAMES[file["transfer_syntax"]], path)

    def test_deflated_data_sets_are_streams_without_a_header(self):
        deflated = [path for path, file in self.files.items() if file["transfer_syntax"] == DEFLATED.uid]
        for path in deflated:
            data_set = zlib.decompressobj(-zlib.MAX_WBITS).decompress(content(self.folder / path))
            self.assertEqual(data_set[:2], b"\x08\0", path)
        self.assertGreater(len(deflated), 20)

    def test_every_kind_comes_in_every_syntax_and_with_all_lengths(self):
        found = {(file["kind"], file["syntax"]) for file in self.objects().values()}
        for kind in KINDS.values():
            syntaxes = {syntax for name, syntax in found if name == kind.name}
            self.assertLessEqual({"implicit", "explicit", "big endian", "deflated"}, syntaxes, kind.name)
            self.assertEqual({"RLE", "JPEG", "JPEG 2000"} <= syntaxes, kind.has_pixels, kind.name)
        self.assertEqual(len({json.dumps(file["undefined_lengths"]) for file in self.objects().values()}), 4)

    def test_references_lead_to_objects_of_the_same_study(self):
        objects = {value(dumped, "(0008,0018)"): dumped for path,
                   dumped in self.dumps.items() if path != "DICOMDIR"}
        leads = [(dumped, text(shown)) for dumped in objects.values() for tag, shown in dumped.values.items()
                 if tag.endswith("(0008,1155)") and "(3006,0012)" not in tag.rpartition(".")[0][-14:]]
        self.assertGreater(len(leads), 50)
        for dumped, uid in leads:
            self.assertEqual(value(objects[uid], "(0020,000d)"), value(dumped, "(0020,000d)"))

    def test_what_belongs_to_one_patient_is_the_same_in_all_his_objects(self):
        for outer, inner in (("(0010,0020)", "(0010,0010)"), ("(0010,0020)", "(0010,0030)"),
                             ("(0020,000d)", "(0010,0020)"), ("(0020,000e)", "(0020,000d)"),
                             ("(0020,000d)", "(0008,0020)"), ("(0020,000e)", "(0008,0060)")):
            found = {}
            for path, dumped in self.dumps.items():
                if path != "DICOMDIR":
                    found.setdefault(value(dumped, outer), set()).add(value(dumped, inner))
            self.assertEqual({len(values) for values in found.values()}, {1}, (outer, inner))
            self.assertGreater(len(found), 1)

    def test_the_directory_lists_every_object(self):
        shown = self.dumps["DICOMDIR"].values.items()
        listed = {text(entry).replace("\\", "/") for tag, entry in shown if tag.endswith("(0004,1500)")}
        self.assertEqual(listed, set(self.objects()))

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


def native_pixels(number):
    """What dcmdump shows of the cells of the CT with this number."""
    instance = Instance(Series("1", Study("1"), "1"), "1", number)
    cells = b"".join(KINDS["CT"].make(instance).value("PixelData").frames)
    words = [f"{cells[at + 1]:02x}{cells[at]:02x}" for at in range(0, len(cells), 2)]
    return "OW", "\\".join(words).encode()


if __name__ == "__main__":
    unittest.main()
