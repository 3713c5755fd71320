#!/usr/bin/env python3
"""Writes check/IdentifyingAttributes.inc: identifying-attributes.py TABLE > check/IdentifyingAttributes.inc

TABLE is the table of attributes of the basic confidentiality profile (DICOM PS3.15, E.1-1) as CSV with the columns
tag, keyword, vr, RetainDeviceId, RetainInstitutionId and CleanDescriptors. Each attribute whose values say
something about a person comes out with its class. Left out are repeating groups, private attributes, defined
terms, numbers and binary values: they identify nobody, or are found by the value of another one.
"""

import csv
import re
import sys

# Sequences of the table whose items hold codes that name a person or a place.
PEOPLE = re.compile(
    r"(Physician|Physicians.*|Operator|Person|Recipients.*|Observer|Creator)Identification(Code)?Sequence$"
)
INSTITUTIONS = re.compile(r"(Institution|StationName|GeographicLocation)CodeSequence$")
BY_KEYWORD = [  # the first that fits
    ("Identifier", re.compile(r"SerialNumber|UniqueDeviceIdentifier|OtherPatientIDs$")),
    ("Contact", re.compile(r"Telephone|Telecom|PhoneNumber")),
    ("Place", re.compile(r"Address|Residence|Location$|GPS(Latitude|Longitude)$|PatientLocation")),
    (
        "Institution",
        re.compile(r"Issuer|Organization|Institution|Sponsor|SiteName|CommitteeName|CenterName|RequestingService"),
    ),
    ("Person", re.compile(r"OwnerName|TopicAuthor")),
    ("Identifier", re.compile(r"IDs?$|Identifier$|Number|Identification$|RecordLocator|Barcode")),
]
BY_VR = {"PN": "Person", "UI": "Uid", "DA": "Date", "DT": "Date", "TM": "Date"}
TEXT = {"AE", "LO", "LT", "SH", "ST", "UC", "UR", "UT"}


def class_of(row):
    """The name of the class, or None."""
    keyword, vr = row["keyword"], row["vr"]
    if vr == "SQ":
        if PEOPLE.search(keyword):
            return "Identifier"
        return "Institution" if INSTITUTIONS.search(keyword) else None
    if vr in BY_VR:
        return BY_VR[vr]
    if vr not in TEXT and not (vr == "DS" and keyword.startswith("GPS")):
        return None
    for name, keywords in BY_KEYWORD:
        if keywords.search(keyword):
            return name
    if vr == "DS":
        return None
    if row["RetainDeviceId"]:
        return "Device"
    return "Institution" if row["RetainInstitutionId"] else "FreeText"


def main(arguments):
    if len(arguments) != 1:
        print(__doc__)
        return 2
    cells = []
    with open(arguments[0], encoding="utf-8", newline="") as table:
        for row in csv.DictReader(table):
            match = re.fullmatch(r"\(([0-9A-F]{4}),([0-9A-F]{4})\)", row["tag"])
            name = class_of(row) if match else None
            if name:
                cells.append(f"{{0x{''.join(match.groups()).lower()}, {name}}},")
    print("// Written by scripts/identifying-attributes.py: tag and class, in the order of tags.")
    line = ""
    for cell in cells:
        if len(line) + len(cell) > 108:
            print(line)
            line = ""
        line += (" " if line else "") + cell
    print(line)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
