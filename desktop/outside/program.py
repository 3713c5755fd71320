"""The running program as its user has it: its windows, its fields, its questions."""
import os
import pathlib
import subprocess
import sys
import time

from . import mouse
from .controls import Application, Role, State, settled
from .waiting import Failure, wait_until

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
        wait_until(lambda: clicked_into(field), f"the focus in '{name}'")
        mouse.press_key("ctrl+a")
        mouse.press_key("Delete")
        mouse.type_text(text)
        wait_until(lambda: field.text == text, f"'{text}' in '{name}', which holds '{field.text}'")

    def tick(self, name, on=True):
        box = self.control(name, (Role.CHECK_BOX,))
        if box.checked != on:
            steady_middle(box)
            x, y, _, height = box.box
            mouse.click((x + 9, y + height // 2))
            wait_until(lambda: box.checked == on, f"'{name}' {'ticked' if on else 'cleared'}")

    def press(self, name):
        mouse.click(steady_middle(self.control(name, (Role.PUSH_BUTTON,))))

    def choose(self, name, item):
        choice = self.control(name, (Role.COMBO_BOX,))
        if choice.name == item:
            return
        mouse.click(steady_middle(choice))
        entry = wait_until(lambda: settled(lambda: self.entry(choice, item)), f"'{item}' in the list of '{name}'")
        mouse.click(steady_middle(entry))
        wait_until(lambda: choice.name == item, f"'{item}' chosen in '{name}'")

    def entry(self, choice, item):
        for control in choice.all():
            if control.role == Role.LIST_ITEM and control.name == item and control.box[1] > 0 and control.showing:
                return control
        return None

    def answer(self, text, button):
        """Waits for the question that says this text and presses the button with that name."""
        question = wait_until(lambda: self.must_run() and self.application.question(text), f"the question '{text}'")
        mouse.click(steady_middle(question.get(button, (Role.PUSH_BUTTON,))))
        wait_until(lambda: not self.application.question(text), f"the question '{text}' gone after '{button}'")

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
        with subprocess.Popen([sys.executable, str(source), *addresses], stdout=subprocess.PIPE, text=True,
                              env=os.environ | {"NO_AT_BRIDGE": "1"}) as dragged:
            try:
                place = dragged.stdout.readline().split()
                if len(place) != 2:
                    raise Failure("the window to drag from did not start")
                mouse.drag(tuple(map(int, place)), target)
                return dragged.communicate(timeout=20)[0].strip()
            except subprocess.TimeoutExpired:
                raise Failure(f"the drag of {paths} never ended") from None
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
        """What the window manager does for the button in the corner."""
        subprocess.run(["wmctrl", "-F", "-c", WINDOW], check=True, timeout=30)

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


def clicked_into(field):
    """Whether a click has brought the focus; on a busy desktop one may come to nothing."""
    mouse.click(steady_middle(field))
    try:
        return wait_until(lambda: field.focused, "the focus", 2)
    except Failure:
        return False


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
