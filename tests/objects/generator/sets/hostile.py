"""Files that a reader has to survive: damaged, truncated, endless, absurdly nested, or no objects at all.

Those in unusual/ are well-formed, of a kind that libraries do not know or treat wrongly. With `--special` there are
links, a pipe and names beside them that are not UTF-8.
"""
import os
import pathlib
import random
import struct
import zlib

from ..dataset import UN, UN_SEQUENCE
from ..encoding import (CHARACTER_SET, DEFLATED, DEFLATED_FRAMES, EXPLICIT, HTJ2K, IMPLICIT, ITEM, ITEM_END,
                        JPEG_2000, JPEG_XL,
                        PIXEL_DATA, SEQUENCE_END, UNDEFINED, Encoder, Lengths, Syntax)
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
    data_set = KINDS[kind].make(Instance(Series(uids.new(), study, uids.new()), uids.new(),
                                         references=[image]))
    file = ObjectFile(data_set, syntax, lengths)
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
        for name, syntax in (("explicit", EXPLICIT), ("implicit", IMPLICIT)):
            writer = Encoder(syntax)
            begin = writer.header(SEQUENCE, "SQ", UNDEFINED) + writer.header(ITEM, "", UNDEFINED)
            end = writer.header(ITEM_END, "", 0) + writer.header(SEQUENCE_END, "", 0)
            yield (f"nested/{depth}-{name}.dcm", _with(uids, begin * depth + end * depth, syntax),
                   f"sequences {depth} deep, of undefined length")
            yield f"nested/{depth}-{name}-open.dcm", _with(uids, begin * depth,
                                                           syntax), f"sequences {depth} deep that do not end"
        yield (f"nested/{depth}-defined.dcm", _with(uids, _defined(depth)),
               f"sequences {depth} deep, of defined length")
        begin = EXPLICIT_ENCODER.header(0x00291010, UN, UNDEFINED) + IMPLICIT_ENCODER.header(ITEM, "",
                                                                                             UNDEFINED)
        inner = IMPLICIT_ENCODER.header(SEQUENCE, "", UNDEFINED) + IMPLICIT_ENCODER.header(ITEM, "",
                                                                                           UNDEFINED)
        end = IMPLICIT_ENCODER.header(ITEM_END, "", 0) + IMPLICIT_ENCODER.header(SEQUENCE_END, "", 0)
        yield (f"nested/{depth}-un.dcm", _with(uids, begin + inner * (depth - 1) + end * depth),
               f"sequences {depth} deep in an element of VR UN")


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
            yield f"truncated/{name}-{point:05}.dcm", content[:point], f"ends after {point} of {len(content)} bytes"


def _lengths(uids):
    element, item = EXPLICIT_ENCODER.header, EXPLICIT_ENCODER.header(ITEM, "", 8)
    inner = EXPLICIT_ENCODER.header(0x00100020, "LO", 0)
    end = element(ITEM_END, "", 0) + element(SEQUENCE_END, "", 0)
    cases = [
        ("odd", element(0x00321060, "LO", 3) + b"odd", "a value of odd length"),
        ("odd-item",
         element(SEQUENCE, "SQ", 19) + element(ITEM, "", 11) + element(0x00100020, "LO", 3) + b"odd",
         "an item of odd length"),
        ("beyond", element(0x00321060, "LO", 200) + b"short", "a value that ends behind the file"),
        ("beyond-sequence", element(SEQUENCE, "SQ", 4000) + item + inner,
         "a sequence that ends behind the file"),
        ("beyond-item", element(SEQUENCE, "SQ", 16) + element(ITEM, "", 4000) + inner,
         "an item that ends behind the file"),
        ("item-longer", element(SEQUENCE, "SQ", 16) + element(ITEM, "", 24) + inner * 3,
         "an item longer than its sequence"),
        ("value-longer", element(SEQUENCE, "SQ", 16) + item + element(0x00100020, "LO", 8) + b"longer..",
         "a value longer than its item"),
        ("open-sequence", element(SEQUENCE, "SQ", UNDEFINED) + item + inner, "a sequence without its end"),
        ("open-item", element(SEQUENCE, "SQ", UNDEFINED) + element(ITEM, "", UNDEFINED) + inner,
         "an item without its end"),
        ("open-pixels", element(PIXEL_DATA, "OB", UNDEFINED) + element(ITEM, "", 0),
         "pixel data without its end"),
        ("open-un", element(0x00291010, UN, UNDEFINED) + item + IMPLICIT_ENCODER.header(0x00100020, "", 0),
         "an element of VR UN without its end"),
        ("undefined-text", element(0x0040A160, "UT", UNDEFINED) + b"endless ", "a text of undefined length"),
        ("fragment",
         element(PIXEL_DATA, "OB", UNDEFINED) + element(ITEM, "", 0) + element(ITEM, "", 0x7FFFFFF0) + b"few",
         "a fragment longer than the file"),
    ]
    for size in (0x7FFFFFFF, 0x80000000, 0xFFFFFFFE):
        cases += [(f"huge-{vr}-{size:x}", element(0x0040A160, vr, size) + b"little",
                   f"{size} bytes claimed, VR {vr}")
                  for vr in ("UT", "OB", "SQ", "UN")]
        cases.append((f"huge-item-{size:x}",
                      element(SEQUENCE, "SQ", UNDEFINED) + element(ITEM, "", size) + inner,
                      f"{size} bytes claimed by an item"))
    cases.append(("mixed-ends", element(SEQUENCE, "SQ", 24) + item + inner + end[:8],
                  "an end that no item needs"))
    for name, elements, fault in cases:
        yield f"lengths/{name}.dcm", _with(uids, elements), fault


