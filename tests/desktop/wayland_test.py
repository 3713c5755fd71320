#!/usr/bin/python3
"""The built executable under a Wayland compositor, with a drop from another program's window.

    wayland_test.py EXECUTABLE PICTURE_FOLDER

A failing test leaves a picture of the screen in the picture folder.
"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "desktop"))
from failures import run_tests  # noqa: E402
from outside import compositor  # noqa: E402
from outside.configuration import asked_for  # noqa: E402
from outside.main_job import default_rules  # noqa: E402
from outside.program import WINDOW, Home, Program  # noqa: E402
from outside.sample_home import EMPTY_CASE, ROOT, prepare_home  # noqa: E402
from outside.study import make_study  # noqa: E402
from outside.verdict import expected_report, problems, wrong_report  # noqa: E402
from outside.waiting import wait_until  # noqa: E402
from outside.wayland_mouse import Mouse  # noqa: E402

EXECUTABLE = pathlib.Path()
SCREEN = (1280, 1024)
SOURCE = pathlib.Path(__file__).resolve().parents[2] / "desktop/outside/drag_source.py"


class OnWayland(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        home = Home(self.folder / "home")
        prepare_home(home, EXECUTABLE)
        self.mouse = self.enterContext(Mouse(*SCREEN))
        self.program = self.enterContext(Program(EXECUTABLE, home))
        wait_until(lambda: self.program.control("Configuration").name == "Default", "the configuration")

    def drop(self, folder):
        """Drags the folder out of another window and looks at the drop area's frame meanwhile."""
        with subprocess.Popen([sys.executable, str(SOURCE), folder.as_uri()], stdout=subprocess.PIPE, text=True,
                              env=os.environ | {"NO_AT_BRIDGE": "1", "GDK_BACKEND": "wayland"}) as source:
            try:
                self.assertEqual(len(source.stdout.readline().split()), 2, "the window to drag from")
                x, y, width, height = compositor.put("Files", 0, 0)
                left, top = compositor.put(WINDOW, 200, 100)[:2]
                area = self.program.control("Drop area").box
                frame = (left + area[0] + 4, top + area[1] + area[3] // 2)
                plain = compositor.colour_of(frame)
                self.mouse.drag((x + width // 2, y + height // 2),
                                (left + area[0] + area[2] // 2, top + area[1] + area[3] // 2),
                                lambda: wait_until(lambda: compositor.colour_of(frame) != plain, "the highlight"))
                source.communicate(timeout=20)  # what it says of the drop means nothing here
                wait_until(lambda: compositor.colour_of(frame) == plain, "the end of the highlight")
            finally:
                source.kill()

    def test_a_dropped_folder_is_run_to_its_end(self):
        files = make_study(self.folder / "before")
        for copy in ("after", "tried"):
            shutil.copytree(self.folder / "before", self.folder / copy)
        self.drop(self.folder / "after")
        # this compositor takes the height back when another window, the log's, gets the keyboard
        wait_until(lambda: compositor.place_of(WINDOW)[3] == 696, "the height that a run gives the window")
        summary, log = self.program.wait_for_summary(), self.program.log_window_text()
        self.assertEqual(list(wrong_report(summary, log, expected_report(self.folder / "tried"), ["./disc/DICOMDIR"])),
                         [])
        asked = asked_for(default_rules(EXECUTABLE), EMPTY_CASE, ROOT)
        for backup in (self.folder / "after").rglob("*.bak"):
            backup.unlink()
        self.assertEqual(problems(self.folder / "before", self.folder / "after", files, asked, False)[0], [])
        compositor.tell(f'[title="^{WINDOW}$"] kill')
        self.assertEqual(self.program.wait_for_end(), 0)


if __name__ == "__main__":
    EXECUTABLE = pathlib.Path(sys.argv[1]).resolve()
    run_tests(sys.argv[2], compositor.take_picture)
