#!/usr/bin/python3
"""Files and folders dragged out of a file manager onto the window of the built executable.

    file_manager_test.py EXECUTABLE PICTURE_FOLDER

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
from outside.configuration import asked_for  # noqa: E402
from outside.file_manager import FileManager  # noqa: E402
from outside.main_job import default_rules  # noqa: E402
from outside.program import WINDOW, Home, Program, steady_middle  # noqa: E402
from outside.sample_home import EMPTY_CASE, ROOT, prepare_home  # noqa: E402
from outside.study import make_study  # noqa: E402
from outside.verdict import problems  # noqa: E402
from outside.waiting import wait_until  # noqa: E402

EXECUTABLE = pathlib.Path()
SERIES = "disc/IMAGES/AXIAL"


def colour_of(point):
    """The colour of one point of the screen."""
    return subprocess.run(["import", "-window", "root", "-crop", "1x1+{}+{}".format(*point), "-depth", "8", "txt:-"],
                          check=True, timeout=60, stdout=subprocess.PIPE, text=True).stdout.splitlines()[1].split()[2]


class DragsFromAFileManager(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder, ignore_errors=True)
        home = Home(self.folder / "home")
        prepare_home(home, EXECUTABLE)
        self.files = make_study(self.folder / "before")
        self.work = self.folder / "dragged"
        self.program = self.enterContext(Program(EXECUTABLE, home))
        wait_until(lambda: self.program.control("Configuration").name == "Default", "the configuration")

    def drag(self, *names):
        """Drags what has these names out of the working folder onto the drop area and looks at its frame meanwhile."""
        with FileManager(self.work) as manager:
            self.program.bring_to_front(WINDOW)
            area = self.program.control("Drop area")
            target = steady_middle(area)
            x, y, _, height = area.box
            frame = (x + 4, y + height // 2)
            plain = colour_of(frame)
            manager.drag(names, target, lambda: wait_until(lambda: colour_of(frame) != plain, "the highlight"))
            wait_until(lambda: colour_of(frame) == plain, "the end of the highlight")

    def assert_anonymized(self, files):
        """These files of the working folder, and no others, are changed as the configuration asks for."""
        for file in files:
            backup = self.work / file.with_name(file.name + ".bak")
            self.assertEqual(backup.read_bytes(), (self.before / file).read_bytes(), f"the backup {backup.name}")
            backup.unlink()
        self.assertEqual(list(self.work.rglob("*.bak")), [])
        asked = asked_for(default_rules(EXECUTABLE), EMPTY_CASE, ROOT)
        self.assertEqual(problems(self.before, self.work, files, asked, new_instances=False)[0], [])

    def work_on(self, part):
        """Makes the working folder, a copy of a part of the study. The files in it."""
        self.before = self.folder / "before" / part
        shutil.copytree(self.before, self.work)
        return [file.relative_to(part) for file in self.files if pathlib.Path(part) in file.parents]

    def test_a_folder_is_run_to_its_end(self):
        files = self.work_on("disc/IMAGES")
        self.drag("AXIAL", "SCOUT")
        self.assertEqual(self.program.wait_for_summary(), "\nDone!")
        self.assert_anonymized(files)

    def test_several_files_are_run_to_their_end(self):
        files = self.work_on(SERIES)
        self.assertGreater(len(files), 1)
        (self.work / "left alone").write_bytes((self.work / files[0]).read_bytes())
        self.drag(*(file.name for file in files))
        self.assertEqual(self.program.wait_for_summary(), "\nDone!")
        self.assertEqual((self.work / "left alone").read_bytes(), (self.before / files[0]).read_bytes())
        (self.work / "left alone").unlink()
        self.assert_anonymized(files)

    def test_a_single_picture_starts_nothing(self):
        self.work.mkdir()
        (self.work / "cover.png").write_bytes(b"no picture really")
        status = self.program.status
        self.drag("cover.png")
        self.assertEqual((self.program.status, self.program.running()), (status, False))
        self.assertEqual({path.name: path.read_bytes() for path in self.work.iterdir()},
                         {"cover.png": b"no picture really"})

    def test_a_picture_goes_with_the_folder_beside_it(self):
        files = self.work_on("disc/IMAGES")
        shutil.rmtree(self.work / "SCOUT")
        (self.work / "cover.png").write_bytes(b"no picture really")
        self.drag("cover.png", "AXIAL")
        self.assertEqual(self.program.wait_for_summary(), "\nDone. 1 file with errors.")
        self.assertEqual((self.work / "cover.png").read_bytes(), b"no picture really")
        (self.work / "cover.png").unlink()
        self.assert_anonymized([file for file in files if file.parts[0] == "AXIAL"])


if __name__ == "__main__":
    EXECUTABLE = pathlib.Path(sys.argv[1]).resolve()
    run_tests(sys.argv[2])
