"""The elements of a DICOM file, as dcmdump tells them."""
import dataclasses
import re
import subprocess

ENCODINGS = {"ISO_IR 100": "latin-1", "ISO_IR 192": "utf-8"}
CHARACTER_SET = re.compile(rb"^\(0008,0005\) CS \[([^\]]*)\]", re.MULTILINE)
LINE = re.compile(r"^( *)\(([0-9a-f]{4},[0-9a-f]{4})\) \S\S (.*?) +# +\S+, *\d+ (.*)$")
ITEM = "fffe,e000"


@dataclasses.dataclass(frozen=True)
class Element:
    path: tuple  # of (tag, item number) from the outermost sequence to the element itself
    name: str
    value: str  # None for a sequence

    @property
    def tags(self):
        return [tag for tag, _ in self.path]

    @property
    def label(self):
        return ".".join(f"({tag})" for tag in self.tags)


def tool(*words, folder=None):
    """What the command prints, on both channels."""
    return subprocess.run([str(word) for word in words], cwd=folder, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, check=False, timeout=120).stdout


def read_elements(file):
    """All elements, nested ones and those of the file's header too, in the order of the file."""
    dump = tool("dcmdump", "-q", "-Un", "+L", file)
    declared = CHARACTER_SET.search(dump)
    encoding = ENCODINGS.get(declared.group(1).decode() if declared else "", "latin-1")
    found, chain = [], []  # the chain holds [tag, number of the current item]
    for line in dump.split(b"\n"):
        match = LINE.match(line.decode(encoding, errors="replace"))
        if not match:
            continue
        indent, tag, value, name = match.groups()
        depth = len(indent) // 4
        if tag == ITEM:
            chain[depth][1] += 1
        if tag.startswith("fffe"):
            continue
        chain[depth:] = [[tag, 0]]
        found.append(Element(tuple(map(tuple, chain)), name, content(value)))
    return found


def content(value):
    if value.startswith("["):
        return value[1:-1]
    if value.startswith("(Sequence"):
        return None
    return "" if value == "(no value available)" else value
