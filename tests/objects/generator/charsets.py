"""Texts as bytes, in the character sets that objects declare."""

JAPANESE = ["", "ISO 2022 IR 87"]
KOREAN = ["", "ISO 2022 IR 149"]
LATIN_1 = "ISO_IR 100"
UTF_8 = "ISO_IR 192"
_KOREAN_IN_G1 = b"\x1b$)C"
_CODECS = {"": "ascii", LATIN_1: "latin-1", "ISO_IR 101": "iso8859-2", "ISO_IR 126": "iso8859-7",
           "ISO_IR 144": "iso8859-5", UTF_8: "utf-8", "GB18030": "gb18030", "ISO 2022 IR 87": "iso2022_jp"}
_DELIMITERS = "^=\\\r\n\f\t"


def encoder(character_set):
    """A function from a text to its bytes for a value of (0008,0005)."""
    if isinstance(character_set, bytes):
        return str.encode  # a term that means nothing
    name = character_set if isinstance(character_set, str) else character_set[-1]
    if name == "ISO 2022 IR 149":
        return lambda text: _by_pieces(text, _korean)
    if name == "ISO 2022 IR 87":
        return lambda text: _by_pieces(text, lambda piece: piece.encode("iso2022_jp"))
    codec = _CODECS[name]
    return lambda text: text.encode(codec)


def _korean(piece):
    return piece.encode("ascii") if piece.isascii() else _KOREAN_IN_G1 + piece.encode("euc_kr")


def _by_pieces(text, encode):
    """Delimiters return to the first character set, so that each piece between them is announced anew."""
    out, piece = [], ""
    for character in text:
        if character in _DELIMITERS:
            out += [encode(piece), character.encode("ascii")]
            piece = ""
        else:
            piece += character
    return b"".join(out) + encode(piece)
