#!/usr/bin/python3
"""The built executable without a mouse: as a screen reader uses it, and by keys alone.

    without_mouse_test.py EXECUTABLE PICTURE_FOLDER

A failing test leaves a picture of the screen in the picture folder.
"""
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "desktop"))
from failures import run_tests  # noqa: E402
from outside import mouse, reader, table_job  # noqa: E402
from outside.configuration import asked_for  # noqa: E402
from outside.controls import Role, State, settled  # noqa: E402
from outside.main_job import CASE, default_rules, prepare  # noqa: E402
from outside.program import (DEFAULT_CONFIGURATION, LOG_WINDOW, OVERWRITE, Home, Lines,  # noqa: E402
                             Program)
from outside.verdict import expected_report, problems, wrong_report  # noqa: E402
from outside.waiting import arrives, wait_until  # noqa: E402
from outside.waiting_tool import copy_with_waiting_tool  # noqa: E402

EXECUTABLE = pathlib.Path()
ROOT = "2.25.271828182845904523536028747135"
FACTS = "7 files changed, 1 unchanged, in 9 folders"


class WithoutAMouse(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        self.home = Home(self.folder / "home")

    def start(self, executable=None):
        return self.enterContext(Program(executable or EXECUTABLE, self.home))

    def test_the_whole_job_by_names_alone(self):
        study = prepare(self.folder)
        configuration = table_job.save_configuration(self.home, EXECUTABLE)
        (self.home.configurations / "AnonymizationConfiguration_Other.txt").write_text("# nothing\n")
        table = self.home.desktop / f"AnonymizationLUT_{table_job.TABLE}.txt"
        table.write_text("<missing>\t\tUnknown\nSTU-0808\t\tSubject_001\nSTU-3391\t\t<skip>\n")
        program = self.start()
        for name, text in CASE.items():
            reader.fill(program, name, text)
        program.control("Generate root", (Role.PUSH_BUTTON,)).act("Press")
        wait_until(lambda: program.read("UID root validity") == "UID may be valid", "a root")
        reader.choose(program, "Configuration", "Other")
        reader.choose(program, "Configuration", table_job.CONFIGURATION)
        reader.choose(program, "Look-up table", table_job.TABLE)
        reader.switch(program, "Overwrite source files")

        said = reader.run(program, study.after)
        summary = program.wait_for_summary()
        self.assertEqual(said, summary.strip() + "\n" + FACTS)
        self.assertEqual(table_job.judge(program, study, configuration, table, summary).wrong, [])

    def test_sheets_are_named_by_their_message(self):
        program = self.start()
        reader.answer(program, DEFAULT_CONFIGURATION, "Continue")

    def test_roles_and_descriptions(self):
        program = self.start()
        reader.answer(program, DEFAULT_CONFIGURATION, "Continue")
        self.assertEqual(program.window.role, Role.FRAME)
        self.assertEqual(program.control("Drop area").role, Role.PUSH_BUTTON)
        self.assertIn("DefaultAnonymizationConfiguration.txt", program.control("Configuration").description)
        tables = program.control("Look-up table").description
        self.assertIn("AnonymizationLUT_NAME.txt", tables)
        self.assertIn(str(self.home.desktop), tables)
        self.assertIn(str(self.home.configurations), tables)

    def test_the_whole_job_by_keys_alone(self):
        study = prepare(self.folder)
        program = self.start()
        wait_until(lambda: program.application.question(DEFAULT_CONFIGURATION), "the question at the start")
        self.press_until("Escape", lambda: not program.application.question(DEFAULT_CONFIGURATION), "'Continue'")
        wait_until(lambda: program.window.has(State.ACTIVE), "the window in front")
        for key, name in {"d": "Case ID", "g": "Diagnosis", "k": "Keywords", "r": "Credits", "u": "UID root"}.items():
            self.press_until("alt+" + key, lambda: program.control(name).focused, f"the focus in '{name}'")
            text = CASE.get(name, ROOT)
            mouse.type_text(text)
            wait_until(lambda: program.read(name) == text, f"'{text}' in '{name}'")
        for key, name in {"o": "Overwrite source files", "i": "Generate new instance UIDs"}.items():
            self.press_until("alt+" + key, lambda: program.control(name, (Role.CHECK_BOX,)).checked, f"'{name}' ticked")

        def chooser():
            return program.application.window("Choose a folder")
        self.press_until("ctrl+o", lambda: self.in_dialog(program, "Choose a folder"), "the folder chooser")
        mouse.type_text(str(study.after))
        mouse.press_key("Return")
        wait_until(lambda: program.application.question(OVERWRITE), "the question before overwriting")
        button = program.application.question(OVERWRITE).get("Ok, Overwrite source data", (Role.PUSH_BUTTON,))
        self.press_until("Tab", lambda: button.focused, "the focus on the button")
        mouse.press_key("Return")
        summary, log = program.wait_for_summary(), program.log_window_text()
        self.assertEqual(list(wrong_report(summary, log, expected_report(study.tried), ["./disc/DICOMDIR"])), [])
        wait_until(lambda: program.application.window(LOG_WINDOW).has(State.ACTIVE), "the log in front")
        self.press_until("ctrl+w", lambda: not program.application.window(LOG_WINDOW), "the log closed")
        asked = asked_for(default_rules(EXECUTABLE), CASE, ROOT)
        wrong, _ = problems(study.before, study.after, study.files, asked, new_instances=True)
        self.assertEqual(wrong, [])
        self.press_until("ctrl+q", lambda: program.process.poll() is not None, "the end")
        self.assertEqual(program.process.returncode, 0)

    def in_dialog(self, program, title):
        """Whether the keyboard is in a text field of that window."""
        for window in program.application.windows():
            if window.name == title:
                return any(control.focused and control.role in (Role.TEXT, Role.ENTRY) for control in window.all())
        return False

    def press_until(self, key, done, what):
        """Presses a key until something has come of it: on a busy desktop one press may come to nothing."""
        def pressed():
            mouse.press_key(key)
            return arrives(lambda: settled(done), 3)
        wait_until(lambda: settled(done) or pressed(), what)

    def test_a_user_who_looks_elsewhere_is_notified_of_the_end(self):
        study = prepare(self.folder)
        said = self.start_notifications()
        self.home.configurations.mkdir(parents=True)
        (self.home.configurations / "AnonymizationConfiguration_A.txt").write_text("0010,0030\n")
        executable = copy_with_waiting_tool(EXECUTABLE, self.folder / "program")
        program = self.start(executable)
        wait_until(lambda: program.control("Configuration").name == "A", "the configuration")
        reader.fill(program, "UID root", ROOT)
        reader.choose_folder(program, study.after / "disc/IMAGES/AXIAL")
        wait_until((executable.parent / "resources/started").exists, "the start of the tool")
        self.assertIn("Working. Another drop would run beside this one", program.control("Drop area").description)
        self.assertTrue(program.control("Drop area").has(State.BUSY))
        self.look_elsewhere(program)
        (executable.parent / "resources/go").touch()
        line = said.wait_for(lambda text: text != "ready", "the notification", 60)
        self.assertEqual(line, "Dravolin|dravolin|Done!|2 files changed, in 1 folder|example.dravolin.Dravolin")

    def start_notifications(self):
        """A notification service; what it prints."""
        service = pathlib.Path(reader.__file__).with_name("notifications.py")
        notifications = subprocess.Popen([sys.executable, str(service)], stdout=subprocess.PIPE)
        self.addCleanup(notifications.communicate)
        self.addCleanup(notifications.kill)
        said = Lines(notifications.stdout)
        said.wait_for("ready".__eq__, "the notification service")
        return said

    def look_elsewhere(self, program):
        """Has another program's window take the keyboard."""
        window = "import gi; gi.require_version('Gtk', '3.0'); from gi.repository import Gtk; "\
                 "window = Gtk.Window(title='Elsewhere'); window.show_all(); Gtk.main()"
        elsewhere = subprocess.Popen([sys.executable, "-c", window])
        self.addCleanup(elsewhere.wait)
        self.addCleanup(elsewhere.kill)
        wait_until(lambda: settled(lambda: not program.window.has(State.ACTIVE)), "the keyboard elsewhere")


if __name__ == "__main__":
    EXECUTABLE = pathlib.Path(sys.argv[1]).resolve()
    run_tests(sys.argv[2])
