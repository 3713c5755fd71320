#!/usr/bin/python3
"""Objects with a planted value in each attribute of a list."""
import contextlib
import io
import unittest

import make_objects
from generator.kinds import KINDS
from support import SetTests

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


class AttributesTest(SetTests, unittest.TestCase):
    @classmethod
    def prepared(cls):
        (cls.scratch / "list").write_text(LIST, encoding="utf-8")
        return "attributes", "--list", cls.scratch / "list"

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


if __name__ == "__main__":
    unittest.main()
