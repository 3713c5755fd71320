"""One fault: what it is set up in, what the user sees of it, and what is left behind."""
import contextlib
import os
import pathlib
import shutil
import signal
import subprocess
from dataclasses import dataclass, field

from outside import reader
from outside.program import Home
from outside.sample_home import ROOT
from outside.waiting import arrives, wait_until
from study import CONFIGURATION, Study, told
from window import Window

TITLE = "Test"
TABLE = "Site"
TABLE_FILE = f"AnonymizationLUT_{TABLE}.txt"
TABLE_RULE = f"0010,1000\tOther IDs\t<LUT_{TABLE}>\n"
STOP_SECONDS = 60


@dataclass
class Seen:
    """What one fault has come to, as texts for a person."""
    user: list = field(default_factory=list)
    log: list = field(default_factory=list)
    files: str = ""
    following: str = ""
    wrong: list = field(default_factory=list)  # what must never be


class Scene:
    """A home, a study to drop, a program, and what goes wrong around them. Leaving it ends what it has started."""

    def __init__(self, folder, executable, pool, folders=2, files=3):
        self.folder = pathlib.Path(folder)
        self.executable = pathlib.Path(executable)
        self.originals, self.changed = pathlib.Path(pool) / "originals", pathlib.Path(pool) / "changed"
        self.home = Home(self.folder / "home")
        self.study = Study(self.folder / "study", self.originals, folders, files)
        self.point = 1
        self.overwrites = False  # whether no backups are made
        self.table = False  # whether the window is told to use the table
        self.constructing = False  # whether it is told to construct one
        self.windows, self.mounts, self.helpers = [], [], []
        self.prepare_home()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        for helper in self.helpers:
            helper.kill()
            helper.wait()
        for window in self.windows:
            window.__exit__()
        for mount in reversed(self.mounts):
            subprocess.run(["umount", "-l", str(mount)], check=False)
        shutil.rmtree(self.folder, ignore_errors=True)

    def prepare_home(self):
        self.home.configurations.mkdir(parents=True, exist_ok=True)
        self.configure(CONFIGURATION)
        self.home.settings.parent.mkdir(parents=True, exist_ok=True)
        self.home.settings.write_text(f"[General]\nuidRoot={ROOT}\n", encoding="ascii")

    def use_table(self):
        """Has each run use a look-up table, too."""
        self.table = True
        self.changed = self.originals.with_name("changed by table")
        self.configure(CONFIGURATION + TABLE_RULE)
        (self.home.desktop / TABLE_FILE).write_text("<missing>\tX\nSITE-A\tS1\n", encoding="ascii")

    def construct_table(self):
        """Has each run construct a look-up table."""
        self.constructing = True
        self.configure(TABLE_RULE)

    def configure(self, text):
        file = self.home.configurations / f"AnonymizationConfiguration_{TITLE}.txt"
        file.write_text(text, encoding="utf-8")

    # What goes wrong.

    def disk(self, place, kilobytes):
        """A disk of that size at the folder, with what is in it."""
        held = self.folder / "held"
        place.mkdir(exist_ok=True)
        shutil.copytree(place, held, symlinks=True)
        self.mount("-t", "tmpfs", "-o", f"size={kilobytes}k", "bench", place=place)
        shutil.copytree(held, place, symlinks=True, dirs_exist_ok=True)
        shutil.rmtree(held)

    def mount(self, *options, place):
        subprocess.run(["mount", *options, str(place)], check=True)
        self.mounts.append(place)

    def remount(self, place, options):
        subprocess.run(["mount", "-o", "remount," + options, str(place)], check=True)

    def own_program(self):
        """From now on the program is a copy; its resource folder."""
        copy = self.folder / "program"
        shutil.copytree(self.executable.parent / "resources", copy / "resources", symlinks=True)
        shutil.copy2(self.executable, copy)
        self.executable = copy / self.executable.name
        return copy / "resources"

    def replace_tool(self, text, name="dcmodify"):
        """Puts a program of the bench in the place of the tool, which is called real-NAME from now on."""
        resources = self.own_program()
        tool = resources / name
        tool.rename(resources / ("real-" + name))
        tool.write_text(text, encoding="ascii")
        tool.chmod(0o755)
        return resources

    def tool_back(self, name="dcmodify"):
        tool = self.executable.parent / "resources" / name
        tool.with_name("real-" + name).replace(tool)

    def help_with(self, *command):
        helper = subprocess.Popen(list(map(str, command)), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.helpers.append(helper)
        return helper

    # What is done.

    @property
    def window(self):
        return self.windows[-1]

    def start(self, starter=(), changes=None):
        log = self.folder / f"log{len(self.windows)}"
        window = Window(self.executable, self.home, log, starter, changes)
        self.windows.append(window)
        window.wait_for_start(TITLE)
        if self.overwrites:
            reader.switch(window, "Overwrite source files")
        if self.table:
            reader.choose(window, "Look-up table", TABLE)
        if self.constructing:
            reader.switch(window, "Construct look-up table")
        if not window.named["UID root"].text:
            reader.fill(window, "UID root", ROOT)
        return window

    def drop(self, *paths):
        before = self.window.status
        self.window.drop(*paths)
        if self.overwrites:
            reader.answer(self.window, reader.OVERWRITE_NAME, "Ok, Overwrite source data")
        self.window.wait_for_run(before)

    def wait_for_end(self, seconds=STOP_SECONDS):
        """False when the run is still under way after that time."""
        return bool(arrives(lambda: self.window.running() is False, seconds))

    def tool_has_come(self):
        """Waits until the tool has come to its point. The folder where it is then."""
        reached = self.executable.parent / "resources/reached"
        wait_until(reached.exists, "the tool at its point")
        return pathlib.Path(reached.read_text(encoding="utf-8").strip())

    def let_tool_go(self):
        (self.executable.parent / "resources/go").touch()

    def end_tools(self):
        """Ends what the program's tools have left running."""
        for number in self.tools_at_work():
            with contextlib.suppress(ProcessLookupError):
                os.kill(number, signal.SIGKILL)

    # What is seen.

    def look_at_window(self, seen):
        window = self.window
        texts = [window.status.strip()]
        if not window.running():
            texts.append(window.facts())
        questions = window.application.questions()
        seen.user = [self.plain(text) for text in (*texts, *questions) if text]

    def tools_have_ended(self):
        wait_until(lambda: not self.tools_at_work(), "the end of the tools")

    def tools_at_work(self):
        """The numbers of the processes that work in the study's folder."""
        at_work = []
        for number in filter(str.isdigit, os.listdir("/proc")):
            try:
                if pathlib.Path(os.readlink(f"/proc/{number}/cwd")).is_relative_to(self.study.folder):
                    at_work.append(int(number))
            except OSError:
                continue
        return at_work

    def look_at_files(self, seen):
        states = self.study.states(self.changed)
        seen.files = told(states)
        left = self.study.leftovers()
        if left:
            seen.files += "; left: " + ", ".join(left)
        return states

    def settings_now(self, new_root):
        """What the settings file has come to; the window was closed with that root in its field."""
        if not self.home.settings.is_file():
            return "none"
        stored = self.home.stored_root() if is_text(self.home.settings) else "damaged"
        return {ROOT: "the old root", new_root: "the new root"}.get(stored, stored)

    def look_at_log(self, seen):
        seen.log = sorted(self.plain(line) for line in self.window.messages())

    def plain(self, text):
        return text.replace(str(self.folder), "...")


def is_text(file):
    try:
        file.read_text(encoding="utf-8")
    except ValueError:
        return False
    return True
