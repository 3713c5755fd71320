#!/usr/bin/python3
"""The built executable, driven from outside on the desktop that is there.

    main_job_test.py EXECUTABLE PICTURE_FOLDER

A failing test leaves a picture of the screen in the picture folder.
"""
import pathlib
import shutil
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "desktop"))
from failures import run_tests  # noqa: E402
from outside import table_job  # noqa: E402
from outside.configuration import asked_for, read_rules  # noqa: E402
from outside.controls import Role  # noqa: E402
from outside.main_job import CASE, DEFAULT, default_rules, describe_case, prepare, run_and_judge  # noqa: E402
from outside.program import DEFAULT_CONFIGURATION, FIELDS, OVERWRITE, FileBrowser, Home, Program  # noqa: E402
from outside.verdict import expected_report, problems, wrong_report  # noqa: E402
from outside.waiting import wait_until  # noqa: E402
from outside.waiting_tool import copy_with_waiting_tool  # noqa: E402

EXECUTABLE = pathlib.Path()
ROOT = "2.25.271828182845904523536028747135"
GENERATE = "Generate new instance UIDs"
GENERATE_ONLY = "Only generate new instance UIDs"
CONSTRUCT = "Construct look-up table"
BOXES = ("Overwrite source files", CONSTRUCT, GENERATE, GENERATE_ONLY)
PRIVATE = "0009,1001\n0011,1010\n"


def contents(folder):
    """Every path of the tree with its bytes; a folder has none."""
    return {path.relative_to(folder): path.read_bytes() if path.is_file() else None for path in folder.rglob("*")}


