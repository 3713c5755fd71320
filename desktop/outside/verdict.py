"""Judges a study that has been anonymized by what it was before and by what was asked for."""
import re
from collections import namedtuple

from .elements import read_elements, tool
from .study import DICOMDIR, TEXT_FILE, identities

SOP_INSTANCE_UID = "0008,0018"
LOAD_ERROR = "E: unable to load file "
DICOMDIR_NOTE = ("Mind you: DICOMDIR files were found.\n"
                 "They do not contain DICOM tags to anonymize but still contain PHI:\n")
Report = namedtuple("Report", "summary errors")


def covered(element, asked):
    return any(tag in asked for tag in element.tags)


def is_written(value, element):
    """Whether the element holds what the shell makes of a configuration's value: quotes in it join what they part."""
    return (element.value or "") == value.replace('"', "")


def wrong_elements(before, after, asked, new_instances):
    """What is wrong with one file; both are lists of elements."""
    old = {element.path: element for element in before}
    new = {element.path: element for element in after}
    for tag, value in asked.items():
        now = new.get(((tag, 0),))
        if value and (now is None or not is_written(value, now)):
            yield f"({tag}) is not '{value}' but {now and now.value!r}"
    for path, element in new.items():
        top_value = asked.get(path[0][0]) if len(path) == 1 else None
        if covered(element, asked) and not (top_value and is_written(top_value, element)):
            yield f"{element.label} {element.name} is still there: {element.value!r}"
    for path, element in old.items():
        tag = path[0][0]
        if covered(element, asked) or tag.startswith("0002") or (new_instances and tag == SOP_INSTANCE_UID):
            continue
        if new.get(path) != element:
            yield f"{element.label} {element.name} was to be left as it was: {element.value!r}"
    instance = ((SOP_INSTANCE_UID, 0),)
    if new_instances and (instance not in new or new[instance] == old[instance]):
        yield "the file has no new instance UID"


def spellings(text):
    """The bytes of the text in each encoding that the sample uses."""
    found = {text.encode("utf-8")}
    try:
        found.add(text.encode("latin-1"))
    except UnicodeEncodeError:
        pass
    return found


def remaining(folder, files, asked):
    """(wrong, kept): the identifying texts that are still in any file of the folder, as lines for a person.

    A text that stands only in attributes that were not asked for is kept rightly. The DICOMDIR and the text file
    are not looked at: the program does not anonymize them.
    """
    wrong, kept = [], []
    for place in sorted(path for path in folder.rglob("*") if path.is_file()):
        name = place.relative_to(folder)
        if str(name) in (DICOMDIR, TEXT_FILE):
            continue
        content = place.read_bytes()
        present = [text for text in identities() if any(spelling in content for spelling in spellings(text))]
        holders = read_elements(place) if present and name in files else []
        for text in present:
            places = [element for element in holders if text in (element.value or "")]
            if places and not any(covered(element, asked) for element in places):
                kept.append(f"{name}: '{text}' in " + ", ".join(element.label for element in places))
            else:
                wrong.append(f"{name}: '{text}' in " + (", ".join(e.label for e in places) or "bytes of no element"))
    return wrong, kept


def problems(before, after, files, asked, new_instances):
    """(wrong, kept) over the whole study, as lines for a person."""
    wrong, kept = remaining(after, files, asked)
    instances = set()
    for file in files:
        old, new = read_elements(before / file), read_elements(after / file)
        wrong += [f"{file}: {line}" for line in wrong_elements(old, new, asked, new_instances)]
        instances.update(element.value for element in new if element.tags == [SOP_INSTANCE_UID])
    if len(instances) != len(files):
        wrong.append(f"{len(files)} files share {len(instances)} instance UIDs")
    return wrong, kept


def expected_report(*trees):
    """The summary, and the sorted error lines of the log window, that the tool's own words lead to.

    Runs the tool on every folder of the trees, which are copies that may be changed.
    """
    inner = [path for tree in trees for path in tree.rglob("*") if path.is_dir()]
    known = tuple(folder.name.lower() + ":" for folder in inner)
    count, errors = 0, []
    for folder in (*trees, *inner):
        entries = sorted(path.name for path in folder.iterdir() if not path.name.startswith("."))
        said = tool("dcmodify", "-ie", "-imt", "-nb", "-ea", "(0010,0010)", *(entries or ["*"]), folder=folder)
        for line in said.decode().splitlines():
            closing = re.fullmatch(r"E: There (?:was|were) (\d) errors?", line)
            if closing:
                count += int(closing.group(1))
            elif line.startswith(LOAD_ERROR) and line[len(LOAD_ERROR):].lower().startswith(known):
                count -= 1
            elif line.startswith("E:"):
                errors.append(line)
    if count:
        return Report(f"\nDone. {count} file{'' if count == 1 else 's'} with errors.", sorted(errors))
    return Report(f"\nDone, with {len(errors)} error{'' if len(errors) == 1 else 's'}.", sorted(errors))


def wrong_report(summary, log, expected, directories):
    """What is wrong with the status text and the log window's text, which must name the DICOMDIR files."""
    if summary != expected.summary:
        yield f"the summary is {summary!r} and not {expected.summary!r}"
    note = DICOMDIR_NOTE + "".join(path + "\n" for path in directories) + "\n"
    if not log.endswith(note):
        yield f"the log window does not end with {note!r}: {log!r}"
    lines = log.removesuffix(note).split("\n\n")
    if lines[-1] != "" or sorted(lines[:-1]) != expected.errors:
        yield f"the log window's errors are {lines} and not {expected.errors}"


def table(before, after, asked):
    """The identifying attributes of one file before and after, as lines for a person."""
    texts = identities()
    new = {element.path: element for element in after}
    rows = []
    for element in before:
        tells = any(text in (element.value or "") for text in texts)
        if element.value is None or not (tells or covered(element, asked) or element.tags == [SOP_INSTANCE_UID]):
            continue
        now = new.pop(element.path, None)
        rows.append((element, element.value, "-" if now is None else now.value))
    rows += [(element, "-", element.value) for element in new.values()
             if element.value is not None and covered(element, asked)]
    for element, old, now in sorted(rows, key=lambda row: row[0].path):
        yield f"  {element.label:<36} {element.name[:34]:<34} {old:<44} {now}"
