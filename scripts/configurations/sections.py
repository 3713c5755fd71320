"""The default configuration as a list of sections, and the sections as text."""
import dataclasses

from table import begins, left_out

EMPTY = '""'
METHOD = "Dravolin Default: DICOM PS3.15 E in part"
EMPTIED = {"0008,0020": "Study Date", "0008,0030": "Study Time", "0008,0090": "Referring Physician's Name",
           "0008,1070": "Operators' Name", "0010,0030": "Patient's Birth Date", "0010,0040": "Patient's Sex",
           "0020,0010": "Study ID", "0040,0555": "Acquisition Context Sequence"}
DUMMIES = {"0008,0021": ("Series Date", "19000101"), "0008,0022": ("Acquisition Date", "19000101"),
           "0008,0023": ("Content Date", "19000101"), "0008,002a": ("Acquisition DateTime", "19000101000000"),
           "0008,0031": ("Series Time", "000000"), "0008,0032": ("Acquisition Time", "000000"),
           "0008,0033": ("Content Time", "000000"), "0018,1000": ("Device Serial Number", "000000")}
WINDOW = {"0008,0050": "Accession Number", "0010,0010": "Patient's Name", "0010,0020": "Patient ID",
          "0020,000d": "Study Instance UID", "0032,4000": "Study Comments"}


@dataclasses.dataclass(frozen=True)
class Line:
    tag: str
    name: str
    value: str = ""

    @property
    def attribute(self):
        """The tag with digits alone: +010,0010 is 0010,0010 in another spelling."""
        return self.tag.replace("+", "0")

    def text(self):
        return "\t".join(filter(None, (self.tag, self.name, self.value)))


@dataclasses.dataclass(frozen=True)
class Section:
    comment: str  # its first line is the heading
    lines: tuple

    def text(self):
        comment = [("# " + line).rstrip() for line in self.comment.strip().split("\n")]
        return "\n".join(comment + [line.text() for line in self.lines])

    def without(self, unwanted):
        return dataclasses.replace(self, lines=tuple(line for line in self.lines if not unwanted(line)))

    def replaced(self, old, new):
        """With the value `new` wherever it was `old`."""
        lines = (dataclasses.replace(line, value=new) if line.value == old else line for line in self.lines)
        return dataclasses.replace(self, lines=tuple(lines))


def copies(tag, name):
    """Erases the attribute at every level, the top too, before its new value is inserted: + sorts before digits."""
    return Line("+" + tag[1:], name + ", copies")


def with_copies(tag, name, value):
    return [copies(tag, name), Line(tag, name, value)]


def window_section(comment):
    return Section(comment, tuple(copies(tag, name) for tag, name in WINDOW.items()))


def emptied_section(comment):
    return Section(comment, tuple(line for tag, name in EMPTIED.items() for line in with_copies(tag, name, EMPTY)))


def dummy_section(comment):
    lines = [line for tag, (name, value) in DUMMIES.items() for line in with_copies(tag, name, value)]
    return Section(comment, tuple(lines + with_copies("0012,0063", "De-identification Method", METHOD)))


def erased_rows(rows):
    """The rows of the table that become plain erasures."""
    return [row for row in rows if left_out(row) is None and row.tag not in EMPTIED and row.tag not in DUMMIES]


def table_sections(rows, groups):
    """One section for each of `groups`, (comment, predicate) pairs; a row goes to the first that takes it."""
    remaining, sections = erased_rows(rows), []
    for comment, takes in groups:
        chosen = [row for row in remaining if takes(row)]
        remaining = [row for row in remaining if not takes(row)]
        sections.append(Section(comment, tuple(Line(row.tag, row.name) for row in chosen)))
    assert not remaining, f"in no group: {remaining}"
    return sections


def repeating_section(comment, first, names, others=()):
    """The attributes `others`; the sixteen groups `first`, `first` + 2 and so on, each with the elements of `names`."""
    groups = [f"{int(first, 16) + 2 * i:04x}" for i in range(16)]
    lines = [Line(tag, others[tag]) for tag in others]
    lines += [Line(f"{group},{element}", name) for group in groups for element, name in names]
    return Section(comment, tuple(lines))


def text_of(sections):
    return "\n\n".join(section.text() for section in sections) + "\n"


def in_group(*groups):
    return lambda row: begins(row, groups)


def of_kind(*kinds):
    return lambda row: row.vr in kinds
