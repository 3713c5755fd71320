"""Files that a reader has to survive: damaged, truncated, endless, absurdly nested, or no objects at all.

Those in unusual/ are well-formed, of a kind that libraries do not know or treat wrongly. `--special` adds
what only a file system can hold against a reader: links, a pipe, names that are not UTF-8.
"""
import os
import pathlib
import random
import struct
import zlib

from ..dataset import UN, UN_SEQUENCE
from ..encoding import (CHARACTER_SET, DEFLATED, DEFLATED_FRAMES, EXPLICIT, HTJ2K, IMPLICIT, ITEM, ITEM_END,
                        JPEG_2000, JPEG_XL, PIXEL_DATA, SEQUENCE_END, UNDEFINED, Encoder, Lengths, Syntax)
from ..files import ObjectFile
from ..kinds import KINDS
from ..kinds.directory import directory
from ..output import Output
from ..subjects import Instance, Patient, Reference, Series, Study, Uids
from . import spots

DEPTHS = (50, 1000, 10000, 100000)
CUTS = 40
SEQUENCE = 0x0040A730
EXPLICIT_ENCODER, IMPLICIT_ENCODER = Encoder(EXPLICIT), Encoder(IMPLICIT)
STRANGE = Syntax("unknown", "1.2.3.4.5")


def write(folder, seed, options):
    output = Output(folder, "hostile", seed)
    uids = Uids(random.Random(f"hostile {seed}"))
    for source in (_nested, _truncated, _lengths, _order, _mistaken, _no_objects, _unusual):
        for name, content, fault in source(uids):
            output.add_bytes(name, content, fault=fault)
    if options.special:
        _special(output)
    return output.finish()


def _object(uids, kind="CT", syntax=EXPLICIT, lengths=Lengths()):
    """An ordinary object with a sequence and a private block."""
    study = Study(uids.new(), Patient("Damaged^Deirdre", "ID4711", "19700131", "O"))
    image = Reference(study.uid, uids.new(), KINDS["CT"].sop_class, uids.new())
    series = Series(uids.new(), study, uids.new())
    file = ObjectFile(KINDS[kind].make(Instance(series, uids.new(), references=[image])), syntax, lengths)
    spots.nested(3)(file, "three levels down", None)
    spots.private_sequence()(file, "private", None)
    return file


def _with(uids, elements, syntax=EXPLICIT):
    """A file whose data set ends with the bytes `elements`; there are no pixels."""
    file = _object(uids, "PDF", syntax)
    for tag in [tag for tag in file.data_set.elements if tag > 0x0020FFFF]:
        del file.data_set.elements[tag]
    return file.encoded() + elements


def _nested(uids):
    for depth in DEPTHS:
        for name, writer in (("explicit", EXPLICIT_ENCODER), ("implicit", IMPLICIT_ENCODER)):
            begin, end = _level(writer)
            yield (f"nested/{depth}-{name}.dcm", _with(uids, begin * depth + end * depth, writer.syntax),
                   f"sequences {depth} deep, of undefined length")
            yield (f"nested/{depth}-{name}-open.dcm", _with(uids, begin * depth, writer.syntax),
                   f"sequences {depth} deep that do not end")
        yield (f"nested/{depth}-defined.dcm", _with(uids, _defined(depth)),
               f"sequences {depth} deep, of defined length")
        unknown = EXPLICIT_ENCODER.header(0x00291010, UN, UNDEFINED)
        unknown += IMPLICIT_ENCODER.header(ITEM, "", UNDEFINED)
        begin, end = _level(IMPLICIT_ENCODER)
        yield (f"nested/{depth}-un.dcm", _with(uids, unknown + begin * (depth - 1) + end * depth),
               f"sequences {depth} deep in an element of VR UN")


def _level(writer):
    """What begins a sequence with one item, and what ends it."""
    return (writer.header(SEQUENCE, "SQ", UNDEFINED) + writer.header(ITEM, "", UNDEFINED),
            writer.header(ITEM_END, "", 0) + writer.header(SEQUENCE_END, "", 0))


def _defined(depth):
    """From the outside to the inside, each length counting what is to come."""
    level = len(EXPLICIT_ENCODER.header(SEQUENCE, "SQ", 0) + EXPLICIT_ENCODER.header(ITEM, "", 0))
    out = []
    for remaining in range(depth, 0, -1):
        size = remaining * level
        out += [EXPLICIT_ENCODER.header(SEQUENCE, "SQ", size - 12),
                EXPLICIT_ENCODER.header(ITEM, "", size - 20)]
    return b"".join(out)


