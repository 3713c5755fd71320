"""Data sets as bytes: every transfer syntax, defined and undefined lengths, VR UN, encapsulated pixels."""
import dataclasses
import struct

from . import rle
from .charsets import encoder
from .dataset import UN, UN_SEQUENCE, Pixels

LONG_FORM = {"OB", "OD", "OF", "OL", "OV", "OW", "SQ", "SV", "UC", "UN", "UR", "UT", "UV"}
IN_CHARACTER_SET = {"LO", "LT", "PN", "SH", "ST", "UC", "UT"}
NUMBERS = {"FD": "d", "FL": "f", "OD": "d", "OF": "f", "OL": "I", "SL": "i", "SS": "h", "SV": "q", "UL": "I",
           "US": "H", "UV": "Q"}
PIXEL_DATA = 0x7FE00010
CHARACTER_SET = 0x00080005
ITEM, ITEM_END, SEQUENCE_END = 0xFFFEE000, 0xFFFEE00D, 0xFFFEE0DD
UNDEFINED = 0xFFFFFFFF


@dataclasses.dataclass(frozen=True)
class Syntax:
    name: str
    uid: str
    explicit: bool = True
    big_endian: bool = False
    deflated: bool = False
    encapsulated: bool = False
    fragments: int = 1  # of a frame


IMPLICIT = Syntax("implicit", "1.2.840.10008.1.2", explicit=False)
EXPLICIT = Syntax("explicit", "1.2.840.10008.1.2.1")
DEFLATED = Syntax("deflated", "1.2.840.10008.1.2.1.99", deflated=True)
BIG_ENDIAN = Syntax("big endian", "1.2.840.10008.1.2.2", big_endian=True)
RLE = Syntax("RLE", "1.2.840.10008.1.2.5", encapsulated=True)
# Opaque bytes stand for the pixels of these: nothing here decodes them.
JPEG = Syntax("JPEG", "1.2.840.10008.1.2.4.70", encapsulated=True)
JPEG_2000 = Syntax("JPEG 2000", "1.2.840.10008.1.2.4.90", encapsulated=True, fragments=3)
HTJ2K = Syntax("HTJ2K", "1.2.840.10008.1.2.4.201", encapsulated=True)
JPEG_XL = Syntax("JPEG XL", "1.2.840.10008.1.2.4.110", encapsulated=True)
DEFLATED_FRAMES = Syntax("deflated frames", "1.2.840.10008.1.2.8.1", encapsulated=True)


@dataclasses.dataclass(frozen=True)
class Lengths:
    """Which lengths are left undefined and closed by a delimiter."""

    sequences: bool = False
    items: bool = False


def value_bytes(vr, value, encode, big_endian=False):
    """A value's bytes before padding; bytes are taken as they are."""
    if isinstance(value, bytes):
        return value
    values = value if isinstance(value, list) else [value]
    order = ">" if big_endian else "<"
    if vr == "AT":
        return b"".join(struct.pack(order + "HH", tag >> 16, tag & 0xFFFF) for tag in values)
    if vr in NUMBERS:
        return struct.pack(f"{order}{len(values)}{NUMBERS[vr]}", *values)
    text = "\\".join(map(str, values))
    return encode(text) if vr in IN_CHARACTER_SET else text.encode("ascii")


def _swapped(value):
    out = bytearray(value)
    out[::2], out[1::2] = value[1::2], value[::2]
    return bytes(out)


def padded(vr, value):
    if len(value) % 2 == 0:
        return value
    return value + (b"\0" if vr in ("UI", "OB", "UN") else b" ")


