"""The rows of the set `places`: one value each, at one place, in one spelling."""
import dataclasses
import typing

from ..charsets import JAPANESE, KOREAN, LATIN_1, UTF_8
from ..encoding import (BIG_ENDIAN, DEFLATED, EXPLICIT, IMPLICIT, JPEG_2000, RLE, Lengths, Syntax)
from ..kinds import KINDS
from . import spellings, spots
from .identity import ATTRIBUTES, CHARACTERS

COMMENTS = spots.top_level(0x00104000, "LT")
DESCRIPTION = spots.top_level(0x00081030, "LO")
OTHER_NAMES = spots.top_level(0x00101001, "PN")
PRIVATE_BYTES = spots.private("OB")
THREE_DEEP = spots.nested(3)
ALL_LENGTHS = [Lengths(sequences, items) for sequences in (False, True) for items in (False, True)]


def same(text):
    return text


@dataclasses.dataclass(frozen=True)
class Row:
    name: str
    source: str  # the original's attribute; "" for a row that has nothing planted
    spot: typing.Any  # a function of .spots, or "file name" or "folder name"
    spell: typing.Callable  # from a person to the text
    spelling: str = ""
    encode: typing.Callable = same  # from the text to the element's value
    encoding: str = ""
    spelt: str = "ascii"
    sets: tuple = ("", "")  # of the original and of the result
    kind: str = ""
    syntax: Syntax = EXPLICIT
    lengths: Lengths = Lengths()


def rows():
    yield from _places()
    yield from _vrs()
    yield from _spellings()
    yield from _character_sets()
    yield from _bytes()
    yield from _attributes()
    yield from _kinds()
    yield from _syntaxes()
    for kind in KINDS:
        yield Row(f"nothing planted, {kind}", "", None, lambda person: "", kind=kind)


def value_of(keyword):
    return lambda person: person.attributes()[keyword]


def full_name(person):
    return f"{person.family}^{person.given}"


def file_name(person):
    return f"{person.family}_{person.given}"


VALUES = {"person": ("PatientName", full_name), "identifier": ("PatientID", value_of("PatientID")),
          "date": ("PatientBirthDate", value_of("PatientBirthDate")),
          "UID": ("StudyInstanceUID", value_of("StudyInstanceUID"))}
SPOTS = {
    "top level": (COMMENTS, same),
    "one level down": (spots.nested(1), same),
    "two levels down": (spots.nested(2), same),
    "three levels down": (THREE_DEEP, same),
    "VR UN": (spots.in_unknown(0x00104000, "LT"), same),
    "sequence in UN": (spots.nested(3, spots.UN), same),
    "sequence in UN of undefined length": (spots.nested(3, spots.UN_SEQUENCE), same),
    "private": (spots.private("UT"), same),
    "private bytes": (PRIVATE_BYTES, str.encode),
    "private in UN": (spots.private("LT", spots.UN), same),
    "private, in an item": (spots.private_in_code_sequence, same),
    "private sequence": (spots.private_sequence(), same),
    "private sequence in UN": (spots.private_sequence(spots.UN), same),
    "private sequence in UN of undefined length": (spots.private_sequence(spots.UN_SEQUENCE), same),
    "private information of the header": (spots.meta_private, same),
    "preamble": (spots.preamble, same),
    "trailing bytes": (spots.trailing, same),
    "trailing padding": (spots.trailing_padding, same),
}


def _places():
    for value, (source, spell) in VALUES.items():
        for place, (spot, encode) in SPOTS.items():
            yield Row(f"{place}, {value}", source, spot, spell, encode=encode)
        named, spelling = (file_name, "underscore") if value == "person" else (spell, "")
        for place in ("file name", "folder name"):
            yield Row(f"{place}, {value}", source, place, named, spelling)
    for value, (source, spell) in VALUES.items():
        yield Row(f"behind the deflated stream, {value}", source, spots.trailing, spell, syntax=DEFLATED)
    yield Row("title in the header, identifier", "PatientID", spots.meta_title, value_of("PatientID"))
    yield Row("title in the header, person", "PatientName", spots.meta_title,
              lambda person: person.family.upper(), "capitals, family name alone")


