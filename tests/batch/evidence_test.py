#!/usr/bin/env python3
"""What a run of dravolin-cli says about its results: evidence_test.py DRAVOLIN_CLI MAKE_OBJECTS"""

import csv
import hashlib
import html
import json
import os
import pathlib
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

from sources import untouched

CLI, MAKE_OBJECTS = map(os.path.abspath, sys.argv[1:3]) if len(sys.argv) > 2 else ("", "")


class Evidence(unittest.TestCase):
    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = pathlib.Path(scratch.name)

    def make(self, name, seed=1, count=5):
        """Objects that name somebody; gives these values."""
        subprocess.run([sys.executable, MAKE_OBJECTS, "mixed", self.folder / name, "--count", str(count),
                        "--seed", str(seed), "--no-directory"], check=True, stdout=subprocess.DEVNULL)
        planted = self.folder / name / "planted.json"
        described = json.loads(planted.read_text(encoding="utf-8"))
        planted.unlink()
        return {value["value"] for one in described["files"] for value in one["planted"]}

    def write_list(self, *rows):
        with open(self.folder / "list.csv", "w", encoding="utf-8", newline="") as file:
            table = csv.DictWriter(file, rows[0].keys())
            table.writeheader()
            table.writerows(rows)

    def run_list(self, *rows, options=(), status=0):
        """Carries out a list of the columns that the rows name, and gives what was printed."""
        self.write_list(*rows)
        with untouched(self.folder):
            done = subprocess.run([CLI, "run", "list.csv", *options], cwd=self.folder, capture_output=True,
                                  text=True, check=False)
        if status is not None:
            self.assertEqual(done.returncode, status, done.stdout + done.stderr)
        return done.stdout

    def report(self):
        return json.loads((self.folder / "list.run/evidence/report.json").read_text(encoding="utf-8"))

    @staticmethod
    def row(source, case_id, **more):
        return {"source": source, "destination": "out" + case_id, "case_id": case_id, "diagnosis": "Case",
                **more}

    def write_rules(self, *lines):
        default = pathlib.Path(CLI).parent / "resources/DefaultAnonymizationConfiguration.txt"
        text = default.read_text(encoding="utf-8")
        kept = [line for line in text.splitlines() if not line[1:].startswith(lines)]
        (self.folder / "rules.txt").write_text("\n".join(kept) + "\n", encoding="utf-8")

    def test_says_what_was_done_by_which_rules(self):
        self.make("first")
        self.make("second", seed=2)
        self.run_list(self.row("first", "17"), self.row("second", "18"))
        report = self.report()
        self.assertEqual([(case["caseId"], case["done"], case["notDone"]) for case in report["cases"]],
                         [("17", 5, 0), ("18", 5, 0)])
        self.assertEqual(report["listSha256"],
                         hashlib.sha256((self.folder / "list.csv").read_bytes()).hexdigest())
        page = (self.folder / "list.run/evidence/report.html").read_text(encoding="utf-8")
        for text in (report["listSha256"], report["cases"][0]["configurationSha256"], report["program"],
                     "Signature", "The folder secret", "none of the originals' values was found"):
            self.assertIn(text, html.unescape(page))

    def test_can_be_passed_on_but_for_what_is_secret(self):
        planted = {value for value in self.make("in") if len(value) > 4}
        self.assertTrue(planted)
        self.write_rules("020,0010", "008,0020", "010,1000")
        self.run_list(self.row("in", "17", configuration="rules.txt"), status=1)
        run = self.folder / "list.run"
        files = [path for path in (run / "evidence").rglob("*") if path.is_file()]
        self.assertEqual({path.name for path in files}, {"report.html", "report.json", "files.csv"})
        for path in files:
            text = path.read_text(encoding="utf-8")
            self.assertEqual([value for value in planted if value in text], [], path)
        self.assertEqual((run / "secret").stat().st_mode & 0o777, 0o700)
        for path in (run / "secret").iterdir():
            self.assertEqual(path.stat().st_mode & 0o777, 0o600, path)

    def test_ends_with_one_when_a_value_is_found(self):
        self.make("in")
        self.write_rules("020,0010")
        row = self.row("in", "17", configuration="rules.txt")
        printed = self.run_list(row, status=1)
        self.assertIn("certain   Study ID (0020,0010)", printed)
        self.assertIn("0020,0010\tStudy ID", printed)
        again = self.run_list(row, status=1)
        self.assertEqual(again, "Nothing is left to be done.\n" + re.sub("The check took .*\n", "", printed))

    def test_checks_again_what_somebody_has_changed(self):
        self.make("in")
        row = self.row("in", "17")
        self.run_list(row)
        result = sorted((self.folder / "out17").rglob("*.dcm"))[0]
        original = sorted(path for path in (self.folder / "in").rglob("*") if path.is_file())[0]
        made = result.read_bytes()
        result.write_bytes(original.read_bytes())
        self.assertIn("certain", self.run_list(row, status=1))
        self.assertNotIn("none of the originals", self.page())
        result.unlink()  # it is made again
        self.run_list(row)
        self.assertEqual(result.read_bytes(), made)
        extra = result.with_name("extra")
        shutil.copyfile(original, extra)
        self.assertIn("certain", self.run_list(row, status=1))
        extra.unlink()
        self.run_list(row)

    def page(self):
        return html.unescape((self.folder / "list.run/evidence/report.html").read_text(encoding="utf-8"))

    def test_says_nothing_of_results_that_change_until_all_have(self):
        for number in range(40):
            self.make(f"many/{number}", seed=number, count=5)
        self.make("in", seed=41)
        rows = [self.row("in", "17"), self.row("many", "18")]
        self.run_list(*rows)
        evidence = self.folder / "list.run/evidence"
        self.assertTrue((evidence / "cases/17/report.html").exists())
        rows = [{**row, "diagnosis": "Another"} for row in rows]
        self.write_list(*rows)
        with subprocess.Popen([CLI, "run", "list.csv", "--workers", "1", "--quiet"], cwd=self.folder,
                              stdout=subprocess.DEVNULL) as call:
            while call.poll() is None and (evidence / "files.csv").exists():  # goes last
                time.sleep(0.001)
            call.send_signal(signal.SIGKILL)
        self.assertEqual(call.returncode, -signal.SIGKILL)
        left = {path.name for path in evidence.iterdir()}
        self.assertEqual(left & {"report.html", "report.json", "files.csv"}, set())
        self.run_list(*rows)
        self.assertIn("none of the originals' values was found", self.page())

    def test_writes_again_what_is_missing(self):
        self.make("in")
        row = self.row("in", "17")
        self.run_list(row)
        run = self.folder / "list.run"
        for name in ("evidence/report.json", "evidence/files.csv", "evidence/cases/17/report.json",
                     "secret/uid_map.csv", "secret/patient_map.csv", "secret/not_done.csv"):
            before = (run / name).read_bytes()
            (run / name).unlink()
            self.run_list(row)
            if name.endswith(".csv"):
                self.assertEqual((run / name).read_bytes(), before)
            self.assertTrue((run / name).exists(), name)

    def test_links_the_study_of_a_root_to_its_new_uid(self):
        self.make("in", count=1)
        source = next(path for path in (self.folder / "in").rglob("*") if path.is_file())
        subprocess.run(["dcmodify", "-nb", "-i", "(0020,000d)=1.2.50", source], check=True)
        root = "1.2.826.0.1.3680043.8.498.12345"
        for options in ((), ("--keep-uids",)):
            self.run_list(self.row("in", "777", uid_root=root), options=options, status=None)
            with open(self.folder / "list.run/secret/uid_map.csv", encoding="utf-8", newline="") as file:
                self.assertEqual({line["id_old"]: line["id_new"] for line in csv.DictReader(file)}["1.2.50"],
                                 root + ".777")
            shutil.rmtree(self.folder / "list.run")
            shutil.rmtree(self.folder / "out777")

    def test_makes_no_other_key_for_one_that_is_missing(self):
        self.make("in")
        row = self.row("in", "17")
        self.run_list(row)
        key = self.folder / "list.run/secret/project.key"
        key.rename(self.folder / "away")
        self.run_list(row, status=2)
        self.assertFalse(key.exists())
        (self.folder / "away").rename(key)
        self.assertIn("Nothing is left to be done.", self.run_list(row))

    def test_lets_a_grade_decide(self):
        self.make("in")
        self.write_rules("008,0020")
        row = self.row("in", "17", configuration="rules.txt")
        self.assertIn("possible  Study Date (0008,0020)", self.run_list(row, status=1))
        self.run_list(row, options=("--at-least", "likely"))
        self.assertEqual(self.report()["atLeast"], "likely")

    def test_does_not_find_what_the_run_has_set(self):
        self.make("in", count=1)
        source = next(path for path in (self.folder / "in").rglob("*") if path.is_file())
        subprocess.run(["dcmodify", "-nb", "-i", "(0010,0020)=17-KLM-93", "-i", "(0008,1030)=Knee", source],
                       check=True)
        self.run_list({**self.row("in", "17-KLM-93"), "diagnosis": "Knee"})

    def test_does_not_find_the_words_of_its_own_texts(self):
        for name, words in ("UIDs", "In^Private"), ("private attributes", "Configured^MODIFIED"):
            self.make("in/" + name, count=1)
            source = next(path for path in (self.folder / "in" / name).rglob("*") if path.is_file())
            subprocess.run(["dcmodify", "-nb", "-i", "(0010,0010)=" + words, source], check=True)
            source.rename(source.with_name(name))
        self.write_rules("012,0063")
        for more in {}, {"configuration": "rules.txt"}:
            for options in (), ("--shift-dates",):
                self.assertIn("nothing found", self.run_list(self.row("in", "17", **more), options=options))
                shutil.rmtree(self.folder / "out17")
                shutil.rmtree(self.folder / "list.run")

    def test_finds_a_name_inside_a_rule_of_a_configuration(self):
        self.make("in", count=1)
        source = next(path for path in (self.folder / "in").rglob("*") if path.is_file())
        subprocess.run(["dcmodify", "-nb", "-i", "(0010,0010)=Quastenbart^Ilse", source], check=True)
        self.write_rules("012,0063")
        with open(self.folder / "rules.txt", "a", encoding="utf-8") as rules:
            rules.write("0012,0063\tMethod\tthat of Quastenbart\n")
        self.assertIn("De-identification Method (0012,0063)",
                      self.run_list(self.row("in", "17", configuration="rules.txt"), status=1))

    def test_finds_a_name_inside_the_diagnosis(self):
        self.make("in", count=1)
        source = next(path for path in (self.folder / "in").rglob("*") if path.is_file())
        subprocess.run(["dcmodify", "-nb", "-i", "(0010,0010)=Quastenbart^Ilse", source], check=True)
        row = {**self.row("in", "17"), "diagnosis": "Knee of Quastenbart"}
        self.assertIn("Patient's Name (0010,0010)", self.run_list(row, status=1))

    def test_searches_the_identifiers_of_the_list(self):
        self.make("in", count=1)
        source = next(path for path in (self.folder / "in").rglob("*") if path.is_file())
        subprocess.run(["dcmodify", "-nb", "-i", "(0018,0015)=TRIAL-77123", source], check=True)
        (self.folder / "known.txt").write_text("TRIAL-77123\n", encoding="utf-8")
        row = self.row("in", "17", identifiers="known.txt")
        self.assertIn("certain   Body Part Examined (0018,0015): 1 file, from list of identifiers",
                      self.run_list(row, status=1))
        (self.folder / "known.txt").write_text("TRIAL-99999\n", encoding="utf-8")
        self.assertIn("nothing found", self.run_list(row))

    def test_checks_a_source_that_is_one_file(self):
        self.make("in", count=3)
        source = next(path for path in sorted((self.folder / "in").rglob("*")) if path.is_file())
        self.run_list(self.row(str(source), "17"))
        self.assertEqual(self.report()["cases"][0]["check"]["notChecked"], 0)

    def test_can_be_interrupted_while_it_checks(self):
        self.make("in", count=200)
        self.run_list(self.row("in", "17"), options=("--folder", "other.run"))
        (self.folder / "out17").rename(self.folder / "whole")
        report = self.folder / "list.run/evidence/cases/17/report.json"
        with untouched(self.folder), subprocess.Popen(
                [CLI, "run", "list.csv", "--key", "other.run/secret/project.key"], cwd=self.folder,
                stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True) as running:
            while not report.exists() and running.poll() is None:
                time.sleep(0.001)
            running.send_signal(signal.SIGINT)
            _, errors = running.communicate(timeout=60)
        self.assertEqual((running.returncode, "the same call goes on from here" in errors), (130, True))
        self.assertFalse((self.folder / "list.run/evidence/report.html").exists())
        printed = self.run_list(self.row("in", "17"), options=("--key", "other.run/secret/project.key"))
        self.assertIn("case 17: 200 done, 0 not done; nothing found", printed)

    def test_holds_the_cases_of_the_list_only(self):
        self.make("first")
        self.make("second", seed=2)
        self.run_list(self.row("first", "17"), self.row("second", "18"))
        self.run_list(self.row("second", "18"))
        self.assertEqual([path.name for path in (self.folder / "list.run/evidence/cases").iterdir()], ["18"])
        self.assertEqual([case["caseId"] for case in self.report()["cases"]], ["18"])

    def test_leaves_what_is_not_its_own_in_the_evidence(self):
        self.make("first")
        self.make("second", seed=2)
        self.run_list(self.row("first", "17"), self.row("second", "18"))
        cases = self.folder / "list.run/evidence/cases"
        (cases / "letter.txt").write_text("signed", encoding="utf-8")
        (cases / "17/remarks.txt").write_text("seen", encoding="utf-8")
        self.run_list(self.row("second", "18"))
        self.assertEqual(sorted(path.relative_to(cases).as_posix() for path in cases.rglob("*") if path.is_file()),
                         ["17/remarks.txt", "18/report.html", "18/report.json", "letter.txt"])

    def test_takes_back_the_result_of_a_file_that_is_gone(self):
        self.make("in", count=3)
        self.run_list(self.row("in", "17"))
        next(path for path in sorted((self.folder / "in").rglob("*")) if path.is_file()).unlink()
        self.run_list(self.row("in", "17"))
        left = [path for path in (self.folder / "out17").rglob("*") if path.is_file()]
        self.assertEqual(len(left), 2)
        table = (self.folder / "list.run/evidence/files.csv").read_text(encoding="utf-8")
        self.assertEqual(len(table.splitlines()), 3)


if __name__ == "__main__":
    os.environ.pop("DCMDICTPATH", None)
    unittest.main(argv=sys.argv[:1])
