"""Private elements that are known to repeat a patient's or an operator's data, by the creator that writes them."""
from sections import Line, Section

HEAD = """
Private elements that are known to repeat a patient's or an operator's data
The creator's block is taken to be the first (10) unless said otherwise. In another block these lines do nothing; under
another creator in the same block they erase what that creator keeps there."""

# A comment, and the elements: tag, VR, creator, name.
BLOCKS = (
    ("Of no creator that a dictionary knows; seen with a patient's data.", (("0021,1015", "LO", "UNKNOWN", "Unnamed"),)),
    ("GEMS_SERS_01, GEMS_PARM_01. Lost: user defined data of the scanner.",
     (("0025,101a", "SH", "GEMS_SERS_01", "Primary Receiver Suite and Host"),
      ("0043,1028", "OB", "GEMS_PARM_01", "Unique Image Identifier"),
      ("0043,102a", "OB", "GEMS_PARM_01", "User Defined Data"),
      ("0043,1061", "UI", "GEMS_PARM_01", "Scanner Study Entity UID"),
      ("0043,1062", "SH", "GEMS_PARM_01", "Scanner Study ID"))),
    ("SIEMENS MR SDS 01. Lost: the measurement protocol.",
     (("0021,1019", "OB", "SIEMENS MR SDS 01", "Phoenix Meta Protocol"),)),
    ("SIEMENS CSA HEADER, SIEMENS MEDCOM HEADER and SIEMENS CSA NON-IMAGE, in block 10, 11 or 12.\n"
     "Lost: the scanner's own headers, and with them diffusion directions and b-values, slice timing, mosaic layout.",
     (("0029,1010", "OB", "SIEMENS CSA HEADER", "Image Header, block 10"),
      ("0029,1020", "OB", "SIEMENS CSA HEADER", "Series Header, block 10"),
      ("0029,1110", "OB", "SIEMENS MEDCOM HEADER", "Image Header, block 11"),
      ("0029,1120", "OB", "SIEMENS MEDCOM HEADER", "Series Header, block 11"),
      ("0029,1210", "OB", "SIEMENS CSA NON-IMAGE", "Image Header, block 12"),
      ("0029,1220", "OB", "SIEMENS CSA NON-IMAGE", "Series Header, block 12"))),
    ("MITRA LINKED ATTRIBUTES 1.0, MITRA OBJECT UTF8 ATTRIBUTES 1.0. Lost: an archive's copies of names and numbers.",
     (("0031,1020", "LO", "MITRA LINKED ATTRIBUTES 1.0", "Global Patient ID"),
      ("0033,1013", "PN", "MITRA OBJECT UTF8 ATTRIBUTES 1.0", "Patient's Name"),
      ("0033,1019", "PN", "MITRA OBJECT UTF8 ATTRIBUTES 1.0", "Requesting Physician's Name"))),
    ("ELSCINT1. Lost: an identifier of the object.", (("00e1,1008", "UI", "ELSCINT1", "SOP Instance UID"),)),
)


def private_sections():
    blocks = [Section(comment, tuple(Line(tag, name) for tag, _, _, name in elements)) for comment, elements in BLOCKS]
    return [Section(HEAD, ()), *blocks]


def private_attributes():
    """Lines of tag, VR and creator."""
    return [f"{tag} {vr} {creator}" for _, elements in BLOCKS for tag, vr, creator, _ in elements]
