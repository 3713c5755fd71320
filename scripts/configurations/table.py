"""The standard's table of attributes that can tell who a patient is, and how it is cut to a list that is worth its time.

The table is a CSV file with one row an attribute: tag "(gggg,eeee)", name, vr, in_std_comp_iod (Y when an object of
the standard contains the attribute), basic_profile (X, Z, D, U and mixtures: remove, empty, replace, new UID), one
column an option, and dcmodify_erase_all ("ok" when the tool takes the tag). It is Table E.1-1 of DICOM PS3.15.
"""
import csv
import dataclasses
import re

# Every rule below is a list of beginnings of tags: "0040,a7" means all elements A700 to A7FF of group 0040.
INSIDE_ERASED_SEQUENCES = (
    "0018,1009 0040,1101 0040,1102 0040,1103 0040,1104 0040,4036 0040,4037 0040,a027 0040,a030 0040,a075 0040,a082 "
    "0040,a088 0400,0100 0400,0105 0400,0115 0400,0310 0400,0404 0400,0550 0400,0551 0400,0552 0400,0562 0400,0563 "
    "0400,0564 0400,0565").split()

# Second-generation radiotherapy, hanging protocols, implant templates, live video, bulk annotations, displays, film and
# media printing, content assessment, neurophysiology, image pyramids: hardly ever seen in a file.
OBJECTS_NOT_IN_USE = (
    "0008,0019 0008,1088 0020,0027 0034 003a,0314 003a,0329 003a,032b 0044 0068 006a 0070,1101 0070,1102 0072 2100 2200 "
    "3002,0121 3002,0123 3008,016 300a,06 300a,07 300c,0127 3010").split()

# What a camera's receiver adds to the place and the time, which are erased.
WITHOUT_THE_PLACE = (
    "0016,0070 0016,0071 0016,0073 0016,0075 0016,0079 0016,007a 0016,007b 0016,007c 0016,007d 0016,007e 0016,007f "
    "0016,0080 0016,0081 0016,0082 0016,0083 0016,0085 0016,0087 0016,0088 0016,0089 0016,008a 0016,008e").split()

# Although no object of the standard contains these, files do: scanners copy them from the worklist, older files have
# them from the days when the standard did.
COPIED_FROM_WORKLISTS = (
    "0008,009 0008,4 0010 0018,4000 0028,4000 0032,0012 0032,1030 0032,1032 0032,1033 0032,1070 0038,0004 0038,002 "
    "0038,005 0038,03 0038,04 0038,05 0038,4 0040,000 0040,001 0040,02 0040,10 0040,14 0040,20 0040,24 4000 60xx").split()

# They hold a study together, and a configuration cannot give them new values that agree over many files.
STRUCTURAL_UIDS = (
    "0008,0018 0008,1155 0020,000e 0020,0052 0020,0200 0020,9161 0020,9164 0028,1199 0040,0554 0062,0021 0064,0003 "
    "300a,0013 300a,0083 3006,0024 3006,00c2").split()

CONTENT = ["0040,a730"]  # what a structured report says
CODE_TABLES = ["0008,0106", "0008,0107"]  # the versions of code tables, nothing of the patient's
FROM_THE_WINDOW = "0010,0010 0010,0020 0020,000d 0008,0050 0032,4000".split()


@dataclasses.dataclass(frozen=True)
class Row:
    tag: str
    name: str
    keyword: str
    vr: str
    action: str
    in_objects: bool
    taken: bool  # the tool erases this tag
    options: dict

    def keeps(self, option):
        return self.options[option] == "K"


def read(path):
    with open(path, encoding="utf-8", newline="") as file:
        return [row_of(fields) for fields in csv.DictReader(file)]


def row_of(fields):
    return Row(tag=fields["tag"].strip("()").lower(), name=re.sub(r"\s+\(see .*", "", fields["name"], flags=re.DOTALL),
               keyword=fields["keyword"], vr=fields["vr"], action=fields["basic_profile"],
               in_objects=fields["in_std_comp_iod"] == "Y", taken=fields["dcmodify_erase_all"] == "ok",
               options={key: value for key, value in fields.items() if key.startswith("Retain")})


def begins(row, beginnings):
    return row.tag.startswith(tuple(beginnings))


def left_out(row):
    """Why the list does without the row; None for one that it contains."""
    reasons = (
        (not row.taken or begins(row, ["0000", "0002", "0004"]), "no tag that the tool erases, or one of a file's head"),
        (begins(row, FROM_THE_WINDOW), "comes from the window"),
        (begins(row, STRUCTURAL_UIDS), "a UID that holds a study together"),
        (begins(row, CONTENT), "what a structured report says"),
        (begins(row, CODE_TABLES), "the version of a code table"),
        (begins(row, INSIDE_ERASED_SEQUENCES), "only inside sequences that are erased"),
        (begins(row, OBJECTS_NOT_IN_USE), "only in objects that are hardly in use"),
        (begins(row, WITHOUT_THE_PLACE), "says nothing without the place and the time"),
        (not row.in_objects and not begins(row, COPIED_FROM_WORKLISTS), "in no object of the standard"),
    )
    return next((reason for applies, reason in reasons if applies), None)
