"""What the tests of all sets share."""
import contextlib
import io
import json
import pathlib
import shutil
import subprocess
import tempfile
import zlib

import make_objects
from dump import dump, shows
from generator.encoding import DEFLATED


def make(*words):
    """Calls the command line without its output. Returns what planted.json says."""
    with contextlib.redirect_stdout(io.StringIO()):
        status = make_objects.main([str(word) for word in words])
    if status:
        raise AssertionError(f"make_objects.py {words} ended with {status}")
    return json.loads((pathlib.Path(words[1]) / "planted.json").read_text(encoding="utf-8"))


def contents(folder):
    """The bytes of all files below the folder, by path."""
    return {path.relative_to(folder): path.read_bytes() for path in folder.rglob("*") if path.is_file()}


def split(data):
    """A file's preamble, its file meta information, and what follows; that is inflated when it has to be."""
    begin = 144 + int.from_bytes(data[140:144], "little")
    rest = data[begin:]
    if DEFLATED.uid.encode() in data[:begin]:
        stream = zlib.decompressobj(-zlib.MAX_WBITS)
        rest = stream.decompress(rest) + stream.unused_data
    return data[:128], data[128:begin], rest


def unexpected(remarks):
    """What DCMTK's tools say, but that they read a sequence of VR UN."""
    return [line for line in remarks if not line.startswith("W: Found element")]


class SetTests:
    """What holds for every set of sound objects; `words` are the command line of one."""

    words = ()

    @classmethod
    def setUpClass(cls):
        cls.scratch = pathlib.Path(cls.enterClassContext(tempfile.TemporaryDirectory()))
        cls.folder = cls.scratch / "objects"
        cls.options = cls.prepared()
        cls.told = make(cls.options[0], cls.folder, *cls.options[1:])
        cls.files = {file["path"]: file for file in cls.told["files"]}
        cls.dumps, _ = dump(cls.folder, cls.files)

    @classmethod
    def prepared(cls):
        """The words, when what they name is there."""
        return cls.words

    def objects(self):
        return {path: file for path, file in self.files.items() if file["kind"] != "DICOMDIR"}

    def sound(self):
        """The objects that DCMTK reads: it takes what stands behind the end for further elements."""
        return {path: file for path, file in self.objects().items() if file["syntax"] == "deflated"
                or "trailing bytes" not in [plant["place"] for plant in file["planted"]]}

    def test_every_file_is_read_without_an_error(self):
        self.assertEqual(sorted(self.dumps), sorted(self.files))
        _, remarks = dump(self.folder, self.sound())
        self.assertEqual(unexpected(remarks), [])

    def test_every_planted_value_stands_at_its_path(self):
        wrong = []
        for path, file in self.files.items():
            for plant in file["planted"]:
                written = bytes.fromhex(plant["bytes"])
                if plant["tag"] and not shows(self.dumps[path], plant["tag"], written):
                    wrong.append((path, plant["tag"], plant["value"]))
        self.assertEqual(wrong, [])

    def test_the_description_names_class_syntax_and_character_set(self):
        for path, file in self.sound().items():
            with self.subTest(path):
                values = self.dumps[path].values
                self.assertEqual(values["(0002,0010)"][1].decode(), f"[{file['transfer_syntax']}]")
                self.assertEqual(values["(0008,0016)"][1].decode(), f"[{file['sop_class']}]")
                self.assertEqual(values["(0002,0002)"], values["(0008,0016)"])
                self.assertEqual(values["(0008,0060)"][1].decode(), f"[{file['modality']}]")
                declared = values.get("(0008,0005)", ("CS", b"[]"))[1].decode()
                self.assertEqual(declared, f"[{file['character_set']}]")

    def test_all_files_are_described(self):
        found = {str(path.relative_to(self.folder)) for path in self.folder.rglob("*") if path.is_file()}
        self.assertEqual(found, {*self.files, "planted.json"})

    def test_the_same_seed_gives_the_same_bytes_and_another_one_others(self):
        again, other = self.scratch / "again", self.scratch / "other"
        make(self.options[0], again, *self.options[1:])
        make(self.options[0], other, *self.options[1:], "--seed", "2")
        made = contents(self.folder)
        self.assertEqual(contents(again), made)
        self.assertEqual(set(contents(other).values()) & set(made.values()), set())

    def test_dcmodify_changes_a_copy_of_each_object(self):
        copies = self.scratch / "copies"
        paths = [copies / path for path in self.sound()]
        shutil.copytree(self.folder, copies)
        run = subprocess.run(["dcmodify", "-nb", "-m", "(0020,0011)=77", *paths], stdout=subprocess.PIPE,
                             stderr=subprocess.STDOUT, check=False, timeout=300)
        changed, _ = dump(copies, self.sound())
        self.assertEqual((run.returncode, unexpected(run.stdout.decode().splitlines())), (0, []))
        self.assertEqual({path: dumped.values["(0020,0011)"] for path, dumped in changed.items()},
                         {path: ("IS", b"[77]") for path in self.sound()})