def _order(uids):
    element, text = EXPLICIT_ENCODER.header, EXPLICIT_ENCODER.header(0x00321060, "LO", 4) + b"text"
    for name, elements, fault in (
            ("item", element(ITEM, "", 12) + text, "an item outside a sequence"),
            ("item-end", element(ITEM_END, "", 0) + text, "the end of an item outside a sequence"),
            ("sequence-end", element(SEQUENCE_END, "", 0) + text, "the end of a sequence outside one"),
            ("no-item", element(SEQUENCE, "SQ", 12) + text,
             "a sequence with an element in the place of an item"),
            ("twice", text * 2, "an element that stands twice"),
            ("descending", text + element(0x00104000, "LT", 4) + b"text", "elements in descending order"),
            ("group-0000", element(0x00000010, "LO", 4) + b"text", "a command's element in the data set"),
            ("group-0002", element(0x00020016, "AE", 4) + b"text", "a header's element in the data set"),
            ("odd-vr", element(0x00321060, "??", 4) + b"text", "a VR that does not exist"),
            ("zero-vr", element(0x00321060, "\0\0", 4) + b"text", "a VR of two zeros")):
        yield f"order/{name}.dcm", _with(uids, elements), fault


def _mistaken(uids):
    """Headers that do not tell the truth."""
    whole = _object(uids).encoded()
    start = 144 + struct.unpack("<I", whole[140:144])[0]
    header, data_set = whole[:start], whole[start:]
    implicit = _object(uids, syntax=IMPLICIT)
    garbage = random.Random("garbage").randbytes(2000)
    huge = zlib.compressobj(wbits=-zlib.MAX_WBITS)
    bomb = huge.compress(EXPLICIT_ENCODER.header(0x0040A160, "UT", 1 << 26) + b" " * (1 << 26)) + huge.flush()
    deflated = _object(uids, syntax=DEFLATED)
    yield "mistaken/implicit.dcm", header + Encoder(IMPLICIT).data_set(implicit.data_set), "implicit, said to be explicit"
    yield "mistaken/explicit.dcm", implicit.header() + data_set, "explicit, said to be implicit"
    yield "mistaken/not-deflated.dcm", deflated.header() + data_set, "said to be deflated"
    yield "mistaken/garbage.dcm", deflated.header() + garbage, "a deflated stream that is none"
    yield "mistaken/bomb.dcm", deflated.header() + bomb, "64 MiB of blanks, deflated"
    yield "mistaken/noise.dcm", header + garbage, "random bytes behind a header"
    yield "mistaken/unknown-syntax.dcm", ObjectFile(implicit.data_set,
                                                    STRANGE).encoded(), "an unknown transfer syntax"
    yield "mistaken/long-header.dcm", whole[:140] + struct.pack("<I",
                                                                1 << 30) + whole[144:], "a header of 1 GiB"
    yield "mistaken/short-header.dcm", whole[:140] + struct.pack("<I", 4) + whole[144:], "a header of 4 bytes"
    yield "mistaken/no-header.dcm", whole[:132] + data_set, "a prefix and no header"
    yield "mistaken/no-preamble.dcm", whole[132:], "a header without preamble"
    yield "mistaken/data-set-alone.dcm", Encoder(IMPLICIT).data_set(implicit.data_set), "a data set without a header"
    yield "mistaken/header-alone.dcm", header, "a header and no data set"


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
    """What only a file system can hold against a reader; planted.json does not list it."""
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
