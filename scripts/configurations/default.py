"""The sections of the default configuration, in the order of the file."""
from private import private_sections
from sections import (Line, Section, dummy_section, emptied_section, in_group, of_kind, repeating_section,
                      table_sections, window_section)

HEAD = Section("""
The default configuration of Dravolin

One attribute a line: its tag, its name, and its new value, separated by tabs (or by three spaces).
A line without a third column, or with dots alone in it, erases the attribute at every level of the file.
A new value is written at the top level only, whether the attribute was there or not.
The value "" (two quotes) leaves the attribute in place, but empty.
Lines that begin with # are comments.

What is listed: the attributes that the standard's table of confidentiality attributes (DICOM PS3.15, Annex E)
removes, empties or replaces, but for UIDs; some UIDs; private elements that are known to repeat a patient's data.
Left out: what stands only inside sequences that are erased, and what only objects contain that are hardly in use.

What this does not change:
  - UIDs of series, frames of reference and referenced objects. They lead back to the originals for whoever has
    those. New instance UIDs are made when the box for them is ticked, but references keep the old ones.
  - Private elements that are not listed, pixels, the preamble, the names of files and folders, backups.
  - What a structured report says: names, dates and free text in its content.
So the files are not marked as de-identified: (0012,0062) is not set to YES.

Where an object's type needs an attribute that a patient could be known by, the attribute goes all the same, and the
object is then incomplete. The lines after "needed by" say which; copies in sequences cannot get new values.""", ())

WINDOW = """
The five attributes that always take their values from the main window

Patient's Name (Diagnosis), Patient ID (Case ID), Study Instance UID (UID root and Case ID), Accession Number
(Credits) and Study Comments (Keywords); a field left empty erases its attribute. +010,0010 is the tool's 0010,0010 in
a spelling that sorts first: every copy in a sequence goes before the new value is written at the top.
Take such a line away for an attribute that a look-up table is bound to, or the table finds nothing.
Needed by: references to studies in structured reports and key objects (Study Instance UID)."""

EMPTIED = """
Present, but empty: images must have these, with or without a value"""

DUMMIES = """
Dummies: some objects must have a value here"""

PATIENT = """
The patient"""

TRIAL = """
The clinical trial"""

SEQUENCES = """
Sequences with codes, references or copies of what is erased elsewhere
Needed by: presentation states (Referenced Image Sequence, Graphic Annotation Sequence), enhanced multi-frame images
(Source Image Sequence), reports (Referenced Performed Procedure Step Sequence, Verifying Observer Sequence)."""

PERSONS = """
Physicians, operators and other persons
Needed by: reports with names in their content (Person Name), structure sets (ROI Interpreter), presentation states
(Content Creator's Name)."""

PHOTOS = """
Photographs: the camera and the place"""

DATES = """
Dates and times
Needed by: enhanced multi-frame images (Frame Acquisition DateTime, Frame Reference DateTime), reports with dates in
their content (DateTime, Date, Time), presentation states (Presentation Creation Date, Presentation Creation Time),
structure sets (Structure Set Date, Structure Set Time), plans, treatment records and sources (their dates)."""

UIDS = """
UIDs that no other object needs
Kept, because a configuration cannot give new ones that agree over a study: Series Instance UID, Frame of Reference
UID, Synchronization Frame of Reference UID, Concatenation UID, Referenced SOP Instance UID, Dimension Organization
UID, Specimen UID, Tracking UID, Source, Referenced and Related Frame of Reference UID, Dose Reference UID, Referenced
Dose Reference UID, Palette Color Lookup Table UID.
Needed by: reports with UIDs in their content (UID), spatial fiducials (Fiducial UID)."""

EXTRAS = Section("""
Not in the standard's table, but with copies of what is erased elsewhere
Needed by: reports that answer a request (Referenced Request Sequence).""", (
    Line("0008,0051", "Issuer of Accession Number Sequence"), Line("0040,a370", "Referenced Request Sequence"),
    Line("0400,0500", "Encrypted Attributes Sequence")))

RADIOTHERAPY = """
Radiotherapy: labels, names and descriptions
Needed by: structure sets (Structure Set Label, ROI Name), plans (RT Plan Label), treatment machines."""

REQUEST = """
Admission, request and performed step"""

SPECIMENS = """
Specimens
Needed by: slides (Container Identifier, Specimen Identifier)."""

REST = """
Devices, institutions, descriptions and free texts
Needed by: encapsulated documents (Encapsulated Document: what a report says of the patient cannot be mended), contrast
(its agent), X-ray sources and detectors (their IDs)."""

OVERLAYS = """
Overlays: text and drawings beside the pixels
Sixteen groups, data and comments. The first group goes whole, so that an image with one overlay stays valid.
Needed by: the rest of further overlays (Overlay Data), which stays."""

FIRST_OVERLAY = {"6000,0010": "Overlay Rows", "6000,0011": "Overlay Columns", "6000,0022": "Overlay Description",
                 "6000,0040": "Overlay Type", "6000,0050": "Overlay Origin", "6000,0100": "Overlay Bits Allocated",
                 "6000,0102": "Overlay Bit Position", "6000,1500": "Overlay Label"}

CURVES = """
Curves: sixteen groups"""

GROUPS = (
    (PATIENT, in_group("0010")), (TRIAL, in_group("0012")), (PHOTOS, in_group("0016")), (PERSONS, of_kind("PN")),
    (DATES, of_kind("DA", "TM", "DT")), (UIDS, of_kind("UI")), (SPECIMENS, in_group("0040,05", "0040,06")),
    (SEQUENCES, of_kind("SQ")), (RADIOTHERAPY, in_group("300")),
    (REQUEST, in_group("0032", "0038", "0040,0", "0040,1", "0040,2")), (REST, lambda row: True),
)


def default_sections(rows):
    """The whole file, from the table's rows."""
    return [HEAD, window_section(WINDOW), emptied_section(EMPTIED), dummy_section(DUMMIES),
            *table_sections(rows, GROUPS), EXTRAS,
            repeating_section(OVERLAYS, "6000", (("3000", "Overlay Data"), ("4000", "Overlay Comments")), FIRST_OVERLAY),
            repeating_section(CURVES, "5000", (("3000", "Curve Data"),)), *private_sections()]
