"""The data set of an object as a value: elements by tag, sequences as lists of further data sets."""
import dataclasses

from .dictionary import ATTRIBUTES

UN = "UN"  # a VR of UN with an explicit length
UN_SEQUENCE = "UN of undefined length"


@dataclasses.dataclass
class Element:
    """A value is a text, bytes, a number, Pixels, or a list of texts, numbers or (VR SQ) data sets."""

    vr: str
    value: object
    written_as: str = ""  # UN or UN_SEQUENCE for an element whose VR the writer did not know
    plant: object = None  # a Plant when a value that identifies somebody stands here


@dataclasses.dataclass
class Pixels:
    """The cells of an image, one value of bytes a frame; every row of a frame has the same length."""

    frames: list
    row_bytes: int
    cell_bytes: int = 2


class DataSet:
    """Elements by tag number (0x00100010). Keyword arguments are attributes by keyword."""

    def __init__(self, **attributes):
        self.elements = {}
        self.set(**attributes)

    def set(self, **attributes):
        for keyword, value in attributes.items():
            tag, vr = ATTRIBUTES[keyword]
            self.elements[tag] = Element(vr, value)
        return self

    def put(self, tag, vr, value, written_as=""):
        self.elements[tag] = Element(vr, value, written_as)
        return self

    def value(self, keyword):
        """The attribute's value, or None."""
        element = self.elements.get(ATTRIBUTES[keyword][0])
        return element.value if element else None

    def put_private(self, group, creator, offset, vr, value, written_as=""):
        """Adds a private element to its creator's block, which is reserved when need be. Returns the tag."""
        block = 0x10
        while self.elements.get(group << 16 | block, Element("LO", creator)).value != creator:
            block += 1
        self.put(group << 16 | block, "LO", creator)
        tag = group << 16 | block << 8 | offset
        self.put(tag, vr, value, written_as)
        return tag


def tag_text(tag):
    """0x00100010 as (0010,0010)."""
    return f"({tag >> 16:04x},{tag & 0xffff:04x})"


def keyword_of(tag):
    return KEYWORDS.get(tag, "")


KEYWORDS = {tag: keyword for keyword, (tag, _) in ATTRIBUTES.items()}
