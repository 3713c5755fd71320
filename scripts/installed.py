#!/usr/bin/python3
"""Anonymizes the sample study with the installed program, started as a desktop's menu starts it.

    installed.py FOLDER

FOLDER becomes the home of the program's user; the study stays in it. The exit status tells whether everything is as it
should be. Needs a desktop to run on, see desktop/in_a_box.py.
"""
import os
import pathlib
import signal
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "desktop"))
from outside.configuration import read_rules  # noqa: E402
from outside.controls import Application  # noqa: E402
from outside.main_job import DEFAULT, describe_case, prepare, run_and_judge  # noqa: E402
from outside.program import WINDOW, Home, Program  # noqa: E402
from outside.waiting import Failure, wait_until  # noqa: E402

ENTRY = "example.dravolin.Dravolin"
RESOURCES = pathlib.Path("/usr/share/dravolin")


def process_of_window():
    """The number of the process that shows the main window, None when there is none."""
    windows = subprocess.run(["wmctrl", "-l", "-p"], check=False, timeout=30, stdout=subprocess.PIPE,
                             stderr=subprocess.DEVNULL, text=True).stdout
    for _, _, process, _, *title in (line.split(maxsplit=4) for line in windows.splitlines()):
        if title == [WINDOW]:
            return int(process)
    return None


class ProgramOfMenu(Program):
    """The program started from its desktop entry: no child of this process."""

    def __init__(self, home):
        self.home = home
        subprocess.run(["gtk-launch", ENTRY], env=os.environ | home.environment(), cwd=home.folder, check=True,
                       timeout=30)
        self.number = wait_until(process_of_window, "the main window")
        self.application = Application(self.number)

    def __exit__(self, *_):
        if process_of_window():
            os.kill(self.number, signal.SIGKILL)

    def must_run(self):
        if not process_of_window():
            raise Failure("the program has ended by itself")
        return True

    def close(self):
        def asked():
            subprocess.run(["wmctrl", "-F", "-c", WINDOW], check=False, timeout=30, stderr=subprocess.DEVNULL)
            return not process_of_window()
        wait_until(asked, "the end of the program")


def main():
    folder = pathlib.Path(sys.argv[1]).resolve()
    study = prepare(folder)
    with ProgramOfMenu(Home(folder)) as program:
        program.start_with_default_configuration()
        describe_case(program)
        outcome = run_and_judge(program, study, read_rules(RESOURCES / DEFAULT))
        program.close()
    print(outcome.summary.strip())
    for line in outcome.wrong:
        print("WRONG:", line)
    return 1 if outcome.wrong else 0


if __name__ == "__main__":
    sys.exit(main())
