"""The running program as its user has it: its windows, its fields, its questions."""
import os
import pathlib
import subprocess
import sys
import time

from . import mouse
from .controls import Application, Role, State, settled
from .waiting import Failure, arrives, wait_until

WINDOW = "Dravolin"
LOG_WINDOW = "Dravolin Log"
FIELDS = (Role.TEXT, Role.ENTRY)
DEFAULT_CONFIGURATION = "Reverting to default anonymization config from"
OVERWRITE = "Your source data will be overwritten. Continue?"


class Home:
    """A person's folders."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.configurations = self.folder / ".local/share/Dravolin"
        self.settings = self.folder / ".config/Dravolin/Dravolin.conf"
        self.desktop = self.folder / "Desktop"
        self.desktop.mkdir(parents=True, exist_ok=True)

    def environment(self):
        return {
            "HOME": str(self.folder), "XDG_CONFIG_HOME": str(self.folder / ".config"),
            "XDG_DATA_HOME": str(self.folder / ".local/share"), "XDG_CACHE_HOME": str(self.folder / ".cache"),
        }

    def stored_root(self):
        """The UID root of the settings file, None when there is none."""
        if self.settings.exists():
            for line in self.settings.read_text(encoding="utf-8").splitlines():
                if line.startswith("uidRoot="):
                    return line.removeprefix("uidRoot=").strip('"')
        return None


class Program:
    """One start of the executable. Leaving the context ends it if it still runs."""

    def __init__(self, executable, home):
        self.home = home
        # with an option that would end every Qt program that reads its options
        command = [str(executable), "-platform", "no-such-platform"]
        self.process = subprocess.Popen(command, env=os.environ | home.environment(), cwd=home.folder)
        self.application = Application(self.process.pid)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.kill()
            self.process.wait()

    def must_run(self):
        if self.process.poll() is not None:
            raise Failure(f"the program has ended by itself, with the status {self.process.returncode}")
        return True

    @property
    def window(self):
        return wait_until(lambda: self.must_run() and self.application.window(WINDOW), "the main window")

    def control(self, name, roles=None):
        return self.window.get(name, roles)

    def read(self, name):
        return wait_until(lambda: settled(lambda: (self.control(name).text,)), f"the text of '{name}'")[0]

    @property
    def status(self):
        return self.read("Status")

    def fill(self, name, text):
        field = self.control(name, FIELDS)

        def typed():
            click_until(lambda: field, lambda: field.focused, f"the focus in '{name}'")
            mouse.press_key("ctrl+a")
            mouse.press_key("Delete")
            mouse.type_text(text)
            return arrives(lambda: field.text == text, 3)
        wait_until(typed, f"'{text}' in '{name}'")

    def tick(self, name, on=True):
        box = self.control(name, (Role.CHECK_BOX,))
        if box.checked != on:
            click_until(lambda: box, lambda: box.checked == on, f"'{name}' {'ticked' if on else 'cleared'}", tick_place)

    def press(self, name, done):
        """Presses the button until done() is true."""
        click_until(lambda: self.control(name, (Role.PUSH_BUTTON,)), done, f"what '{name}' does")

    def choose(self, name, item):
        choice = self.control(name, (Role.COMBO_BOX,))
        if choice.name == item:
            return

        def entry():
            return settled(lambda: self.entry(choice, item))
        click_until(lambda: choice, entry, f"'{item}' in the list of '{name}'")
        click_until(entry, lambda: choice.name == item, f"'{item}' chosen in '{name}'")

    def entry(self, choice, item):
        """The item in the list of an open pop-up; None when it is not open: its items say that they show all the same."""
        lists = (control for control in choice.all() if control.role == Role.LIST and control.showing)
        return next((entry for entries in lists for entry in entries.children() if entry.name == item), None)

    def answer(self, text, button):
        """Waits for the question that says this text and presses the button with that name."""
        wait_until(lambda: self.must_run() and self.application.question(text), f"the question '{text}'")

        def answer_button():
            question = self.application.question(text)
            return question and question.find(button, (Role.PUSH_BUTTON,))
        click_until(answer_button, lambda: not self.application.question(text),
                    f"the question '{text}' gone after '{button}'")

    def start_with_default_configuration(self):
        """Answers the question of a start without any configuration."""
        self.answer(DEFAULT_CONFIGURATION, "Continue")

    def drop(self, *paths):
        """Drags the paths from another window onto the drop area. Fails when the drop is refused."""
        if self.drop_outcome(*paths) != "accepted":
            raise Failure(f"the drop of {paths} was refused")

    def drop_outcome(self, *paths):
        target = steady_middle(self.control("Drop area"))
        source = pathlib.Path(__file__).with_name("drag_source.py")
        addresses = [pathlib.Path(path).as_uri() for path in paths]
        with subprocess.Popen([sys.executable, str(source), *addresses], stdout=subprocess.PIPE,
                              env=os.environ | {"NO_AT_BRIDGE": "1"}) as dragged:
            said = Lines(dragged.stdout)
            try:
                place = tuple(map(int, said.wait_for(lambda line: line[:1].isdigit(), "the place to drag from").split()))
                drag_until_begun(place, target, said)
                return said.wait_for(lambda line: line in ("accepted", "refused"), f"the end of the drag of {paths}")
            finally:
                dragged.kill()

    def running(self):
        return not self.control("Overwrite source files").enabled

    def wait_for_summary(self, seconds=120):
        """The status text at the end of a run that has been started."""
        def summary():
            return not self.running() and self.status
        return wait_until(summary, "the summary of the run", seconds)

    def log_window_text(self):
        window = wait_until(lambda: self.must_run() and self.application.window(LOG_WINDOW), "the log window")
        return window.get("Log").text

    def bring_to_front(self, title):
        subprocess.run(["wmctrl", "-F", "-a", title], check=True, timeout=30)
        wait_until(lambda: settled(lambda: self.application.window(title).has(State.ACTIVE)), f"'{title}' in front")

    def close(self):
        """What the window manager does for the button in the corner, again when nothing comes of it."""
        for _ in range(3):
            asked = subprocess.run(["wmctrl", "-F", "-c", WINDOW], check=False, timeout=30, stderr=subprocess.DEVNULL)
            try:
                self.process.wait(timeout=5)
                return
            except subprocess.TimeoutExpired:
                if asked.returncode != 0:
                    raise Failure("there is no window to close") from None

    def wait_for_end(self, seconds=20):
        """The exit status."""
        try:
            return self.process.wait(timeout=seconds)
        except subprocess.TimeoutExpired:
            raise Failure(f"the program still runs {seconds} s after its window was closed") from None


class FileBrowser:
    """A file browser that only tells what it was asked to show."""

    def __enter__(self):
        script = pathlib.Path(__file__).with_name("file_browser.py")
        self.process = subprocess.Popen([sys.executable, str(script)], stdout=subprocess.PIPE, text=True)
        if self.process.stdout.readline() != "ready\n":
            raise Failure("the session bus has no place for a file browser")
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.communicate()

    def shown(self):
        """The addresses it was asked to show; to be called once, at the end."""
        self.process.terminate()
        return self.process.communicate(timeout=20)[0].split()


class Lines:
    """What a child process prints, line by line, without waiting for more than there is."""

    def __init__(self, stream):
        self.stream = stream
        self.bytes = b""
        os.set_blocking(stream.fileno(), False)

    def all(self):
        self.bytes += self.stream.read() or b""
        return self.bytes.decode().split("\n")[:-1]

    def wait_for(self, fits, what, seconds=30):
        """The first line that fits, of all that were printed."""
        return wait_until(lambda: next(filter(fits, self.all()), None), what, seconds)


def drag_until_begun(place, target, said):
    """Drags from `place` until a drag has begun, and releases over `target` when that would take it.

    On a busy desktop a press may come to nothing, and a target takes its time to answer.
    """
    def hover():
        if "begun" in said.all():
            arrives(lambda: "wanted" in said.all(), 10)  # else it will be refused
    for _ in range(3):
        mouse.drag(place, target, hover)
        if arrives(lambda: "begun" in said.all(), 2):
            return


def tick_place(box):
    x, y, _, height = box.box
    return x + 9, y + height // 2


def middle(control):
    return control.middle


def click_until(find, done, what, place=middle):
    """Clicks on the control that find() gives until done() is true.

    On a busy desktop a click may come to nothing. One that only comes late is waited for, and one too many
    is made good by the next.
    """
    def once():
        control = settled(find)
        if control and settled(lambda: steady_middle(control)):
            point = settled(lambda: place(control))
            if point:
                mouse.click(point)
        return arrives(lambda: settled(done), 3)
    return wait_until(lambda: settled(done) or once(), what)


def steady_middle(control):
    """The middle of a control that has stopped moving."""
    def twice():
        first = control.box
        time.sleep(0.06)
        return first[2] > 0 and first == control.box
    wait_until(lambda: settled(twice), f"'{control.name}' at rest")
    return control.middle


def take_picture(path):
    """A picture of the whole screen."""
    time.sleep(0.2)  # what has just come to the front is still being drawn
    subprocess.run(["import", "-window", "root", str(path)], check=True, timeout=60)
