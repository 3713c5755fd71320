#!/usr/bin/env python3
"""Whole runs of dravolin-cli over generated objects: run_test.py DRAVOLIN_CLI MAKE_OBJECTS"""

import contextlib
import fcntl
import os
import pathlib
import random
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time
import unittest

from sources import tree, untouched

CLI, MAKE_OBJECTS = map(os.path.abspath, sys.argv[1:3]) if len(sys.argv) > 2 else ("", "")
RULES = ("0008,0080\tInstitution\n0008,0090\tReferring\tnobody\n0010,0030\tBirth date\n0010,0040\tSex\n"
         "0008,0020\tStudy date\n0020,0010\tStudy ID\n0040,a121\tDate\n0040,a123\tPerson\n"
         "0010,1010\tAge\t030Y\n0008,1030\tStudy description\ta \"quoted\" one\n")


def make(kind, folder, *options):
    subprocess.run([sys.executable, MAKE_OBJECTS, kind, str(folder), *options], check=True,
                   stdout=subprocess.DEVNULL)


def dump(path):
    """The data set as dcmdump prints it, without lengths."""
    printed = subprocess.run(["dcmdump", "-q", "+L", "-Un", str(path)], capture_output=True, check=True).stdout
    lines = printed.decode("latin-1").partition("# Dicom-Data-Set")[2].splitlines()[2:]
    return [line[:line.rindex("#")].replace("undefined length", "explicit length").rstrip()
            for line in lines if "#" in line and "DelimitationItem" not in line and ",0000) UL" not in line]


def uids_of(paths):
    """The UIDs of instances in the data sets of the files."""
    lines = [line.strip() for path in paths for line in dump(path) if " UI [" in line]
    return {uid for line in lines for uid in line.split("[")[1].rstrip("]").split("\\")
            if not uid.startswith("1.2.840.10008.")}