TEXTS = {"AE": 0x00080054, "CS": 0x00180015, "DS": 0x00181110, "IS": 0x00201002, "LO": 0x00181030,
         "LT": 0x00104000,
         "OB": 0x00282000, "OW": 0x00281201, "PN": 0x00081050, "SH": 0x00180024, "ST": 0x00080081,
         "UC": 0x00080119, "UR": 0x00080120, "UT": 0x0040A160}
NUMBERS = {"FD": 0x00189073, "OD": 0x00660022, "OL": 0x00660040, "SL": 0x00186020, "SV": 0x00720082,
           "UL": 0x00186030, "UV": 0x00720083}
SMALL_NUMBERS = {"FL": 0x00089459, "OF": 0x00660016, "SS": 0x00189219, "US": 0x00189093}
TIMES = {"DA": (0x00080012, "PatientBirthDate", same),
         "DT": (0x0008002A, "PatientBirthDate", "{}120000".format),
         "TM": (0x00080013, "PatientBirthTime", same), "UI": (0x00080014, "StudyInstanceUID", same)}


def _vrs():
    for vr, tag in TEXTS.items():
        encode = str.encode if vr in ("OB", "OW") else "http://host.invalid/{}".format if vr == "UR" else same
        yield Row(f"VR {vr}", "PatientID", spots.top_level(tag, vr), value_of("PatientID"), encode=encode)
    for source, numbers in (("PatientID", NUMBERS), ("StudyID", SMALL_NUMBERS)):
        for vr, tag in numbers.items():
            yield Row(f"VR {vr}", source, spots.top_level(tag, vr), value_of(source), encode=int,
                      encoding="binary")
    for vr, (tag, source, encode) in TIMES.items():
        yield Row(f"VR {vr}", source, spots.top_level(tag, vr), value_of(source), encode=encode)


def spelt_name(write):
    return lambda person: write(person.family, person.given)


def spelt_date(form):
    return lambda person: spellings.date(person.patient.birth_date, form)


def _spellings():
    for spelling, write in spellings.NAMES.items():
        yield Row(f"name, {spelling}", "PatientName", COMMENTS, spelt_name(write), spelling)
        yield Row(f"name with umlauts, {spelling}", "PatientName", COMMENTS, spelt_name(write), spelling,
                  spelt="latin", sets=(LATIN_1, UTF_8))
    for spelling, write in spellings.LETTERS.items():
        yield Row(f"name, {spelling}", "PatientName", COMMENTS, spelt_name(write), spelling, spelt="latin",
                  sets=(LATIN_1, ""))
    yield Row("name, " + spellings.DECOMPOSED, "PatientName", COMMENTS, spelt_name(spellings.decomposed),
              spellings.DECOMPOSED, spelt="latin", sets=(LATIN_1, UTF_8))
    for form in spellings.DATES:
        yield Row(f"date, {form}", "PatientBirthDate", COMMENTS, spelt_date(form), form)
        yield Row(f"date in private bytes, {form}", "PatientBirthDate", PRIVATE_BYTES, spelt_date(form), form,
                  str.encode)


OWN_SETS = {"latin": LATIN_1, "polish": "ISO_IR 101", "greek": "ISO_IR 126", "cyrillic": "ISO_IR 144",
            "japanese": JAPANESE, "korean": KOREAN}


def _character_sets():
    for spelt, own in OWN_SETS.items():
        for original, result in ((own, own), (own, UTF_8), (UTF_8, own)):
            name = f"{spelt} name, {set_name(original)} to {set_name(result)}"
            yield Row(name, "PatientName", OTHER_NAMES, in_group_of(spelt), spelt=spelt,
                      sets=(original, result))
        yield Row(f"{spelt} name, three levels down", "PatientName", THREE_DEEP, full_name, spelt=spelt,
                  sets=(own, own))
        yield Row(f"{spelt} name, private", "PatientName", spots.private("LO"), full_name, spelt=spelt,
                  sets=(own, own))
        yield Row(f"{spelt} name, character set of an item", "PatientName", spots.item_of_set(own), full_name,
                  spelt=spelt, sets=(own, ""), encoding=set_name(own))


def in_group_of(spelt):
    """The first component group of a PN has no escape sequences: such names are in the second."""
    return (lambda person: "=" + full_name(person)) if spelt in CHARACTERS else full_name


def set_name(character_set):
    return character_set if isinstance(character_set, str) else character_set[-1]


