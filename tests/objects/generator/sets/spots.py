"""Where a value can stand in a file: functions that put it there.

Each takes an ObjectFile, the value and its Plant. Those that put it outside the data set return what
planted.json is to say.
"""
import dataclasses

from ..dataset import UN, UN_SEQUENCE, DataSet, Element
from ..kinds.common import code
from ..kinds.documents import pdf
from ..planting import Planted

CREATOR = "GENERATED 1"
PRIVATE_GROUP = 0x0029


def top_level(tag, vr):
    def put(file, value, plant):
        file.data_set.elements[tag] = Element(vr, value, plant=plant)
    return put


def in_unknown(tag, vr):
    """A known attribute whose VR is written as UN."""
    def put(file, value, plant):
        file.data_set.elements[tag] = Element(vr, value, UN, plant)
    return put


def nested(depth, written_as=""):
    """In the second request, its protocol code, that code's context; the outermost sequence may be UN."""
    tags = [0x00400275, 0x00400008, 0x00400440]

    def put(file, value, plant):
        data_set = DataSet()
        data_set.elements[0x0040A160] = Element("UT", value, plant=plant)
        for tag in reversed(tags[1:depth]):
            outer = code("113010", "DCM", "Quality Issue") if tag == 0x00400440 else DataSet()
            outer.elements[tag] = Element("SQ", [data_set])
            data_set = outer
        items = [DataSet(ScheduledProcedureStepID="1"), data_set]
        file.data_set.elements[tags[0]] = Element("SQ", items, written_as)
    return put


def private(vr, written_as=""):
    def put(file, value, plant):
        tag = file.data_set.put_private(PRIVATE_GROUP, CREATOR, 0x10, vr, value, written_as)
        file.data_set.elements[tag].plant = plant
    return put


def private_sequence(written_as=""):
    """Three levels of private sequences; written_as is that of the outermost one."""
    def put(file, value, plant):
        item = DataSet()
        tag = item.put_private(PRIVATE_GROUP, CREATOR, 0x12, "LO", value)
        item.elements[tag].plant = plant
        for _ in range(2):
            outer = DataSet()
            outer.put_private(PRIVATE_GROUP, CREATOR, 0x11, "SQ", [DataSet(), item])
            item = outer
        file.data_set.put_private(PRIVATE_GROUP, CREATOR, 0x11, "SQ", [item], written_as)
    return put


def private_in_code_sequence(file, value, plant):
    """A private block of an item of a public sequence."""
    item = code("113010", "DCM", "Quality Issue")
    tag = item.put_private(PRIVATE_GROUP, CREATOR, 0x10, "LO", value)
    item.elements[tag].plant = plant
    file.data_set.set(ProcedureCodeSequence=[item])


def meta_title(file, value, plant):
    file.meta.set(SourceApplicationEntityTitle=value[:16])
    return _outside("file meta", plant, value[:16].encode(), "(0002,0016)", "SourceApplicationEntityTitle",
                    "AE")


def meta_private(file, value, plant):
    content = value.encode() if isinstance(value, str) else value
    file.meta.set(PrivateInformationCreatorUID="2.25.1", PrivateInformation=content)
    return _outside("file meta", plant, content, "(0002,0102)", "PrivateInformation", "OB")


def preamble(file, value, plant):
    file.preamble = b"\0\0\1\2" + value.encode()
    return _outside("preamble", plant, value.encode())


def trailing(file, value, plant):
    content = value.encode()
    file.trailing = b"\0\0" + content + b"\0" * (2 + len(content) % 2)
    return _outside("trailing bytes", plant, content)


def trailing_padding(file, value, plant):
    """Data Set Trailing Padding, an element at the end."""
    file.data_set.elements[0xFFFCFFFC] = Element("OB", value.encode(), plant=plant)


def name(place, plant):
    """In the name of the file or of its folder; the writer sees to it."""
    return _outside(place, plant, plant.text.encode())


def _outside(place, plant, content, tag="", keyword="", vr=""):
    return Planted(value=plant.text, bytes=content.hex(), keyword=keyword, tag=tag, vr=vr, written_vr=vr,
                   place=place,
                   spelling=plant.spelling, encoding=plant.encoding or "UTF-8", value_class=plant.value_class)



def item_of_set(character_set):
    """In an item that declares a character set of its own."""
    def put(file, value, plant):
        item = DataSet(SpecificCharacterSet=character_set)
        item.elements[0x00321060] = Element("LO", value, plant=plant)
        file.data_set.set(RequestAttributesSequence=[DataSet(ScheduledProcedureStepID="1"), item])
    return put


def at(path, tag, vr):
    """At a place that objects of the kind have: `path` has pairs of a sequence's tag and an item's number."""
    def put(file, value, plant):
        data_set = file.data_set
        for sequence, item in path:
            data_set = data_set.elements[sequence].value[item]
        data_set.elements[tag] = Element(vr, value, plant=plant)
    return put


def page(file, value, plant):
    """In what a page of the encapsulated document says."""
    plant = dataclasses.replace(plant, written=value.encode())
    file.data_set.elements[0x00420011] = Element("OB", pdf(value), plant=plant)
