"""The program in a surrounding of the bench's choice, read and dropped on while things go wrong."""
import fcntl
import os
import pathlib
import subprocess
import tempfile
import time

from outside.controls import Application, Role, settled
from outside.dropping import Dropper
from outside.program import Program
from outside.waiting import Failure, wait_until

# root's number without any of its rights: permissions count, and the session's buses answer
WITHOUT_RIGHTS = ("setpriv", "--bounding-set=-all", "--inh-caps=-all")
SWITCHES = ("Overwrite source files", "Construct look-up table", "Generate new instance UIDs",
            "Only generate new instance UIDs", "Configuration")
NOISE = ("This plugin does not support",)
# many lines, and other ones each time
PAINTING = ("QPainter::", "QWidget::paintEngine", "qt.qpa.xcb: failed to mmap")
NOT_PAINTED = "(Qt finds no memory to paint with)"


class Window(Program):
    """One start of the program; `starter` is what starts it, `changes` are what differs in its environment."""

    def __init__(self, executable, home, log, starter=(), changes=None):
        self.home = home
        self.log_file = pathlib.Path(log)
        self.command = [*starter, *WITHOUT_RIGHTS, str(executable)]
        environment = dict(os.environb) | {os.fsencode(k): os.fsencode(v) for k, v in home.environment().items()}
        for name, value in (changes or {}).items():
            environment.pop(name, None)
            if value is not None:
                environment[name] = value
        with open(self.log_file, "ab") as errors:
            self.process = subprocess.Popen(self.command, env=environment, cwd=home.folder.parent, stderr=errors)
        self.application = Application(self.process.pid)
        self.named = {}
        self.dropper = Dropper()
        self.number = 0

    def __exit__(self, *unused):
        super().__exit__(*unused)
        self.dropper.display.close()

    def wait_for_start(self, configuration):
        """Until the window shows that configuration; its controls are then known."""
        def ready():
            self.named = settled(lambda: controls_of(self.window)) or {}
            shown = self.named.get("Configuration")
            return shown and settled(lambda: shown.name == configuration) and "Drop area" in self.named
        wait_until(ready, f"the configuration '{configuration}'")
        self.number = wait_until(lambda: self.dropper.main_window(self.process.pid, "Dravolin"), "the window's number")

    @property
    def status(self):
        return settled(lambda: self.named["Status"].text)

    def running(self):
        return settled(lambda: not self.named[SWITCHES[0]].enabled)

    def switched_off(self):
        """The controls that take nothing."""
        return [name for name in SWITCHES if not self.named[name].enabled]

    def facts(self):
        """The line below the status."""
        return next((control.name for control in self.window.all()
                     if control.role in (Role.LABEL, Role.STATIC) and " in " in control.name
                     and ("changed" in control.name) and control.showing), "")

    def drop(self, *paths):
        lock = os.path.join(tempfile.gettempdir(), "one-drop-at-a-time")
        with open(lock, "w", encoding="ascii") as one:
            fcntl.flock(one, fcntl.LOCK_EX)
            if not self.dropper.drop(self.number, self.named["Drop area"].middle, paths):
                raise Failure(f"the drop of {paths} was refused")

    def wait_for_run(self, before):
        wait_until(lambda: self.running() or self.status != before or self.application.questions(),
                   "the start of the run")

    def is_usable(self, seconds=5):
        """Whether the window answers within that time."""
        begin = time.monotonic()
        return self.status is not None and time.monotonic() - begin < seconds

    def ask_to_close(self):
        """What the window manager does for the button in the corner."""
        subprocess.run(["wmctrl", "-i", "-c", hex(self.number)], check=False, timeout=30)

    def end_by_closing(self, seconds=20):
        self.ask_to_close()
        return self.wait_for_end(seconds)

    def messages(self):
        """The lines of the system log, each once."""
        lines = self.log_file.read_bytes().decode(errors="backslashreplace").splitlines()
        return list(dict.fromkeys(NOT_PAINTED if line.startswith(PAINTING) else line
                                  for line in lines if line.strip() and not line.startswith(NOISE)))


def controls_of(window):
    """The window's controls by their captions, else by their names, found in one walk."""
    named, captioned = {}, {}
    for control in window.all():
        captioned.update((caption, control) for caption in control.captions)
        named.setdefault(control.name, control)
    return named | captioned