def _bytes():
    """Names as bytes of which nothing tells the character set."""
    codecs = {"UTF-8": "utf-8", "UTF-16 little endian": "utf-16-le", "UTF-16 big endian": "utf-16-be",
              "UTF-16 with its mark": "utf-16", "Latin-1": "latin-1"}
    for encoding, codec in codecs.items():
        for spelt in ("ascii", "latin", "japanese", "korean"):
            if codec == "latin-1" and spelt in ("japanese", "korean"):
                continue
            encode = encoder_of(codec)
            row = Row(f"{spelt} name in private bytes, {encoding}", "PatientName", PRIVATE_BYTES, full_name,
                      "", encode, encoding, spelt, (OWN_SETS.get(spelt, ""), ""))
            yield row
            shifted = encoder_of(codec, b"\1")
            if codec.startswith("utf-16-"):
                yield dataclasses.replace(row, name=row.name + ", behind one byte", encode=shifted)
    for encoding, codec in (("UTF-8", "utf-8"), ("Latin-1", "latin-1")):
        yield Row(f"name in {encoding} that is not declared", "PatientName", DESCRIPTION, full_name, "",
                  encoder_of(codec), encoding, "latin", (LATIN_1, ""))


def encoder_of(codec, before=b""):
    return lambda text: before + text.encode(codec)


def _attributes():
    for keyword in ATTRIBUTES:
        yield Row(f"value of {keyword}", keyword, THREE_DEEP, value_of(keyword))


TREE = (0x0040A730, 4), (0x0040A730, 0)
TYPICAL = {
    "person of a report": ("SRCOMP", "PatientName", ((0x0040A730, 0),), 0x0040A123, "PN", full_name),
    "text of a report": ("SRTEXT", "PatientName", TREE, 0x0040A160, "UT", full_name),
    "UID of a report": ("SRCOMP", "StudyInstanceUID", ((0x0040A730, 1),), 0x0040A124, "UI",
                        value_of("StudyInstanceUID")),
    "date of a report": ("SRCOMP", "PatientBirthDate", ((0x0040A730, 2),), 0x0040A121, "DA",
                         value_of("PatientBirthDate")),
    "name of a region": ("RTSTRUCT", "PatientName", ((0x30060020, 0),), 0x30060026, "LO", full_name),
    "study of a structure set": ("RTSTRUCT", "StudyInstanceUID", ((0x30060010, 0), (0x30060012, 0)),
                                 0x00081155, "UI", value_of("StudyInstanceUID")),
    "text of an annotation": ("GSPS", "PatientName", ((0x00700001, 0), (0x00700008, 0)), 0x00700006, "ST",
                              full_name),
    "frame of an enhanced image": ("ENHMR", "PatientID", ((0x52009230, 1), (0x00209111, 0)), 0x00209158, "LT",
                                   value_of("PatientID")),
}


def _kinds():
    for kind in KINDS:
        yield Row(f"three levels down, {kind}", "PatientName", THREE_DEEP, full_name, kind=kind)
    for name, (kind, source, path, tag, vr, spell) in TYPICAL.items():
        yield Row(name, source, spots.at(path, tag, vr), spell, kind=kind)
    yield Row("text of a document", "PatientID", spots.page, value_of("PatientID"), kind="PDF")


def _syntaxes():
    for syntax in (IMPLICIT, EXPLICIT, BIG_ENDIAN, DEFLATED, RLE, JPEG_2000):
        for lengths in ALL_LENGTHS:
            undefined = [name for name in ("sequences", "items") if getattr(lengths, name)]
            name = f"{syntax.name}, undefined length of {' and '.join(undefined) or 'nothing'}"
            yield Row(name, "PatientName", THREE_DEEP, full_name, kind="CT", syntax=syntax, lengths=lengths,
                      spelt="latin", sets=(LATIN_1, LATIN_1))
    for place, spot, encode in (("private", spots.private("LO"), same),
                                ("private bytes", PRIVATE_BYTES, str.encode),
                                ("VR UL", spots.top_level(NUMBERS["UL"], "UL"), int)):
        for syntax in (IMPLICIT, BIG_ENDIAN, DEFLATED):
            yield Row(f"{syntax.name}, {place}", "PatientID", spot, value_of("PatientID"), encode=encode,
                      encoding="binary" if encode is int else "", syntax=syntax)