class Encoder:
    """Writes data sets in one transfer syntax."""

    def __init__(self, syntax, lengths=Lengths()):
        self.syntax = syntax
        self.lengths = lengths
        self._order = ">" if syntax.big_endian else "<"
        self._implicit = self if not syntax.explicit else None

    def data_set(self, data_set, encode=encoder("")):
        """The elements in ascending order. A nested data set without a character set has the outer one's."""
        declared = data_set.elements.get(CHARACTER_SET)
        if declared:
            encode = encoder(declared.value)
        return b"".join(self.element(tag, data_set.elements[tag], encode)
                        for tag in sorted(data_set.elements))

    def element(self, tag, element, encode):
        if element.written_as and self.syntax.explicit:
            return self._unknown(tag, element, encode)
        if element.vr == "SQ":
            return self._sequence(tag, element.value, encode)
        if isinstance(element.value, Pixels):
            return self._pixels(tag, element)
        value = padded(element.vr, value_bytes(element.vr, element.value, encode, self.syntax.big_endian))
        return self.header(tag, element.vr, len(value)) + value

    def header(self, tag, vr, length):
        number = struct.pack(self._order + "HH", tag >> 16, tag & 0xFFFF)
        if not self.syntax.explicit or tag >> 16 == 0xFFFE:
            return number + struct.pack(self._order + "I", length)
        if vr in LONG_FORM:
            return number + vr.encode() + struct.pack(self._order + "HI", 0, length)
        return number + vr.encode() + struct.pack(self._order + "H", length)

    def items(self, data_sets, encode):
        """The items of a sequence without what stands around them."""
        out = []
        for data_set in data_sets:
            content = self.data_set(data_set, encode)
            if self.lengths.items:
                out += [self.header(ITEM, "", UNDEFINED), content, self.header(ITEM_END, "", 0)]
            else:
                out += [self.header(ITEM, "", len(content)), content]
        return b"".join(out)

    def _sequence(self, tag, data_sets, encode):
        content = self.items(data_sets, encode)
        if self.lengths.sequences:
            return self.header(tag, "SQ", UNDEFINED) + content + self.header(SEQUENCE_END, "", 0)
        return self.header(tag, "SQ", len(content)) + content

    def _unknown(self, tag, element, encode):
        """What stands in an element of VR UN is always in implicit VR little endian."""
        if self._implicit is None:
            self._implicit = Encoder(IMPLICIT, self.lengths)
        if element.vr == "SQ":
            content = self._implicit.items(element.value, encode)
        else:
            content = padded(element.vr, value_bytes(element.vr, element.value, encode))
        if element.written_as == UN_SEQUENCE:
            return self.header(tag, UN, UNDEFINED) + content + self._implicit.header(SEQUENCE_END, "", 0)
        return self.header(tag, UN, len(content)) + content

    def _pixels(self, tag, element):
        pixels = element.value
        if self.syntax.encapsulated:
            return self._encapsulated(tag, pixels)
        vr = "OB" if self.syntax.explicit and pixels.cell_bytes == 1 else "OW"
        value = padded(vr, b"".join(pixels.frames))
        if self.syntax.big_endian and vr == "OW":
            value = _swapped(value)
        return self.header(tag, vr, len(value)) + value

    def _encapsulated(self, tag, pixels):
        offsets, out, at = [], [], 0
        for frame in pixels.frames:
            offsets.append(at)
            for fragment in self._fragments(pixels, frame):
                out += [self.header(ITEM, "", len(fragment)), fragment]
                at += 8 + len(fragment)
        table = struct.pack(f"<{len(offsets)}I", *offsets)
        return b"".join([self.header(tag, "OB", UNDEFINED), self.header(ITEM, "", len(table)), table, *out,
                         self.header(SEQUENCE_END, "", 0)])

    def _fragments(self, pixels, frame):
        if self.syntax is RLE:
            return [rle.compressed(frame, pixels.row_bytes, pixels.cell_bytes)]
        frame = b"\xff\x4f\xff\x51" + frame[:-2] + b"\xff\xd9"
        size = -(-len(frame) // self.syntax.fragments)
        size += size % 2
        return [padded("OB", frame[at:at + size]) for at in range(0, len(frame), size)]
