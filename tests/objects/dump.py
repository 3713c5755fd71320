"""Files as DCMTK's dcmdump tells them."""
import re
import subprocess

from generator.encoding import value_bytes

FILE = re.compile(rb"^# dcmdump \(\d+/\d+\): (.*)$")
LINE = re.compile(rb"^( *)\(([0-9a-f]{4},[0-9a-f]{4})\) (\S\S) (.*?) +# +(?:u/l|\d+), *\d+ ")
SYNTAX = b"# Used TransferSyntax: "
ITEM = b"fffe,e000"


class Dump:
    """`values` has (VR, printed value) by tag path, `syntax` what the data set was read as."""

    def __init__(self):
        self.values = {}
        self.syntax = ""
        self._chain = []  # [tag, number of the current item] of the sequences around a line

    def line(self, text):
        if text.startswith(SYNTAX):
            self.syntax = text[len(SYNTAX):].decode()
        match = LINE.match(text)
        if match:
            indent, tag, vr, value = match.groups()
            self._element(len(indent) // 4, tag, vr.decode(), value)

    def _element(self, depth, tag, vr, value):
        if tag == ITEM and depth < len(self._chain):
            self._chain[depth][1] += 1
        if tag.startswith(b"fffe"):
            return
        outer = "".join(f"({outer})[{number}]." for outer, number in self._chain[:depth])
        self._chain[depth:] = [[tag.decode(), -1]]
        self.values[f"{outer}({tag.decode()})"] = (vr, value)


def dump(folder, paths, *options):
    """A Dump for each of the paths, and the lines that dcmdump wrote beside them."""
    words = ["dcmdump", "+F", "-Un", "+L", *options, *map(str, paths)]
    run = subprocess.run(words, cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False,
                         timeout=300)
    dumps = {}
    for text in run.stdout.split(b"\n"):
        if match := FILE.match(text):
            dumps[match[1].decode()] = current = Dump()
        elif dumps:
            current.line(text)
    return dumps, run.stderr.decode(errors="replace").splitlines()


def shows(dumped, tag, written):
    """Whether the dump has these bytes at the path, or in the element of VR UN that the path leads into."""
    if tag in dumped.values:
        return _same(*dumped.values[tag], written)
    parts = tag.split(".")
    for count in range(len(parts) - 1, 0, -1):
        outer = ".".join(parts[:count]).rpartition("[")[0]
        if outer in dumped.values:
            vr, value = dumped.values[outer]
            return vr in ("UN", "??") and written in _bytes(value)
    return False


def _same(vr, value, written):
    if vr in ("OB", "UN", "??"):
        return written in _bytes(value)
    if vr == "OW":
        words = [int(word, 16).to_bytes(2, "little") for word in value.split(b"\\")]
        return b"".join(words).rstrip(b"\0 ") == written.rstrip(b"\0 ")
    if value.startswith(b"["):
        return value[1:-1].rstrip(b" ") == written.rstrip(b" ")
    numbers = [float(word) if vr in ("FD", "FL") else int(word) for word in value.decode().split("\\")]
    return written in (value_bytes(vr, numbers, None), value_bytes(vr, numbers, None, big_endian=True))


def _bytes(value):
    return bytes.fromhex(value.replace(b"\\", b"").decode()) if value[:1].isalnum() else b""