class MainJob(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.home = Home(self.folder / "home")

    def start(self, executable=None):
        return self.enterContext(Program(executable or EXECUTABLE, self.home))

    def close(self, program):
        program.close()
        self.assertEqual(program.wait_for_end(), 0, "the exit status")

    def save_configuration(self, name, text):
        self.home.configurations.mkdir(parents=True, exist_ok=True)
        (self.home.configurations / f"AnonymizationConfiguration_{name}.txt").write_text(text, encoding="utf-8")

    def test_anonymizes_a_dropped_folder_after_asking(self):
        study = prepare(self.folder)
        program = self.start()
        program.start_with_default_configuration()
        self.assertEqual(program.control("Configuration").name, "Bundled Default")
        describe_case(program)
        self.assertEqual(program.read("UID root validity"), "UID may be valid")

        program.tick("Overwrite source files")
        status = program.status
        program.drop(study.after)
        program.answer(OVERWRITE, "No, Cancel")
        self.assertEqual(contents(study.after), contents(study.before), "changed although the user said no")
        self.assertEqual((program.status, program.running()), (status, False))

        x, y, width, _ = program.window.box
        outcome = run_and_judge(program, study, default_rules(EXECUTABLE))
        self.assertEqual(outcome.wrong, [])
        self.assertEqual(program.window.box, (x, y, width, 696), "the window grows downwards")
        self.assertFalse(list(study.after.rglob("*.bak")), "backups although the source is overwritten")

        root = program.read("UID root")
        self.close(program)
        self.assertEqual(self.home.stored_root(), root)

        program = self.start()
        program.start_with_default_configuration()
        self.assertEqual(program.read("UID root"), root)
        self.assertEqual(program.read("UID root validity"), "UID may be valid")

    def test_keeps_backups_and_follows_the_chosen_configuration(self):
        study = prepare(self.folder)
        everything = (EXECUTABLE.parent / "resources" / DEFAULT).read_text(encoding="utf-8") + "\n" + PRIVATE
        self.save_configuration("Nothing more", "# only what the window asks for\n")
        self.save_configuration("Everything", everything)
        program = self.start()
        describe_case(program)
        program.fill("UID root", ROOT)
        program.choose("Configuration", "Nothing more")
        program.choose("Configuration", "Everything")

        program.drop(study.after / "disc", study.after / "archive")
        summary, log = program.wait_for_summary(), program.log_window_text()
        self.assertEqual(program.application.questions(), [])
        report = expected_report(study.tried / "disc", study.tried / "archive")
        self.assertEqual(list(wrong_report(summary, log, report, ["./DICOMDIR"])), [])

        for file in study.files:
            backup = study.after / file.with_name(file.name + ".bak")
            self.assertEqual(backup.read_bytes(), (study.before / file).read_bytes(), f"the backup {backup.name}")
        for backup in study.after.rglob("*.bak"):
            backup.unlink()
        rules = read_rules(self.home.configurations / "AnonymizationConfiguration_Everything.txt")
        wrong, kept = problems(study.before, study.after, study.files, asked_for(rules, CASE, ROOT), False)
        self.assertEqual((wrong, kept), ([], []))
        self.close(program)
        self.assertEqual(self.home.stored_root(), ROOT)

    def test_constructs_a_table_and_propagates_it_after_an_edit(self):
        study = prepare(self.folder)
        configuration = table_job.save_configuration(self.home, EXECUTABLE)
        program = self.start()
        describe_case(program)
        program.tick("Construct look-up table")
        self.assertEqual(program.control("Drop area").description, "construct look-up table")
        summary, table = table_job.construct(program, study)
        self.assertEqual(summary, table_job.CONSTRUCTED)
        self.assertEqual(contents(study.after).keys() - contents(study.before).keys(),
                         {pathlib.Path(".noxTemp.out")}, "construction changes nothing")
        self.assertEqual(table_job.rows(table), {"<missing>": "<supply missing value replacement, eg: Unknown>",
                                                 "STU-0808": "Subject_001", "STU-3391": "Subject_002"})
        table_job.skip_one(table)
        self.assertEqual(table_job.propagate(program, study, configuration, table).wrong, [])
        self.close(program)

    def test_rules_and_checks_follow_a_screen_reader(self):
        self.save_configuration("Test", "0020,0010\tStudy ID\t<LUT_Study>\n")
        program = self.start()
        wait_until(lambda: program.control("Configuration").name == "Test", "'Test' in 'Configuration'")
        boxes = {name: program.control(name, (Role.CHECK_BOX,)) for name in BOXES}

        def switch(name, *ticked):
            boxes[name].act("Toggle")
            wait_until(lambda: [box for box in BOXES if boxes[box].checked] == list(ticked), f"{ticked} after '{name}'")

        switch(GENERATE_ONLY, GENERATE, GENERATE_ONLY)
        switch(GENERATE)
        switch("Overwrite source files", "Overwrite source files")
        switch(CONSTRUCT, CONSTRUCT)
        self.assertEqual(program.control("Drop area").description, "construct look-up table")
        switch(GENERATE, GENERATE)
        self.assertEqual(program.control("Drop area").description, "anonymize")

        program.control("UID root", FIELDS).set_text(f" {ROOT}abc")
        wait_until(lambda: program.read("UID root") == ROOT, "the root without what does not belong to it")
        wait_until(lambda: program.read("UID root validity") == "UID may be valid", "the root's check")
        self.close(program)

    def test_a_single_picture_is_refused_and_starts_nothing(self):
        picture = self.folder / "cover.png"
        picture.write_bytes(b"no picture really")
        program = self.start()
        program.start_with_default_configuration()
        status = program.status
        self.assertEqual(program.drop_outcome(picture), "refused")
        self.assertEqual((program.status, program.running(), program.read("UID root")), (status, False, ""))
        self.assertEqual(picture.read_bytes(), b"no picture really")
        self.assertEqual(list(self.folder.glob(".noxTemp*")), [])

    def test_saves_the_default_configuration_and_finds_it_at_the_next_start(self):
        browser = self.enterContext(FileBrowser())
        program = self.start()
        program.answer(DEFAULT_CONFIGURATION, "Save copy to Configuration folder & Quit")
        self.assertEqual(program.wait_for_end(), 0)
        saved = self.home.configurations / "AnonymizationConfiguration_Default.txt"
        self.assertEqual(browser.shown(), [saved.as_uri()])
        self.assertEqual(saved.read_bytes(), (EXECUTABLE.parent / "resources" / DEFAULT).read_bytes())

        program = self.start()
        wait_until(lambda: program.control("Configuration").name == "Default", "'Default' in 'Configuration'")
        self.assertEqual(program.application.questions(), [])
        self.close(program)

    def test_a_window_closed_in_mid_run_leaves_the_tool_to_finish_its_file(self):
        study = prepare(self.folder)
        executable = copy_with_waiting_tool(EXECUTABLE, self.folder / "program")
        resources = executable.parent / "resources"
        program = self.start(executable)
        program.start_with_default_configuration()
        describe_case(program)
        program.fill("UID root", ROOT)
        program.tick("Overwrite source files")
        series = study.after / "disc/IMAGES/AXIAL"
        program.drop(series)
        program.answer(OVERWRITE, "Ok, Overwrite source data")
        wait_until((resources / "started").exists, "the start of the tool")
        self.assertTrue(program.running())

        self.close(program)
        self.assertEqual(self.home.stored_root(), ROOT)
        self.assertFalse((resources / "finished").exists())
        (resources / "go").touch()
        wait_until((resources / "finished").exists, "the end of the tool after its program has ended")
        files = [file for file in study.files if series in (study.after / file).parents]
        asked = asked_for(default_rules(EXECUTABLE), CASE, ROOT)
        wrong, _ = problems(study.before, study.after, files, asked, new_instances=False)
        self.assertEqual([line for line in wrong if line.startswith("disc/IMAGES/AXIAL")], [])


if __name__ == "__main__":
    EXECUTABLE = pathlib.Path(sys.argv[1]).resolve()
    run_tests(sys.argv[2])
