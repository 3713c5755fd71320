"""Objects with a value of its own in every attribute of a list, and others where these attributes have VR UN.

The values stand at the top level and one and two sequence levels down.
"""
import pathlib
import random
import re

from ..dataset import UN, Element
from ..encoding import EXPLICIT, NUMBERS, Lengths
from ..files import ObjectFile
from ..kinds import KINDS
from ..kinds.common import code
from ..output import Output
from ..planting import Plant
from ..subjects import Instance, Reference, Series, Study, Uids

LINE = re.compile(r"\(?([0-9a-fA-F]{4}),([0-9a-fA-F]{4})\)?\s+([A-Z]{2})\S*(?:\s+(.*))?")
TEXT_SIZES = {"AE": 16, "CS": 16, "LO": 32, "LT": 40, "PN": 32, "SH": 16, "ST": 40, "UC": 40, "UT": 40}
CODE_MEANING = 0x00080104
BYTES = {"OB", "OW", "UN"}
CLASSES_BY_VR = {"PN": "person", "DA": "date", "DT": "date", "TM": "date", "UI": "UID", "AE": "device"}
CLASSES_BY_WORD = [("Institution", "institution"), ("Telephone|Telecom", "contact"),
                   ("Address|Country|Region|Location|Place", "place"), ("Station|Device|Serial", "device"),
                   ("ID|Number|Identifier", "identifier")]


def write(folder, seed, options):
    listed = read_list(options.list)
    output = Output(folder, "attributes", seed)
    uids = Uids(random.Random(f"attributes {seed}"))
    for kind in KINDS.values():
        values = Values(random.Random(f"attributes {seed} {kind.name}"))
        for name, written_as in (("plain", None), ("planted", ""), ("planted-un", UN)):
            file = ObjectFile(_object(kind, uids), EXPLICIT, Lengths(sequences=written_as == ""))
            if written_as is not None:
                _plant(file.data_set, listed, values, written_as)
            output.add(f"{kind.name}/{name}.dcm", kind, file)
    return output.finish()


def read_list(path):
    """The attributes of a list: lines of `gggg,eeee VR keyword`, or of private tag, VR and creator."""
    listed = []
    for number, line in enumerate(pathlib.Path(path).read_text(encoding="utf-8").splitlines(), 1):
        if not line.strip() or line.startswith("#"):
            continue
        match = LINE.fullmatch(line.strip())
        if not match:
            raise ValueError(f"{path}:{number}: not a tag, a VR and a keyword: {line}")
        group, element, vr, name = match.groups()
        if int(group, 16) < 8:
            raise ValueError(f"{path}:{number}: group {group} is not part of a data set")
        listed.append((int(group + element, 16), vr, name or ""))
    return listed


def _object(kind, uids):
    study = Study(uids.new())
    image = Reference(study.uid, uids.new(), KINDS["CT"].sop_class, uids.new())
    return kind.make(Instance(Series(uids.new(), study, uids.new()), uids.new(), references=[image]))


def _plant(data_set, listed, values, written_as):
    """The three levels: the object, the second procedure code, and that code's first equivalent."""
    deepest = code("113010", "DCM", "Quality Issue")
    nested = code("113000", "DCM", "Of Interest").set(EquivalentCodeSequence=[deepest])
    for level in (data_set, nested, deepest):
        for tag, vr, name in listed:
            if tag >> 16 & 1:
                level.put(tag & 0xFFFF0000 | tag >> 8 & 0xFF, "LO", name or "GENERATED")
            level.elements[tag] = values.element(vr, name, written_as, level.elements.get(tag))
    # A listed one of these would take the place of the levels: it keeps its planted value at the deepest one.
    nested.set(EquivalentCodeSequence=[deepest])
    data_set.set(ProcedureCodeSequence=[code("113001", "DCM", "Rejected for Quality Reasons"), nested])


class Values:
    """Unique values, each for an attribute of some VR."""

    def __init__(self, source):
        self._random = source
        self._used = set()

    def element(self, vr, keyword, written_as, present=None):
        """A sequence that is present keeps its items: the value comes into the first of them."""
        if vr == "SQ":
            items = present.value if present and present.value else [code("113001", "DCM", "")]
            value = self._new("LO")
            items[0].elements[CODE_MEANING] = Element("LO", value, plant=Plant(value, "free text"))
            return Element("SQ", items, written_as)
        value = self._new(vr)
        text = value.decode().rstrip() if isinstance(value, bytes) else str(value)
        return Element(vr, value, written_as, Plant(text, class_of(vr, keyword)))

    def _new(self, vr):
        for _ in range(100000):
            value = self._any(vr)
            if (vr, value) not in self._used:
                self._used.add((vr, value))
                return value
        raise ValueError(f"VR {vr} has no more values that differ")

    def _any(self, vr):
        pick = self._random.randrange
        if vr in BYTES:
            return self._letters(12).encode()
        if vr in NUMBERS:
            return float(pick(1, 1 << 20)) if vr in ("FD", "FL", "OD", "OF") else pick(1, 1 << 15)
        forms = {"AS": lambda: f"{pick(1, 1000):03}D", "AT": lambda: pick(0x00100000, 0x00FF0000),
                 "DA": lambda: self._date(), "TM": lambda: self._time(),
                 "DT": lambda: self._date() + self._time(),
                 "DS": lambda: f"{pick(10**8, 10**9)}.{pick(10, 100)}",
                 "IS": lambda: str(pick(10**8, 2 * 10**9)),
                 "UI": lambda: f"2.25.{pick(10**36, 10**37)}",
                 "UR": lambda: f"http://{self._letters(12).lower()}.invalid/"}
        return forms[vr]() if vr in forms else self._text(vr)

    def _text(self, vr):
        word = self._letters(10)
        if vr == "PN":
            return f"{word.capitalize()}^{self._letters(8).capitalize()}"
        if TEXT_SIZES[vr] <= 16:
            return word
        return f"{word.capitalize()} {self._letters(8).lower()}"

    def _letters(self, count):
        return "".join(self._random.choices("BCDFGHJKLMNPQRSTVWXZ", k=count))

    def _date(self):
        pick = self._random.randrange
        return f"{pick(1901, 2100)}{pick(1, 13):02}{pick(1, 29):02}"

    def _time(self):
        pick = self._random.randrange
        return f"{pick(24):02}{pick(60):02}{pick(60):02}.{pick(10**5, 10**6)}"


def class_of(vr, keyword):
    if vr in CLASSES_BY_VR:
        return CLASSES_BY_VR[vr]
    return next((name for words, name in CLASSES_BY_WORD if re.search(words, keyword)), "free text")