class Run(unittest.TestCase):
    def setUp(self):
        self.scratch = tempfile.TemporaryDirectory()
        self.addCleanup(self.scratch.cleanup)
        self.folder = pathlib.Path(self.scratch.name)
        (self.folder / "rules.txt").write_text(RULES, encoding="utf-8")

    def write_list(self, *rows, name="list.csv"):
        head = "source,destination,case_id,configuration,diagnosis,uid_root"
        text = "\r\n".join([head, *(",".join(row) for row in rows)]) + "\r\n"
        (self.folder / name).write_text(text, encoding="utf-8")

    def call(self, *arguments, status=0):
        with untouched(self.folder):
            done = subprocess.run([CLI, *arguments], cwd=self.folder, capture_output=True, text=True, check=False)
        self.assertEqual(done.returncode, status, done.stdout + done.stderr)
        return done.stdout + done.stderr

    def results(self, folder):
        return [path for path in sorted((self.folder / folder).rglob("*")) if path.is_file()]

    def test_changes_objects_as_the_tool_does(self):
        make("mixed", self.folder / "in", "--count", "40", "--no-directory")
        (self.folder / "in/planted.json").unlink()
        self.write_list(("in", "out", "17", "rules.txt", "Case", ""))
        self.call("run", "list.csv", "--keep-private", "--keep-uids", status=1)  # names stay

        # -le, or private sequences that nothing tells from bytes would be written with lengths
        tool = ["dcmodify", "-ie", "-imt", "-nb", "-le", "-ea", "(0008,0050)", "-ea", "(0008,0080)", "-ea", "(0010,0030)",
                "-ea", "(0010,0040)", "-ea", "(0032,4000)",
                "-ea", "(0008,0020)", "-ea", "(0020,0010)", "-ea", "(0040,a121)", "-ea", "(0040,a123)", "-i", "(0008,0090)=nobody", "-i", "(0010,1010)=030Y",
                "-i", '(0008,1030)=a "quoted" one', "-i", "(0010,0010)=Case", "-i", "(0010,0020)=17"]
        expected = []
        for number, path in enumerate(p for p in sorted((self.folder / "in").rglob("*")) if p.is_file()):
            copy = self.folder / f"copy{number}"
            shutil.copy(path, copy)
            subprocess.run([*tool, str(copy)], capture_output=True, check=False)
            expected.append(dump(copy))
        found = [dump(path) for path in self.results("out")]
        self.assertEqual(len(found), len(expected))
        nested = ("  (0008,0090)", "  (0010,0010)", "  (0010,0020)", "  (0010,1010)", "  (0008,1030)")
        plain = lambda lines: [line for line in lines if not line.lstrip().startswith(tuple(n.strip() for n in nested))
                               or not line.startswith(" ")]  # nested copies are replaced here, not there
        self.assertEqual(sorted(map(plain, found)), sorted(map(plain, expected)))

    def test_takes_what_is_missing_from_the_table_as_it_is_written(self):
        make("mixed", self.folder / "in", "--count", "1", "--no-directory")
        (self.folder / "in/planted.json").unlink()
        (self.folder / "rules.txt").write_text(RULES.replace("0020,0010\tStudy ID", "0020,0010\tStudy ID\t<LUT_x>"),
                                               encoding="utf-8")
        source = self.results("in")[0]
        subprocess.run(["dcmodify", "-nb", "-i", "(0020,0010)=4711", str(source)], check=True)
        (self.folder / "x.txt").write_text("4712\tOne\n<missing>\tMixed Case Value\n", encoding="utf-8")
        (self.folder / "list.csv").write_text("source,destination,case_id,configuration,table\n"
                                              "in,out,17,rules.txt,x.txt\n", encoding="utf-8")
        self.call("run", "list.csv", "--at-least", "certain")
        self.assertIn("(0020,0010) SH [Mixed Case Value]", dump(self.results("out")[0]))

    def test_takes_private_attributes_and_uids_out(self):
        make("mixed", self.folder / "in", "--count", "40")
        (self.folder / "in/planted.json").unlink()
        old = uids_of(path for path in (self.folder / "in").rglob("*") if path.is_file() and path.name != "DICOMDIR")
        self.write_list(("in", "out", "17", "rules.txt", "Case", ""))
        self.assertIn("40 done, 0 not done, DICOMDIR made anew", self.call("run", "list.csv"))
        for path in self.results("out"):
            text = "\n".join(dump(path))
            self.assertNotRegex(text, r"\([0-9a-f]{3}[13579bdf],")
            if path.name != "DICOMDIR":
                self.assertIn("(0012,0062) CS [YES]", text)
            subprocess.run(["dcmdump", "-q", str(path)], check=True, stdout=subprocess.DEVNULL)
        uids = uids_of(self.results("out"))
        self.assertTrue(old)
        self.assertEqual(uids & old, set())
        secret = self.folder / "list.run/secret"
        self.assertEqual(secret.stat().st_mode & 0o777, 0o700)
        head, *rows = (secret / "uid_map.csv").read_text(encoding="utf-8").splitlines()
        self.assertEqual(head, "id_old,id_new")
        self.assertEqual({row.split(",")[1] for row in rows}, uids)
        self.assertEqual(len(uids), len(old))
        hashes = tree(self.folder / "out")
        for row in (self.folder / "list.run/evidence/files.csv").read_text(encoding="utf-8").splitlines()[1:]:
            case_id, result, before, after = row.split(",")
            self.assertEqual((case_id, hashes.pop(result)), ("17", after))
        self.assertEqual(hashes, {})

    def test_gives_a_study_one_new_uid_in_every_case(self):
        make("mixed", self.folder / "made", "--count", "12", "--no-directory")
        study = next(path for path in sorted((self.folder / "made").rglob("*")) if path.is_file()).parent.parent
        for source in ("in", "again", "plainly"):
            shutil.copytree(study, self.folder / source)
        root = "1.2.345678901234567890123."
        self.write_list(("plainly", "out/1", "10", "rules.txt", "Case", ""),
                        ("in", "out/2", "0011", "rules.txt", "Case", root),
                        ("again", "out/3", "12", "rules.txt", "Case", root))
        self.call("run", "list.csv")
        studies = {line.split("[")[1].split("]")[0] for path in self.results("out") for line in dump(path)
                   if line.startswith("(0020,000d)")}
        self.assertEqual(studies, {root + "11"})
        rows = (self.folder / "list.run/secret/uid_map.csv").read_text(encoding="utf-8").splitlines()[1:]
        self.assertEqual(len([row for row in rows if row.endswith("," + root + "11")]), 1)
        self.assertEqual(len(rows), len({row.split(",")[0] for row in rows}))

    def test_goes_on_where_it_was_killed(self):
        make("mixed", self.folder / "in", "--count", "200", "--no-directory")
        (self.folder / "in/planted.json").unlink()
        self.write_list(("in", "whole", "17", "rules.txt", "Case", ""), name="whole.csv")
        self.write_list(("in", "out", "17", "rules.txt", "Case", ""))
        self.call("run", "whole.csv", "--key", "project.key")
        chance = random.Random(11)
        killed = 0
        for _ in range(8):
            with untouched(self.folder), subprocess.Popen(
                    [CLI, "run", "list.csv", "--key", "project.key"], cwd=self.folder, stdout=subprocess.DEVNULL,
                    stderr=subprocess.DEVNULL) as running:
                try:
                    running.wait(chance.uniform(0.02, 0.3))
                except subprocess.TimeoutExpired:
                    running.kill()
                    killed += 1
        self.assertGreater(killed, 0)
        self.call("run", "list.csv", "--key", "project.key")
        self.assertEqual(tree(self.folder / "out"), tree(self.folder / "whole"))
        again = self.call("run", "list.csv", "--key", "project.key")
        self.assertIn("Nothing is left to be done.", again)

    def test_does_a_changed_source_anew(self):
        make("mixed", self.folder / "in", "--count", "5", "--no-directory")
        (self.folder / "in/planted.json").unlink()
        self.write_list(("in", "out", "17", "rules.txt", "Case", ""))
        self.call("run", "list.csv")
        before = tree(self.folder / "out")
        changed = next(path for path in sorted((self.folder / "in").rglob("*")) if path.is_file())
        subprocess.run(["dcmodify", "-nb", "-i", "(0018,0050)=5", str(changed)], check=True)
        self.call("run", "list.csv")
        after = tree(self.folder / "out")
        self.assertEqual(before.keys(), after.keys())
        self.assertEqual(sum(before[name] != after[name] for name in after), 1)

    def test_ends_when_interrupted_and_says_how_to_go_on(self):
        make("mixed", self.folder / "in", "--count", "20", "--no-directory", "--pixels", "4000000")
        self.write_list(("in", "out", "17", "rules.txt", "Case", ""))
        with untouched(self.folder), subprocess.Popen(
                [CLI, "run", "list.csv", "--workers", "1"], cwd=self.folder, stdout=subprocess.PIPE,
                stderr=subprocess.PIPE, text=True) as running:
            while not list((self.folder / "out").rglob("*.part")) and running.poll() is None:
                time.sleep(0.001)
            running.send_signal(signal.SIGINT)
            _, errors = running.communicate(timeout=30)
        self.assertEqual(running.returncode, 130)
        self.assertIn("the same call goes on from here", errors)

    def test_names_what_it_cannot_do(self):
        make("hostile", self.folder / "in")
        self.write_list(("in", "out", "17", "rules.txt", "Case", ""))
        printed = self.call("run", "list.csv", status=1)
        self.assertIn("is nested more than 256 deep", printed)
        self.assertEqual([path for path in self.results("out") if path.suffix == ".part"], [])
        for path in self.results("out"):
            subprocess.run(["dcmdump", "-q", str(path)], check=True, stdout=subprocess.DEVNULL)

    def test_judges_the_list_before_anything_is_written(self):
        self.write_list(("none", "out", "1", "rules.txt", "", ""), ("none", "out", "1", "rules.txt", "", "7"))
        printed = self.call("run", "list.csv", status=2)
        for text in ("line 2: there is no source", "line 3: has the destination of line 2",
                     "line 3: has the case_id of line 2", "line 3: the UID root 7 makes no UID"):
            self.assertIn(text, printed)
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()), ["list.csv", "rules.txt"])

    def test_writes_nothing_to_places_that_are_another_by_a_link(self):
        for name in ("s1", "s2", "real"):
            (self.folder / name).mkdir()
        (self.folder / "s1alias").symlink_to("s1")
        (self.folder / "alias").symlink_to("real")
        (self.folder / "nowhere").symlink_to("none")
        before = tree(self.folder)
        self.write_list(("s1", "real/17", "1", "rules.txt", "", ""), ("s2", "alias/17", "2", "rules.txt", "", ""),
                        ("s2", "s1alias/out", "3", "rules.txt", "", ""))
        printed = self.call("run", "list.csv", "--folder", "s1alias/run", "--key", "s1alias/newkey", status=2)
        for text in ("line 2: the source holds the run's own folder",
                     f"line 2: the key {self.folder}/s1alias/newkey lies in the source",
                     "line 3: has the destination of line 2",
                     "line 4: the destination and the source of line 2 lie one inside the other"):
            self.assertIn(text, printed)
        (self.folder / "list.csv").unlink()
        self.assertEqual((tree(self.folder), os.listdir(self.folder / "real")), (before, []))
        self.write_list(("s1", "out", "1", "rules.txt", "", ""))
        self.assertIn("cannot be read", self.call("run", "list.csv", "--key", "nowhere", status=2))

    def test_refuses_a_second_call_and_another_key(self):
        make("mixed", self.folder / "in", "--count", "3", "--no-directory")
        self.write_list(("in", "out", "17", "rules.txt", "Case", ""))
        self.call("run", "list.csv", status=1)  # planted.json is no DICOM file
        printed = self.call("run", "list.csv", "--key", "other.key", status=2)
        self.assertIn("the run was begun with another key", printed)
        with open(self.folder / "list.run/lock", "rb") as lock:
            fcntl.flock(lock, fcntl.LOCK_EX)
            self.assertIn("another call is at work", self.call("run", "list.csv", status=2))

    def test_leaves_a_destination_to_the_call_that_works_in_it(self):
        make("mixed", self.folder / "in", "--count", "3", "--no-directory")
        (self.folder / "in/planted.json").unlink()
        (self.folder / "out").mkdir()
        self.write_list(("in", "out", "17", "rules.txt", "Case", ""))
        other = os.open(self.folder / "out", os.O_RDONLY)
        self.addCleanup(os.close, other)
        fcntl.flock(other, fcntl.LOCK_EX)
        printed = self.call("run", "list.csv", status=1)
        self.assertIn(f"another call is at work in {self.folder}/out", printed)
        self.assertEqual(os.listdir(self.folder / "out"), [])
        fcntl.flock(other, fcntl.LOCK_UN)
        self.call("run", "list.csv")

    def test_mixes_no_two_runs_in_one_destination(self):
        make("mixed", self.folder / "in", "--count", "100", "--no-directory")
        (self.folder / "in/planted.json").unlink()
        self.write_list(("in", "out", "17", "rules.txt", "Case", ""))
        with untouched(self.folder):
            calls = {name: subprocess.Popen([CLI, "run", "list.csv", "--folder", name], cwd=self.folder, text=True,
                                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT) for name in ("fa", "fb")}
            printed = {name: call.communicate()[0] for name, call in calls.items()}
        winners = [name for name, call in calls.items() if call.returncode == 0]
        self.assertEqual(len(winners), 1, printed)
        loser, = calls.keys() - winners
        self.assertRegex(printed[loser], "another call is at work in|is in use")
        self.assertIn(calls[loser].returncode, (1, 2))
        rows = (self.folder / winners[0] / "evidence/files.csv").read_text(encoding="utf-8").splitlines()[1:]
        self.assertEqual(tree(self.folder / "out"), {row.split(",")[1]: row.split(",")[3] for row in rows})

    def test_goes_on_in_another_destination_of_the_list(self):
        make("mixed", self.folder / "in", "--count", "3", "--no-directory")
        (self.folder / "in/planted.json").unlink()
        self.write_list(("in", "out", "17", "rules.txt", "Case", ""))
        self.call("run", "list.csv")
        self.write_list(("in", "elsewhere", "17", "rules.txt", "Case", ""))
        self.call("run", "list.csv")
        self.assertEqual(tree(self.folder / "elsewhere"), tree(self.folder / "out"))
        self.assertIn("Nothing is left to be done.", self.call("run", "list.csv"))

    def set_journal_version(self, version):
        with contextlib.closing(sqlite3.connect(self.folder / "list.run/journal.sqlite")) as journal:
            journal.execute(f"PRAGMA user_version={version}")

    def test_goes_on_with_a_journal_without_a_version_and_refuses_a_later_one(self):
        make("mixed", self.folder / "in", "--count", "3", "--no-directory")
        (self.folder / "in/planted.json").unlink()
        self.write_list(("in", "out", "17", "rules.txt", "Case", ""))
        self.call("run", "list.csv")
        self.set_journal_version(0)
        self.assertIn("Nothing is left to be done.", self.call("run", "list.csv"))
        self.set_journal_version(2)
        self.assertIn("was written by a later version", self.call("run", "list.csv", status=2))

    def test_takes_stale_results_away_when_names_change(self):
        make("mixed", self.folder / "in", "--count", "6", "--no-directory")
        (self.folder / "in/planted.json").unlink()
        files = [path for path in sorted((self.folder / "in").rglob("*")) if path.is_file()]
        shutil.copy(files[0], self.folder / "in/0 first")  # two with one UID: the second gets a number
        self.write_list(("in", "out", "17", "rules.txt", "Case", ""))
        self.call("run", "list.csv")
        numbered = [path for path in self.results("out") if path.stem.endswith("_2")]
        self.assertEqual((len(self.results("out")), len(numbered)), (7, 1))
        (self.folder / "in/0 first").unlink()
        files[1].unlink()
        self.call("run", "list.csv")
        shutil.copytree(self.folder / "out", self.folder / "changed")
        self.write_list(("in", "whole", "17", "rules.txt", "Case", ""), name="whole.csv")
        self.call("run", "whole.csv", "--key", "list.run/secret/project.key")
        self.assertEqual(tree(self.folder / "changed"), tree(self.folder / "whole"))


if __name__ == "__main__":
    os.environ.pop("DCMDICTPATH", None)
    unittest.main(argv=sys.argv[:1])
