"""The examples: the default with some lines less, each with a comment at its top that says what it keeps."""
from sections import EMPTY, METHOD, Line, Section

KEPT_CONTENT = ("0008,1140 0008,2112 0020,000d 0040,a120 0040,a121 0040,a122 0040,a124 0040,a13a 0042,0011 0070,0001 "
                "3006,0002 3006,0026 300a,0002 300a,00b2 300a,022c 300a,022e 3008,0024 3008,0025").split()
EMPTY_DATES = {"3006,0008": "Structure Set Date", "3006,0009": "Structure Set Time", "300a,0006": "RT Plan Date",
               "300a,0007": "RT Plan Time"}

DATES = """
The default configuration, with the dates and times kept
Kept: when the study, the series and their parts were made, so that scans can be set in order over time. A date is
often enough to find the patient in a hospital's records. The birth date is still emptied."""

PATIENT = """
The default configuration, with the patient's characteristics kept
Kept: sex, age, size, weight, ethnic group, smoking, pregnancy. Rare combinations (a great age, an unusual weight)
can tell who somebody is. The birth date is still emptied."""

DEVICE = """
The default configuration, with the device kept
Kept: names, serial numbers and calibration dates of scanners, detectors and treatment machines. They tell in which
hospital a study was made. The institution's name and the titles of network nodes are still erased."""

RESEARCH = """
The default configuration, with the scanner's private headers kept, for research with MR
Kept: all private elements, with diffusion directions, b-values, slice timing and mosaic layout in the headers.
The risk: these headers are known to repeat the patient's name, ID, birth date, weight and sex, the operator and the
date. Share such files only with those who may know the patient, or convert them and share the result."""

REPORTS = """
The default configuration, with structured reports and radiotherapy objects kept whole
Kept: dates, UIDs and references in the content of reports, encapsulated documents, drawings and texts of presentation
states, labels of structure sets and plans, names of contours and machines. Names of persons are erased.
The risk: texts in reports, in documents and in labels can say who the patient is. Read each of them.
Study Instance UIDs in references keep the old value. The empty dates of structure sets and plans are written into
every file: drop reports and radiotherapy objects alone, not the images."""

TABLE = """
The default configuration, with Other Patient IDs left to a look-up table
Needs a table AnonymizationLUT_OtherPatientIDs.txt with old and new values, chosen in the window. Without a table
chosen, Other Patient IDs are erased. Copies of Other Patient IDs in sequences are not changed by the table."""


def keeping(comment, *kept):
    """The default under another head, without the lines that one of the predicates takes."""
    def change(sections, rows):
        by_tag = {row.tag: row for row in rows}

        def unwanted(line):
            return any(takes(line.attribute, by_tag.get(line.attribute)) for takes in kept)
        head, *rest = sections
        changed = [section.without(unwanted) for section in rest]
        return [head_of(comment, head), *(section for section in changed if section.lines)]
    return change


def head_of(comment, default):
    """`comment` with everything that the default's head says after its first line."""
    return Section(comment.strip() + "\n" + default.comment.strip().partition("\n")[2], ())


def named(name, sections):
    """The sections with `name` in the method that they write."""
    method = METHOD.replace("Default", name)
    assert len(method) <= 64
    return [section.replaced(METHOD, method) for section in sections]


def option(name):
    return lambda tag, row: row is not None and row.keeps(name)


def among(tags):
    return lambda tag, row: tag in tags


def private(tag, _row):
    return int(tag[:4], 16) % 2 == 1


def with_reports(sections, rows):
    kept = keeping(REPORTS, among(KEPT_CONTENT), among(EMPTY_DATES))(sections, rows)
    lines = tuple(Line(tag, name, EMPTY) for tag, name in EMPTY_DATES.items())
    return [*kept, Section("Present, but empty in structure sets and plans", lines)]


def with_table(sections, rows):
    changed = keeping(TABLE, among(["0010,1000"]))(sections, rows)
    bound = Line("0010,1000", "Other Patient IDs", "<LUT_OtherPatientIDs>")
    return [*changed, Section("Left to the look-up table", (bound,))]


EXAMPLES = {
    "KeepDates": keeping(DATES, option("RetainLongFullDates")),
    "KeepDevice": keeping(DEVICE, option("RetainDeviceId")),
    "KeepPatientCharacteristics": keeping(PATIENT, option("RetainPatientChars")),
    "OtherPatientIDsTable": with_table,
    "ReportsAndRT": with_reports,
    "ResearchMR": keeping(RESEARCH, private),
}
