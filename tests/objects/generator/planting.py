"""Planted values: which there are, and where each of them stands in an object."""
import dataclasses

from .charsets import encoder
from .dataset import keyword_of, tag_text
from .encoding import CHARACTER_SET, value_bytes

DATA_SET = "data set"
PRIVATE = "private bytes"


@dataclasses.dataclass(frozen=True)
class Plant:
    """A value that identifies somebody. `spelling` tells how `text` differs from `original`, if it does."""

    text: str
    value_class: str  # person, identifier, date, place, contact, device, institution, free text, UID
    original: str = ""
    spelling: str = ""
    encoding: str = ""  # when it is not the character set of the data set
    written: bytes = b""  # when it is only a part of the element's value


@dataclasses.dataclass(frozen=True)
class Planted:
    """A plant at its place, as planted.json has it."""

    value: str
    bytes: str  # in hexadecimal digits, without padding
    keyword: str
    tag: str
    vr: str
    written_vr: str
    place: str
    spelling: str
    encoding: str
    value_class: str


def planted_in(file):
    """All plants of an ObjectFile's data set, those of its sequences' items too."""
    found = []
    _walk(file.data_set, "", "", file.syntax, False, False, found)
    return found


def mark(data_set, classes):
    """Declares all elements with one of these values (text: class) to be planted ones, at every level."""
    for element in data_set.elements.values():
        if element.vr == "SQ":
            for item in element.value:
                mark(item, classes)
        elif isinstance(element.value, str) and element.value in classes:
            element.plant = Plant(element.value, classes[element.value])


def _walk(data_set, path, character_set, syntax, private, unknown, found):
    declared = data_set.elements.get(CHARACTER_SET)
    character_set = declared.value if declared else character_set
    for tag in sorted(data_set.elements):
        element = data_set.elements[tag]
        odd = private or bool(tag >> 16 & 1)
        here = path + tag_text(tag)
        if element.plant:
            found.append(_planted(element, tag, here, character_set, syntax, odd, unknown))
        if element.vr == "SQ":
            inside = unknown or bool(element.written_as)
            for number, item in enumerate(element.value):
                _walk(item, f"{here}[{number}].", character_set, syntax, odd, inside, found)


def _planted(element, tag, path, character_set, syntax, private, unknown):
    plant = element.plant
    in_unknown = unknown or element.written_as
    big_endian = syntax.big_endian and not in_unknown
    written = plant.written or value_bytes(element.vr, element.value, encoder(character_set), big_endian)
    sets = character_set if isinstance(character_set, str) else "\\".join(character_set)
    return Planted(value=plant.text, bytes=written.hex(), keyword=keyword_of(tag), tag=path, vr=element.vr,
                   written_vr="UN" if in_unknown else element.vr, place=PRIVATE if private else DATA_SET,
                   spelling=plant.spelling, encoding=plant.encoding or sets or "ISO_IR 6",
                   value_class=plant.value_class)
