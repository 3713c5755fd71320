"""What an anonymization configuration and the window's fields ask for."""
import pathlib

STUDY_INSTANCE_UID = "0020,000d"
CASE_FIELDS = {"0010,0010": "Diagnosis", "0010,0020": "Case ID", "0008,0050": "Credits", "0032,4000": "Keywords"}


def read_rules(file):
    """Each attribute that the file lists with its new value, "" for one that is erased.

    +010,0010 is 0010,0010 in a spelling that the tool hears of earlier: it takes nothing from what 0010,0010 asks for.
    """
    rules = {}
    for line in pathlib.Path(file).read_text(encoding="utf-8").splitlines():
        tag, value = split_line(line.strip(" \t"))
        if len(tag) == 9 and not tag.startswith("#"):
            tag = tag.lower().replace("+", "0")
            rules[tag] = value if value is not None else rules.get(tag, "")
    return rules


def split_line(line):
    """The tag and the new value of one line; the value is None when there is none."""
    columns = line.split("\t")
    spaced = columns[0].split("   ")
    if len(spaced) > len(columns):
        columns, tag = spaced, spaced[0]
        value = columns[-1] if len(columns) > 2 else None
    else:
        tag = columns[0]
        value = columns[-1] if len(columns) > 2 else None
        if len(columns) == 2 and "   " in columns[1]:
            value = columns[1].split("   ")[-1]
    if value is not None:
        value = value.strip(" \t")
        value = value if value.strip(".") else ""
    return tag.strip(" \t"), value


def asked_for(rules, case, root):
    """The rules with what the window's fields add. `case` maps a field's caption to its text."""
    number = case["Case ID"].lstrip("0")
    return rules | {tag: case[field] for tag, field in CASE_FIELDS.items()} | {
        STUDY_INSTANCE_UID: f"{root}.{number}" if number else root}
