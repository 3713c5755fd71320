#!/usr/bin/env python3
"""What dravolin-cli run makes of unusual objects and files: objects_test.py DRAVOLIN_CLI MAKE_OBJECTS MODULE"""

import contextlib
import csv
import datetime
import json
import os
import pathlib
import re
import resource
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import unittest

from sources import untouched

CLI, MAKE_OBJECTS, MODULE = map(os.path.abspath, sys.argv[1:4]) if len(sys.argv) > 3 else ("", "", "")
RULES = "0008,0080\tInstitution\n0008,0090\tReferring\tnobody\n0010,0040\tSex\n"
UNDEFINED = b"\xff\xff\xff\xff"


def values(path, *tags, everywhere=False):
    """The values of attributes as dcmdump prints them, the first of each or those in all items."""
    words = [word for tag in tags for word in ("+P", tag)] + (["+s"] if everywhere else [])
    printed = subprocess.run(["dcmdump", "-q", "-Un", "-s", *words, str(path)], check=True, stdout=subprocess.PIPE)
    return re.findall(r"^\(\S+ \S\S \[([^]]*)\]", printed.stdout.decode("latin-1"), re.MULTILINE)


class Objects(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)
        self.source = self.folder / "in"
        self.source.mkdir()
        (self.folder / "rules.txt").write_text(RULES, encoding="utf-8")

    def make(self, *words):
        subprocess.run([sys.executable, MAKE_OBJECTS, words[0], str(self.source), *words[1:]], check=True,
                       stdout=subprocess.DEVNULL)
        (self.source / "planted.json").unlink()

    def run_list(self, *options, status=(0, 1), rows=(("in", "out", "17"),), **more):
        """Carries the list out, and sees that the sources are as they were and that no part of a file is left."""
        lines = ["source,destination,case_id,configuration", *(",".join((*row, "rules.txt")) for row in rows)]
        (self.folder / "list.csv").write_text("\n".join(lines) + "\n", encoding="utf-8")
        with contextlib.nullcontext() if more.pop("sources_change", False) else untouched(self.folder):
            done = subprocess.run([CLI, "run", "list.csv", *options], cwd=self.folder, check=False, timeout=300,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, **more)
        printed = done.stdout.decode(errors="replace")
        self.assertIn(done.returncode, status, printed)
        self.assertEqual(list(self.folder.rglob("*.part")), [])
        return printed

    def results(self, folder="out"):
        return sorted(path for path in (self.folder / folder).rglob("*") if path.is_file() and path.name != "DICOMDIR")

    def contents(self, folder="out"):
        return {path.relative_to(self.folder): path.read_bytes() for path in self.results(folder)}

    def report(self):
        return json.loads((self.folder / "list.run/evidence/report.json").read_text(encoding="utf-8"))

    def not_done(self):
        with open(self.folder / "list.run/secret/not_done.csv", encoding="utf-8", newline="",
                  errors="surrogateescape") as file:
            return {row["source"]: row["reason"] for row in csv.DictReader(file)}

    def test_makes_the_directory_anew(self):
        self.make("mixed", "--count", "20")
        (self.source / "DICOMDIR").rename(self.source / "P1/index.bin")
        self.assertIn("20 done, 0 not done, DICOMDIR made anew;", self.run_list())
        directory = self.folder / "out/DICOMDIR"
        listed = set(values(directory, "0004,1500", everywhere=True))
        self.assertEqual({path.relative_to(self.folder / "out").as_posix().replace("/", "\\")
                          for path in self.results()}, listed)
        self.assertEqual({part for name in listed for part in name.split("\\")
                          if not re.fullmatch("[A-Z0-9_]{1,8}", part)}, set())
        instances = {value for path in self.results() for value in values(path, "0008,0018")}
        self.assertEqual(set(values(directory, "0004,1511", everywhere=True)), instances)
        made = directory.read_bytes()
        self.run_list()
        directory.unlink()
        self.assertNotIn("Nothing is left to be done", self.run_list())
        self.assertEqual(directory.read_bytes(), made)

    def test_follows_a_changed_result_with_the_directory(self):
        self.make("mixed", "--count", "6")
        self.run_list()
        before = (self.folder / "out/DICOMDIR").read_bytes()
        gone = next(path for path in sorted(self.source.rglob("IM*")))
        gone.unlink()
        self.run_list()
        self.assertNotEqual((self.folder / "out/DICOMDIR").read_bytes(), before)
        self.assertEqual(len(values(self.folder / "out/DICOMDIR", "0004,1500", everywhere=True)), 5)
        (self.source / "DICOMDIR").unlink()
        self.run_list()
        self.assertFalse((self.folder / "out/DICOMDIR").exists())
        self.assertEqual({path.suffix for path in self.results()}, {".dcm"})

    def test_says_when_the_directory_cannot_be_made_without_a_dictionary(self):
        self.make("mixed", "--count", "4")
        said = self.run_list(status=(1,), env={**os.environ, "DCMDICTPATH": str(self.folder / "none")})
        self.assertIn("a DICOMDIR cannot be made: DCMTK's dictionary of attributes is missing", said)
        self.assertFalse((self.folder / "out/DICOMDIR").exists())
        self.assertIn("4 done, 0 not done, DICOMDIR made anew;", self.run_list())

    def test_moves_the_dates_of_a_patient_together(self):
        self.make("mixed", "--count", "5", "--no-directory")
        shutil.copytree(self.source, self.source / "again")
        self.run_list("--shift-dates", rows=(("in/P1", "out", "1"), ("in/again", "out2", "2")))
        old = next(path for path in sorted((self.source / "P1").rglob("*")) if path.is_file())
        moved = set()
        for path in self.results() + self.results("out2"):
            for tag in ("0008,0020", "0010,0030"):
                days = [datetime.datetime.strptime(values(file, tag)[0], "%Y%m%d") for file in (old, path)]
                moved.add((days[0] - days[1]).days)
            self.assertEqual(values(path, "0028,0303"), ["MODIFIED"])
            self.assertEqual(values(path, "0008,0030"), values(old, "0008,0030"))
        self.assertEqual(len(moved), 1)
        self.assertTrue(366 <= moved.pop() <= 3652)

    def test_leaves_dates_as_they_are_unless_asked(self):
        self.make("mixed", "--count", "1", "--no-directory")
        self.run_list()
        old = next(path for path in self.source.rglob("*") if path.is_file())
        self.assertEqual(values(self.results()[0], "0008,0020", "0028,0303"), values(old, "0008,0020"))

    def test_comes_through_hostile_files(self):
        self.make("hostile", "--special")
        printed = self.run_list(status=(1,))
        wrong = self.not_done()
        for path, reason in wrong.items():
            self.assertTrue(reason, path)
            self.assertIn(reason, printed)
        self.assertEqual(wrong["nested/100000-explicit.dcm"], "is nested more than 256 deep")
        self.assertEqual(wrong["special/pipe.dcm"], "is no regular file")
        self.assertEqual(wrong["special/link-in-a-circle"], "is a link")
        self.assertEqual(wrong["none/text.txt"], "is no DICOM file")
        self.assertEqual({path for path in wrong if path.startswith("unusual/")}, set())
        for path in self.results():
            subprocess.run(["dcmdump", "-q", str(path)], check=True, stdout=subprocess.DEVNULL)

    def unusual(self, *names):
        """These objects of the hostile set as source; gives their bytes."""
        with tempfile.TemporaryDirectory() as made:
            subprocess.run([sys.executable, MAKE_OBJECTS, "hostile", made], check=True, stdout=subprocess.DEVNULL)
            return [pathlib.Path(shutil.copy(f"{made}/unusual/{name}.dcm", self.source)).read_bytes()
                    for name in names]

    def test_treats_known_attributes_and_pixels_that_nobody_knows(self):
        pixels = b"\xe0\x7f\x10\x00OB\0\0" + UNDEFINED
        *encoded, _ = self.unusual("htj2k", "jpeg-xl", "deflated-frames", "un")
        self.run_list()
        known = {path.read_bytes().partition(pixels)[2]: path for path in self.results()}
        expected = {content.partition(pixels)[2] for content in encoded}
        self.assertEqual(known.keys() - {b""}, expected)
        self.assertNotIn(b"", expected)
        with_unknown = known[b""]
        printed = subprocess.run(["dcmdump", "-q", "-Un", "+P", "0010,0020", with_unknown], check=True,
                                 stdout=subprocess.PIPE).stdout.decode()
        self.assertTrue(printed.startswith("(0010,0020) LO [17]"), printed)
        self.assertNotIn(b"Damaged^Deirdre", with_unknown.read_bytes())

    def test_names_what_cannot_be_written(self):
        self.make("mixed", "--count", "10", "--no-directory", "--pixels", "400000")
        limit = 200_000

        def limited():
            resource.setrlimit(resource.RLIMIT_FSIZE, (limit, limit))

        printed = self.run_list(status=(1,), preexec_fn=limited)
        self.assertIn("cannot be written: File too large", printed)
        self.assertEqual([path for path in self.results() if path.stat().st_size >= limit], [])

    def mount(self, size):
        """Makes the folder small a file system of that size; whether that was allowed."""
        small = self.folder / "small"
        small.mkdir()
        mounted = subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}", "tmpfs", small], check=False,
                                 stderr=subprocess.DEVNULL)
        if mounted.returncode == 0:
            self.addCleanup(subprocess.run, ["umount", str(small)], check=True)
        return mounted.returncode == 0

    def resize(self, size):
        subprocess.run(["mount", "-o", f"remount,size={size}", self.folder / "small"], check=True)

    @unittest.skipUnless(os.geteuid() == 0 and shutil.which("mount"), "a small file system takes an administrator")
    def test_leaves_no_directory_that_a_full_disk_has_cut(self):
        self.make("mixed", "--count", "40", "--pixels", "1000")
        self.run_list("--key", "key")
        expected = (self.folder / "out/DICOMDIR").read_bytes()
        if not self.mount("1m"):
            return  # not allowed in every container
        page = 4096
        pages = sum(-(-path.stat().st_size // page) for path in self.results())
        directory = -(-len(expected) // page)
        self.assertGreater(directory, 2)
        # the directory is cut at once, in the middle, and when it is written once more with its UID
        for number, more in enumerate((1, directory // 2, directory + 1, 2 * directory - 1)):
            with self.subTest(pages=more):
                self.resize((pages + more) * page)
                row = ("in", f"small/out{number}", "17")
                options = ("--key", "key", "--folder", f"{number}.run")
                printed = self.run_list(*options, status=(1,), rows=(row,))
                self.assertIn("case 17: a DICOMDIR cannot be made: it could not be written as a whole\n", printed)
                self.assertIn("case 17: 40 done, 0 not done\n", printed)
                self.assertEqual({path.suffix for path in (self.folder / row[1]).glob("*") if path.is_file()}, set())
                self.resize("10m")
                self.assertIn("DICOMDIR made anew", self.run_list(*options, rows=(row,)))
                self.assertEqual((self.folder / row[1] / "DICOMDIR").read_bytes(), expected)
                shutil.rmtree(self.folder / row[1])

    @unittest.skipUnless(os.geteuid() == 0 and shutil.which("mount"), "a small file system takes an administrator")
    def test_says_why_the_journal_cannot_be_made(self):
        self.make("mixed", "--count", "1", "--no-directory")
        if not self.mount("4k"):
            return  # not allowed in every container
        printed = self.run_list("--folder", "small/run", status=(2,))
        journal = self.folder / "small/run/journal.sqlite"
        self.assertEqual(printed, f"the journal {journal} cannot be used: database or disk is full\n")
        self.assertEqual(journal.stat().st_mode & 0o777, 0o600)

    def test_says_nothing_of_cases_when_a_destination_cannot_be_made(self):
        self.make("mixed", "--count", "1", "--no-directory")
        printed = self.run_list(status=(1,), rows=(("in", "/proc/none", "17"),))
        self.assertEqual(printed, "dravolin-cli run: the destination /proc/none cannot be made: "
                                  "No such file or directory\n")

    @unittest.skipUnless(os.geteuid() == 0 and shutil.which("mount"), "a small file system takes an administrator")
    def test_tells_that_the_disk_is_full(self):
        self.make("mixed", "--count", "10", "--no-directory", "--pixels", "400000")
        if not self.mount("1m"):
            return  # not allowed in every container; the limit of a file's size is tried above
        printed = self.run_list(status=(1,), rows=(("in", "small/out", "17"),))
        self.assertIn("cannot be written: No space left on device", printed)
        for path in self.results("small/out"):
            subprocess.run(["dcmdump", "-q", str(path)], check=True, stdout=subprocess.DEVNULL)

    def test_bears_sources_that_vanish_and_change(self):
        self.make("mixed", "--count", "60", "--no-directory", "--pixels", "300000")
        paths = sorted(path for path in self.source.rglob("*") if path.is_file())
        started = threading.Event()

        def disturb():
            started.wait()
            for number, path in enumerate(reversed(paths)):
                with contextlib.suppress(FileNotFoundError):
                    path.unlink() if number % 2 else os.truncate(path, path.stat().st_size // 2)

        thread = threading.Thread(target=disturb)
        thread.start()
        started.set()
        self.run_list("--workers", "1", sources_change=True)
        thread.join()
        for path in self.results():
            subprocess.run(["dcmdump", "-q", str(path)], check=True, stdout=subprocess.DEVNULL)

    def as_ordinary_user(self):
        """How a call is made by somebody whom permissions concern."""
        if os.geteuid() != 0:
            return {}
        nobody = 65534
        self.folder.chmod(0o777)
        own = self.folder / "program/bin/cli"
        module = pathlib.Path(os.path.normpath(own.parent / os.path.relpath(MODULE, os.path.dirname(CLI))))
        for file, copy in ((CLI, own), (MODULE, module)):
            copy.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(file, copy)
        return {"user": nobody, "group": nobody, "executable": str(own)}

    def lock(self, folder):
        folder.chmod(0)
        self.addCleanup(folder.chmod, 0o755)

    def test_names_a_folder_that_cannot_be_listed(self):
        self.make("mixed", "--count", "3", "--no-directory")
        (self.source / "secret room").mkdir()
        self.lock(self.source / "secret room")
        user = self.as_ordinary_user()
        reason = "cannot be listed: Permission denied"
        printed = self.run_list(status=(1,), **user)
        self.assertRegex(printed, f"case 17: 3 done, 1 not done; .*NOT CHECKED: 1 file\n  secret room/: {reason}\n")
        self.assertEqual(self.not_done(), {"secret room/": reason})
        self.assertEqual(self.report()["cases"][0]["notDone"], 1)
        planned = subprocess.run([CLI, "plan", "list.csv"], cwd=self.folder, check=False, stdout=subprocess.PIPE,
                                 text=True, **user)
        self.assertEqual(planned.returncode, 1)
        self.assertIn(f", 1 of them cannot be done\n  secret room/: {reason}\n", planned.stdout)

    def test_keeps_results_while_their_folder_cannot_be_listed(self):
        self.make("mixed", "--count", "3", "--no-directory")
        user = self.as_ordinary_user()
        self.run_list(**user)
        made = self.contents()
        reason = "cannot be listed: Permission denied"
        for folder, name in ((self.source / "P1", "P1/"), (self.source, "./")):
            self.lock(folder)
            printed = self.run_list(status=(1,), sources_change=True, **user)
            self.assertIn("case 17: 0 done, 1 not done;", printed)
            self.assertEqual(self.not_done(), {name: reason})
            self.assertEqual(self.contents(), made)
            folder.chmod(0o755)
        self.assertIn("case 17: 3 done, 0 not done;", self.run_list(**user))
        self.assertEqual(self.contents(), made)

    def test_keeps_the_result_of_a_file_that_cannot_be_read_for_a_while(self):
        self.make("mixed", "--count", "3", "--no-directory")
        user = self.as_ordinary_user()
        self.run_list(**user)
        made = self.contents()
        one = sorted(path for path in self.source.rglob("*") if path.is_file())[0]
        name = str(one.relative_to(self.source))
        one.chmod(0)
        printed = self.run_list(status=(1,), **user)
        self.assertIn("case 17: 2 done, 1 not done;", printed)
        self.assertNotIn("Nothing is left to be done", printed)
        self.assertEqual(self.not_done(), {name: "cannot be opened: Permission denied"})
        self.assertEqual(self.contents(), made)
        one.chmod(0o644)
        self.assertIn("case 17: 3 done, 0 not done;", self.run_list(**user))
        self.assertEqual(self.contents(), made)
        one.write_bytes(b"another file")  # what was made of the one before is nobody's result any more
        one.chmod(0)
        self.run_list(status=(1,), **user)
        self.assertEqual(len(self.contents()), len(made) - 1)

    def test_leaves_no_result_of_other_rules_for_what_cannot_be_done(self):
        self.make("mixed", "--count", "1", "--no-directory")
        one = next(path for path in self.source.rglob("*") if path.is_file())
        subprocess.run(["dcmodify", "-nb", "-i", "(0008,0005)=ISO_IR 9", "-i", b"(0008,0070)=M\xfcller", one],
                       check=True)
        (self.folder / "rules.txt").write_text("0010,0030\tBirth date\n", encoding="utf-8")
        columns = "source,destination,case_id,configuration,diagnosis\n"
        for diagnosis, done in (("Case", 1), ("\u0141\u00f3d\u017a", 0)):
            (self.folder / "own.csv").write_text(f"{columns}in,out,17,rules.txt,{diagnosis}\n", encoding="utf-8")
            printed = subprocess.run([CLI, "run", "own.csv"], cwd=self.folder, check=False, capture_output=True,
                                     text=True).stdout
            self.assertIn(f"case 17: {done} done, {1 - done} not done;", printed)
            self.assertEqual(len(self.results()), done)

    def test_prints_no_messages_of_the_library(self):
        self.make("mixed", "--count", "1", "--no-directory")
        one = next(path for path in self.source.rglob("*") if path.is_file())
        subprocess.run(["dcmodify", "-nb", "-i", "(0008,0005)=\\ISO 2022 IR 87", "-i",
                        b"(0010,0020)=\x1b$B;3\x1b(B", one], check=True)
        (self.folder / "list.csv").write_text("source,destination,case_id\nin,out,17\n", encoding="utf-8")
        for command in ("plan", "run"):
            called = subprocess.run([CLI, command, "list.csv", *(["--quiet"] if command == "run" else [])],
                                    cwd=self.folder, check=False, capture_output=True, text=True)
            self.assertEqual(called.stderr, "")

    def test_makes_no_directory_while_that_of_the_source_cannot_be_read(self):
        self.make("mixed", "--count", "3")
        user = self.as_ordinary_user()
        self.run_list(**user)
        made = self.contents()
        directory = next(self.source.rglob("DICOMDIR"))
        directory.chmod(0)
        printed = self.run_list(status=(1,), **user)
        self.assertIn("case 17: 3 done, 1 not done;", printed)
        self.assertEqual({name for name in self.contents() if "DICOMDIR" in str(name)}, set())
        directory.chmod(0o644)
        self.run_list(**user)
        self.assertEqual(self.contents().keys(), made.keys())

    def test_keeps_results_while_their_source_is_empty(self):
        self.make("mixed", "--count", "3", "--no-directory")
        self.run_list()
        made = self.contents()
        away = self.folder / "away"
        self.source.rename(away)
        self.source.mkdir()
        printed = self.run_list(status=(1,))
        self.assertIn("case 17: 0 done, 1 not done;", printed)
        self.assertEqual(self.not_done(), {"./": "is empty now; what was made of it stays"})
        self.assertEqual(self.contents(), made)
        self.source.rmdir()
        away.rename(self.source)
        self.assertIn("case 17: 3 done, 0 not done;", self.run_list())
        self.assertEqual(self.contents(), made)

    def test_does_a_result_anew_whose_name_went_to_another_file_meanwhile(self):
        self.make("mixed", "--count", "1", "--no-directory")
        one = next(path for path in self.source.rglob("*") if path.is_file())
        for name in ("a", "b"):  # two objects with the same UID
            (self.source / name).mkdir()
            subprocess.run(["dcmodify", "-nb", "-i", f"(0008,0070)=Maker {name}", one], check=True)
            shutil.copy(one, self.source / name)
        shutil.rmtree(self.source / "P1")
        user = self.as_ordinary_user()
        self.run_list(**user)
        made = self.contents()
        self.lock(self.source / "a")
        self.run_list(status=(1,), **user)
        self.assertNotEqual(self.contents(), made)
        (self.source / "a").chmod(0o755)
        self.run_list(**user)
        self.assertEqual(self.contents(), made)

    def test_tells_what_cannot_be_read(self):
        self.make("mixed", "--count", "3", "--no-directory")
        locked = next(path for path in sorted(self.source.rglob("*")) if path.is_file())
        locked.chmod(0)
        self.run_list(status=(1,), **self.as_ordinary_user())
        self.assertEqual(self.not_done(), {locked.relative_to(self.source).as_posix():
                                           "cannot be opened: Permission denied"})
        self.assertEqual(len(self.results()), 2)


if __name__ == "__main__":
    os.environ.pop("DCMDICTPATH", None)
    signal.signal(signal.SIGXFSZ, signal.SIG_DFL)
    unittest.main(argv=sys.argv[:1])
