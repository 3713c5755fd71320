#!/usr/bin/env python3
"""The program and the module that only its check loads: module_test.py DRAVOLIN_CLI MODULE MAKE_OBJECTS"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

CLI, MODULE, MAKE_OBJECTS = map(os.path.realpath, sys.argv[1:4]) if len(sys.argv) > 3 else ("", "", "")
PLACE = os.path.relpath(MODULE, os.path.dirname(CLI))  # of the module, from the folder of the program


class Module(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.made = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.made.cleanup)
        subprocess.run([sys.executable, MAKE_OBJECTS, "mixed", f"{cls.made.name}/in", "--count", "3",
                        "--no-directory"], check=True, stdout=subprocess.DEVNULL)
        pathlib.Path(cls.made.name, "in/planted.json").unlink()

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name).resolve()
        shutil.copytree(f"{self.made.name}/in", self.folder / "in")
        self.program = self.folder / "of/the/program/dravolin-cli"
        self.program.parent.mkdir(parents=True)
        shutil.copy(CLI, self.program)
        self.module = pathlib.Path(os.path.normpath(self.program.parent / PLACE))
        self.module.parent.mkdir(parents=True, exist_ok=True)
        (self.folder / "rules.txt").write_text("0008,0080\tInstitution\n", encoding="utf-8")
        (self.folder / "list.csv").write_text("source,destination,case_id,configuration\nin,out,17,rules.txt\n",
                                              encoding="utf-8")

    def call(self, *arguments, program=None):
        """Exit status, output and errors."""
        done = subprocess.run([program or self.program, *arguments], cwd=self.folder, capture_output=True, text=True,
                              check=False)
        return done.returncode, done.stdout, done.stderr

    def failure(self, command, reason):
        return f"dravolin-cli {command}: GDCM, which reads the files, cannot be loaded: '{self.module}' {reason}\n"

    def test_a_check_without_it_says_so_and_writes_nothing(self):
        self.assertEqual(self.call("check", "in", "in", "--report", "report"),
                         (3, "", self.failure("check", "cannot be read")))
        self.assertFalse((self.folder / "report").exists())

    def test_a_check_with_a_damaged_one_says_so_and_writes_nothing(self):
        shutil.copy(MODULE, self.module)
        os.truncate(self.module, self.module.stat().st_size // 2)
        self.assertEqual(self.call("check", "in", "in", "--report", "report", "--quiet"),
                         (3, "", self.failure("check", "is damaged")))
        self.assertFalse((self.folder / "report").exists())

    def test_a_run_without_it_is_not_clean_and_goes_on_with_it(self):
        status, printed, errors = self.call("run", "list.csv")
        self.assertEqual((status, printed, errors),
                         (1, "case 17: 3 done, 0 not done\n", self.failure("run", "cannot be read")))
        evidence = self.folder / "list.run/evidence"
        self.assertEqual([path for path in evidence.rglob("*") if not path.is_dir()], [])
        shutil.copy(MODULE, self.module)
        status, printed, errors = self.call("run", "list.csv")
        self.assertIn(status, (0, 1), errors)
        self.assertEqual(errors, "")
        self.assertTrue((evidence / "report.html").is_file())

    def test_what_checks_nothing_needs_none(self):
        self.assertEqual(self.call("--help")[0], 0)
        status, printed, errors = self.call("plan", "list.csv")
        self.assertEqual((status, errors), (0, ""))
        self.assertIn("1 case: 3 files", printed)
        for part in ("1/2", "2/2"):
            self.assertIn(self.call("run", "list.csv", "--shard", part, program=CLI)[0], (0, 1))
        status, printed, errors = self.call("merge", "list.csv")
        self.assertIn(status, (0, 1), errors)
        self.assertEqual(errors, "")
        self.assertIn("1 case: 3 done, 0 not done;", printed)

    def test_it_is_found_from_where_the_program_really_lies(self):
        shutil.copy(MODULE, self.module)
        link = self.folder / "link/to/the/program/dravolin-cli"
        link.parent.mkdir(parents=True)
        link.symlink_to(self.program)
        decoy = pathlib.Path(os.path.normpath(link.parent / PLACE))
        decoy.parent.mkdir(parents=True, exist_ok=True)
        decoy.write_bytes(b"damaged")
        status, _, errors = self.call("check", "in", "in", program=link)
        self.assertEqual((status, errors), (1, ""))


if __name__ == "__main__":
    os.environ.pop("DCMDICTPATH", None)
    unittest.main(argv=sys.argv[:1])
