#!/usr/bin/env python3
"""One list on several machines, by GNU parallel and by Slurm: parts_test.py DRAVOLIN_CLI MAKE_OBJECTS"""

import json
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

from slurm_cluster import slurm
from sources import tree, untouched

CLI, MAKE_OBJECTS = map(os.path.abspath, sys.argv[1:3]) if len(sys.argv) > 2 else ("", "")
ARRAY = pathlib.Path(__file__).resolve().parents[2] / "examples/slurm-array.sh"
CASES = 4
PARTS = 2


class Parts(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scratch = tempfile.TemporaryDirectory()
        cls.folder = pathlib.Path(cls.scratch.name)
        subprocess.run([sys.executable, MAKE_OBJECTS, "mixed", cls.folder / "made", "--count", "160",
                        "--no-directory"], check=True, stdout=subprocess.DEVNULL)
        (cls.folder / "made/planted.json").unlink()
        studies = {}
        for number, path in enumerate(sorted(path for path in (cls.folder / "made").rglob("*") if path.is_file())):
            study = studies.setdefault(path.parent.parent, len(studies))
            # a case is a study, but for the last one, which has images of them all
            target = cls.folder / f"in/{CASES - 1 if number % 10 == 0 else study}"
            target.mkdir(parents=True, exist_ok=True)
            path.rename(target / f"IM{number}")
        assert len(studies) == CASES - 1
        cls.write_list("whole.csv", "whole")
        cls.call("run", "whole.csv", "--key", "key")
        assert "1.2.345678901234567890123" in (cls.folder / "whole.run/secret/uid_map.csv").read_text(encoding="utf-8")

    @classmethod
    def tearDownClass(cls):
        cls.scratch.cleanup()

    @classmethod
    def write_list(cls, name, to):
        roots = ["1.2.345678901234567890123"] * (CASES - 1) + [""]
        rows = [f"in/{number},{to}/{number},{number + 1},Case,{root}" for number, root in enumerate(roots)]
        (cls.folder / name).write_text("source,destination,case_id,diagnosis,uid_root\n" + "\n".join(rows) + "\n",
                                       encoding="utf-8")

    @classmethod
    def call(cls, *arguments, status=0):
        with untouched(cls.folder):
            done = subprocess.run([CLI, *arguments], cwd=cls.folder, capture_output=True, text=True, check=False)
        assert done.returncode == status, (done.returncode, done.stdout, done.stderr)
        return done.stdout + done.stderr

    def report(self, run):
        return json.loads((self.folder / run / "evidence/report.json").read_text(encoding="utf-8"))

    def in_parallel(self, name, kill=False):
        """All parts of a list, beside each other; one of them may be killed when it has begun."""
        command = ["parallel", "-j", str(PARTS), CLI, "run", name, "--key", "key", "--workers", "1", "--quiet",
                   "--shard", f"{{}}/{PARTS}", ":::", *map(str, range(1, PARTS + 1))]
        with untouched(self.folder), subprocess.Popen(
                command, cwd=self.folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                env={**os.environ, "HOME": str(self.folder)}) as running:
            if kill:
                self.kill_one(name, running)
        return running.returncode

    def kill_one(self, name, running):
        suffix = f"\0--shard\x002/{PARTS}\0".encode()
        while running.poll() is None:
            for process in pathlib.Path("/proc").glob("[0-9]*"):
                try:
                    words = (process / "cmdline").read_bytes()
                    if words.startswith(CLI.encode()) and words.endswith(suffix) and name.encode() in words:
                        begun = list(self.folder.glob("killed/*/*/*.dcm"))
                        if begun:
                            os.kill(int(process.name), signal.SIGKILL)
                            return
                except OSError:
                    pass
            time.sleep(0.002)
        self.fail("the part had ended before it could be killed")

    def in_an_array(self, name):
        """All parts of a list as jobs of Slurm, and the merge behind them; gives what that says."""
        log = self.folder / pathlib.Path(name).with_suffix(".merge.log")
        with slurm(self.folder / "slurm") as environment, untouched(self.folder):
            environment["PATH"] = os.path.dirname(CLI) + os.pathsep + environment["PATH"]
            begun = subprocess.run([ARRAY, name, str(PARTS)], cwd=self.folder, env=environment, capture_output=True,
                                   text=True, check=True)
            waiting = ["squeue", "--noheader", "--jobs", begun.stdout.strip()]
            while subprocess.run(waiting, env=environment, capture_output=True, text=True, check=False).stdout:
                time.sleep(0.2)
        return log.read_text(encoding="utf-8")

    def assert_is_as_the_whole(self, results, run):
        self.assertEqual(tree(self.folder / results), tree(self.folder / "whole"))
        for name in ("evidence/files.csv", "secret/uid_map.csv", "secret/patient_map.csv", "secret/not_done.csv"):
            self.assertEqual((self.folder / run / name).read_bytes(), (self.folder / "whole.run" / name).read_bytes(),
                             name)
        reports = [self.report(run), self.report("whole.run")]
        for report in reports:
            for member in ("time", "listSha256"):
                del report[member]
        self.assertEqual(*reports)
        self.assertEqual(sorted(os.listdir(self.folder / run / "evidence/cases")),
                         sorted(os.listdir(self.folder / "whole.run/evidence/cases")))

    def test_gives_the_bytes_of_a_single_run_after_a_part_was_killed(self):
        self.write_list("killed.csv", "killed")
        self.assertNotEqual(self.in_parallel("killed.csv", kill=True), 0)
        self.assertIn("is not finished", self.call("merge", "killed.csv", status=2))
        self.assertEqual(self.in_parallel("killed.csv"), 0)
        (self.folder / "killed.run/evidence/cases/of another list").mkdir(parents=True)
        self.assertIn(f"{CASES} cases: 160 done, 0 not done; nothing found", self.call("merge", "killed.csv"))
        self.assert_is_as_the_whole("killed", "killed.run")

    @unittest.skipUnless(os.geteuid() == 0, "the daemons of Slurm want to be root")
    def test_gives_the_bytes_of_a_single_run_as_a_slurm_array(self):
        self.write_list("array.csv", "array")
        (self.folder / "array.run/secret").mkdir(parents=True)
        shutil.copy(self.folder / "key", self.folder / "array.run/secret/project.key")
        self.assertIn(f"{CASES} cases: 160 done, 0 not done; nothing found", self.in_an_array("array.csv"))
        self.assert_is_as_the_whole("array", "array.run")

    def test_names_the_cases_that_are_in_no_part(self):
        self.write_list("some.csv", "some")
        self.call("run", "some.csv", "--key", "key", "--shard", "1/2")
        done = self.report("some.run/parts/1-of-2")
        missing = {str(number + 1) for number in range(CASES)} - {case["caseId"] for case in done["cases"]}
        self.assertTrue(missing)
        printed = self.call("merge", "some.csv", status=1)
        self.assertIn("1 part\n", printed)
        page = (self.folder / "some.run/evidence/report.html").read_text(encoding="utf-8")
        for case_id in missing:
            self.assertIn(f"the case {case_id} is in no part", printed)
            self.assertIn(f"{case_id} (in no part: nothing is known of it)", page)

    def test_refuses_parts_that_do_not_belong_together(self):
        self.write_list("mixed.csv", "mixed")
        self.assertIn("there is no part", self.call("merge", "mixed.csv", status=2))
        self.call("run", "mixed.csv", "--shard", "1/2")
        self.call("run", "mixed.csv", "--shard", "2/2", "--key", "key")
        self.assertIn("differ in keyFingerprint", self.call("merge", "mixed.csv", status=2))
        with open(self.folder / "mixed.csv", "a", encoding="utf-8") as rows:
            rows.write("\n")
        self.assertIn("the list has changed since", self.call("merge", "mixed.csv", status=2))

    def test_makes_one_key_for_all_parts(self):
        self.write_list("keyed.csv", "keyed")
        for part in ("1/2", "2/2"):
            self.call("run", "keyed.csv", "--shard", part)
        self.call("merge", "keyed.csv")
        self.assertEqual((self.folder / "keyed.run/secret/project.key").stat().st_mode & 0o777, 0o600)

    def test_takes_no_other_shards(self):
        for wrong in ("0/2", "3/2", "1", "1/0", "a/b", "-1/2"):
            self.assertIn("--shard takes I/N", self.call("run", "whole.csv", "--shard=" + wrong, status=2))


if __name__ == "__main__":
    os.environ.pop("DCMDICTPATH", None)
    unittest.main(argv=sys.argv[:1])
