"""The files that the bench works with: what they are before a run and after it."""
import pathlib
import shutil

from outside.elements import tool

DUMP = """(0002,0010) UI =LittleEndianExplicit
(0008,0016) UI =SecondaryCaptureImageStorage
(0008,0018) UI 1.2.826.0.1.3680043.2.1125.1.1000
(0008,0060) CS OT
(0008,0080) LO St. Mary's
(0010,0010) PN Patient^Number1000
(0010,0020) LO 4711
(0010,1000) LO SITE-{site}
(0020,000d) UI 1.2.3.4
(0020,000e) UI 1.2.3.4.5
(7fe0,0010) OB ={pixels}
"""
CONFIGURATION = "0008,0080\tInstitution\tNowhere\n"
NUMBER = b"1000"
PIXELS = 24 * 1024
WHOLE = ("as it was", "changed whole", "changed otherwise")
FOLDERS, FILES = 10, 5


def make_originals(target):
    """10 folders of 5 files of some 25 KB; each has a patient's name and an identifier of its own."""
    target = pathlib.Path(target)
    target.mkdir(parents=True)
    pixels, dump, first = target / "pixels", target / "dump", target / "first"
    pixels.write_bytes(bytes(range(256)) * (PIXELS // 256))
    dump.write_text(DUMP.format(pixels=pixels, site="A"), encoding="ascii")
    output = tool("dump2dcm", "-q", dump, first)
    if output:
        raise RuntimeError(output.decode(errors="replace"))
    content = first.read_bytes()
    for scaffold in (pixels, dump, first):
        scaffold.unlink()
    for folder in range(FOLDERS):
        place = target / f"series {folder + 1}"
        place.mkdir()
        for file in range(FILES):
            number = b"%d" % (1000 + folder * FILES + file)
            (place / f"image {file + 1}.dcm").write_bytes(content.replace(NUMBER, number))


class Study:
    """A copy of the first folders and files, to be dropped."""

    def __init__(self, folder, originals, folders=2, files=3):
        self.folder = pathlib.Path(folder)
        self.originals = pathlib.Path(originals)
        self.files = [f"series {i + 1}/image {j + 1}.dcm" for i in range(folders) for j in range(files)]
        self.restore()

    def restore(self):
        for file in self.files:
            place = self.folder / file
            place.parent.mkdir(parents=True, exist_ok=True)
            shutil.copyfile(self.originals / file, place)

    def path(self, number):
        return self.folder / self.files[number]

    def state_of(self, file, changed):
        """What has become of one file: (state, whether its original is beside it)."""
        place = self.folder / file
        original = (self.originals / file).read_bytes()
        backup = place.with_name(place.name + ".bak")
        kept = is_plain(backup) and backup.read_bytes() == original
        if not place.exists() and not place.is_symlink():
            return "gone", kept
        if not is_plain(place):
            return "no plain file", kept
        content = place.read_bytes()
        states = {original: "as it was", (pathlib.Path(changed) / file).read_bytes(): "changed whole"}
        return states.get(content) or ("changed otherwise" if is_whole(place) else "half"), kept

    def states(self, changed):
        return {file: self.state_of(file, changed) for file in self.files}

    def leftovers(self):
        """What lies in the folder beside the files, their backups and the folders' hidden output."""
        known = {".noxTemp.out", *(pathlib.PurePath(file).parts[0] for file in self.files)}
        known |= {name + end for name in (pathlib.PurePath(file).name for file in self.files) for end in ("", ".bak")}
        return sorted({path.name for path in self.folder.rglob("*")} - known)

    def put_right(self):
        """What a person does behind a fault: backups take their files' names again, and what has none and
        is not whole comes from another copy."""
        for file in self.files:
            place = self.folder / file
            backup = place.with_name(place.name + ".bak")
            if is_plain(backup):
                backup.replace(place)
            elif not is_plain(place) or not is_whole(place):
                place.unlink(missing_ok=True)
                place.parent.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(self.originals / file, place)


def is_whole(file):
    """Whether the tools read it to its end."""
    dump = tool("dcmdump", "-q", file)
    return b"E:" not in dump and b"(7fe0,0010)" in dump


def is_plain(path):
    return path.is_file() and not path.is_symlink()


def told(states):
    """The states of all files as a text: "2 as it was; 4 changed whole, original beside"."""
    texts = []
    for state, kept in states.values():
        texts.append(state + (", original beside" if kept else ""))
    return "; ".join(f"{texts.count(text)} {text}" for text in sorted(set(texts)))


def losses(states):
    """The files that are neither whole nor have their original beside them."""
    return [file for file, (state, kept) in states.items() if not kept and state not in WHOLE]