def _truncated(uids):
    for name, syntax, lengths in (("explicit", EXPLICIT, Lengths()),
                                  ("undefined", EXPLICIT, Lengths(True, True)),
                                  ("implicit", IMPLICIT, Lengths()), ("encapsulated", JPEG_2000, Lengths()),
                                  ("deflated", DEFLATED, Lengths())):
        content = _object(uids, "CT", syntax, lengths).encoded()
        points = {1, 127, 128, 131, 132, 140, len(content) - 1, len(content) - 2}
        points |= {len(content) * step // CUTS for step in range(1, CUTS)}
        for point in sorted(points):
            yield (f"truncated/{name}-{point:05}.dcm", content[:point],
                   f"ends after {point} of {len(content)} bytes")


ELEMENT = EXPLICIT_ENCODER.header
TEXT = ELEMENT(0x00321060, "LO", 4) + b"text"
ITEM_OF_8 = ELEMENT(ITEM, "", 8)
EMPTY_ID = ELEMENT(0x00100020, "LO", 0)
OPEN_SEQUENCE = ELEMENT(SEQUENCE, "SQ", UNDEFINED)
OPEN_PIXELS = ELEMENT(PIXEL_DATA, "OB", UNDEFINED) + ELEMENT(ITEM, "", 0)


def _lengths(uids):
    for source in (_odd, _too_long, _open, _huge):
        for name, elements, fault in source():
            yield f"lengths/{name}.dcm", _with(uids, elements), fault


def _odd():
    odd = ELEMENT(0x00100020, "LO", 3) + b"odd"
    yield "odd", odd, "a value of odd length"
    yield "odd-item", ELEMENT(SEQUENCE, "SQ", 19) + ELEMENT(ITEM, "", 11) + odd, "an item of odd length"


def _too_long():
    sequence = ELEMENT(SEQUENCE, "SQ", 16)
    yield "value-beyond", ELEMENT(0x00321060, "LO", 200) + b"short", "a value that ends behind the file"
    yield ("sequence-beyond", ELEMENT(SEQUENCE, "SQ", 4000) + ITEM_OF_8 + EMPTY_ID,
           "a sequence that ends behind the file")
    yield "item-beyond", sequence + ELEMENT(ITEM, "", 4000) + EMPTY_ID, "an item that ends behind the file"
    yield "item-longer", sequence + ELEMENT(ITEM, "", 24) + EMPTY_ID * 3, "an item longer than its sequence"
    yield ("value-longer", sequence + ITEM_OF_8 + ELEMENT(0x00100020, "LO", 8) + b"longer..",
           "a value longer than its item")
    yield "fragment", OPEN_PIXELS + ELEMENT(ITEM, "", 0x7FFFFFF0) + b"few", "a fragment longer than the file"


def _open():
    unknown = ELEMENT(0x00291010, UN, UNDEFINED) + ITEM_OF_8 + IMPLICIT_ENCODER.header(0x00100020, "", 0)
    yield "open-sequence", OPEN_SEQUENCE + ITEM_OF_8 + EMPTY_ID, "a sequence without its end"
    yield "open-item", OPEN_SEQUENCE + ELEMENT(ITEM, "", UNDEFINED) + EMPTY_ID, "an item without its end"
    yield "open-pixels", OPEN_PIXELS, "pixel data without its end"
    yield "open-un", unknown, "an element of VR UN without its end"
    yield ("undefined-text", ELEMENT(0x0040A160, "UT", UNDEFINED) + b"endless ",
           "a text of undefined length")
    yield ("needless-end", ELEMENT(SEQUENCE, "SQ", 24) + ITEM_OF_8 + EMPTY_ID + ELEMENT(ITEM_END, "", 0),
           "an end that no item needs")


def _huge():
    for size in (0x7FFFFFFF, 0x80000000, 0xFFFFFFFE):
        for vr in ("UT", "OB", "SQ", "UN"):
            yield (f"huge-{vr}-{size:x}", ELEMENT(0x0040A160, vr, size) + b"little",
                   f"{size} bytes claimed, VR {vr}")
        yield (f"huge-item-{size:x}", OPEN_SEQUENCE + ELEMENT(ITEM, "", size) + EMPTY_ID,
               f"{size} bytes claimed by an item")


def _order(uids):
    for name, elements, fault in (
            ("item", ELEMENT(ITEM, "", 12) + TEXT, "an item outside a sequence"),
            ("item-end", ELEMENT(ITEM_END, "", 0) + TEXT, "the end of an item outside a sequence"),
            ("sequence-end", ELEMENT(SEQUENCE_END, "", 0) + TEXT, "the end of a sequence outside one"),
            ("no-item", ELEMENT(SEQUENCE, "SQ", 12) + TEXT, "a sequence with an element as item"),
            ("twice", TEXT * 2, "an element that stands twice"),
            ("descending", TEXT + ELEMENT(0x00104000, "LT", 4) + b"text", "elements in descending order"),
            ("group-0000", ELEMENT(0x00000010, "LO", 4) + b"text", "a command's element in the data set"),
            ("group-0002", ELEMENT(0x00020016, "AE", 4) + b"text", "a header's element in the data set"),
            ("odd-vr", ELEMENT(0x00321060, "??", 4) + b"text", "a VR that does not exist"),
            ("zero-vr", ELEMENT(0x00321060, "\0\0", 4) + b"text", "a VR of two zeros")):
        yield f"order/{name}.dcm", _with(uids, elements), fault


def _mistaken(uids):
    """Headers that do not tell the truth."""
    whole, implicit, deflated = (_object(uids, syntax=syntax) for syntax in (EXPLICIT, IMPLICIT, DEFLATED))
    begin, header = whole.encoded()[:140], whole.header()
    explicit_set = EXPLICIT_ENCODER.data_set(whole.data_set)
    implicit_set = IMPLICIT_ENCODER.data_set(implicit.data_set)
    garbage = random.Random("garbage").randbytes(2000)
    for name, content, fault in (
            ("implicit", header + implicit_set, "implicit, said to be explicit"),
            ("explicit", implicit.header() + explicit_set, "explicit, said to be implicit"),
            ("not-deflated", deflated.header() + explicit_set, "said to be deflated"),
            ("garbage", deflated.header() + garbage, "a deflated stream that is none"),
            ("bomb", deflated.header() + _bomb(), "64 MiB of blanks, deflated"),
            ("noise", header + garbage, "random bytes behind a header"),
            ("unknown-syntax", ObjectFile(whole.data_set, STRANGE).encoded(), "an unknown transfer syntax"),
            ("long-header", begin + struct.pack("<I", 1 << 30) + header[144:] + explicit_set,
             "a header of 1 GiB"),
            ("short-header", begin + struct.pack("<I", 4) + header[144:] + explicit_set,
             "a header of 4 bytes"),
            ("no-header", header[:132] + explicit_set, "a prefix and no header"),
            ("no-preamble", header[132:] + explicit_set, "a header without preamble"),
            ("data-set-alone", implicit_set, "a data set without a header"),
            ("header-alone", header, "a header and no data set")):
        yield f"mistaken/{name}.dcm", content, fault


def _bomb():
    size = 1 << 26
    packer = zlib.compressobj(wbits=-zlib.MAX_WBITS)
    return packer.compress(ELEMENT(0x0040A160, "UT", size) + b" " * size) + packer.flush()


def _no_objects(uids):
    yield "none/empty.dcm", b"", "no byte"
    yield "none/prefix.dcm", bytes(128) + b"DICM", "a preamble and the prefix"
    yield "none/zeros.dcm", bytes(100000), "zeros"
    yield "none/ones.dcm", b"\xff" * 100000, "ones"
    yield "none/text.txt", b"Nothing but a few lines\nof plain text.\n", "a text"
    yield "none/magic.pdf", b"%PDF-1.4\n", "the beginning of a document"


def _unusual(uids):
    for syntax in (HTJ2K, JPEG_XL, DEFLATED_FRAMES):
        name = syntax.name.lower().replace(" ", "-")
        yield f"unusual/{name}.dcm", _object(uids, "CT",
                                             syntax).encoded(), f"pixels in {syntax.name}, opaque bytes"
    unknown = _object(uids)
    for tag in (0x00100010, 0x00100020, 0x00080020, 0x00400275):
        unknown.data_set.elements[tag].written_as = UN_SEQUENCE if tag == 0x00400275 else UN
    yield "unusual/un.dcm", unknown.encoded(), "known attributes of VR UN"
    for name, term in (("unknown", b"ISO_IR 9999 "), ("contradictory", b"ISO_IR 100\\ISO_IR 192 ")):
        file = _object(uids)
        file.data_set.set(PatientName="Gr\xf6\xdfe^J\xf6rg".encode("latin-1"))
        file.data_set.put(CHARACTER_SET, "CS", term)
        yield f"unusual/{name}-character-set.dcm", file.encoded(), f"character set {term.decode()}"
    member = _object(uids)
    yield ("unusual/directory.dcm",
           directory(uids.new(), [(pathlib.PurePosixPath("CT/IM000001"), member)]).encoded(),
           "a DICOMDIR under another name")


def _special(output):
    """planted.json does not list these."""
    folder = output.folder / "special"
    folder.mkdir(exist_ok=True)
    content = (output.folder / "unusual/un.dcm").read_bytes()
    with open(os.path.join(os.fsencode(folder), b"not-\xff\xfe-utf-8.dcm"), "wb") as file:
        file.write(content)
    (folder / ("long" * 60 + ".dcm")).write_bytes(content)
    (folder / "new\nline.dcm").write_bytes(content)
    os.mkfifo(folder / "pipe.dcm")
    (folder / "link-to-nothing.dcm").symlink_to("nothing.dcm")
    (folder / "link-outside").symlink_to("/usr/share")
    (folder / "link-in-a-circle").symlink_to(".")
