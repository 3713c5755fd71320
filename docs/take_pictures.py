#!/usr/bin/python3
"""Takes the pictures of the documents from the running program, with the sample study.

    desktop/in_a_box.py /usr/bin/python3 docs/take_pictures.py EXECUTABLE

The pictures go to docs/pictures. The program runs with a fresh home, so that they come out alike each time.
"""
import pathlib
import subprocess
import sys
import tempfile
import time

DOCS = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(DOCS.parent / "desktop"))
from outside import table_job  # noqa: E402
from outside.main_job import describe_case, prepare  # noqa: E402
from outside.program import DEFAULT_CONFIGURATION, LOG_WINDOW, OVERWRITE, WINDOW, Home, Program  # noqa: E402
from outside.program import take_picture  # noqa: E402
from outside.waiting import wait_until  # noqa: E402

MARGIN = 1
TITLE_BAR = 22


def picture_of(window, name):
    """The part of the screen that the window takes, with its frame."""
    file = DOCS / "pictures" / f"{name}.png"
    time.sleep(0.5)  # until tooltips, the caret's blinking and focus frames have settled: nothing tells when
    take_picture(file)
    x, y, width, height = window.box
    area = f"{width + 2 * MARGIN}x{height + TITLE_BAR + MARGIN}+{max(0, x - MARGIN)}+{max(0, y - TITLE_BAR)}"
    subprocess.run(["mogrify", "-crop", area, "+repage", "-colors", "128", str(file)], check=True, timeout=60)


def first_start(executable, folder):
    """The question at a start without configurations, a filled window, a result and its log."""
    study = prepare(folder)
    with Program(executable, Home(folder / "home")) as program:
        question = wait_until(lambda: program.application.question(DEFAULT_CONFIGURATION), "the question")
        picture_of(question, "first-start")
        program.start_with_default_configuration()
        describe_case(program)
        program.tick("Overwrite source files")
        program.tick("Generate new instance UIDs")
        picture_of(program.window, "window")
        program.drop(study.after)
        program.answer(OVERWRITE, "Ok, Overwrite source data")
        program.wait_for_summary()
        program.log_window_text()
        picture_of(program.application.window(LOG_WINDOW), "log")
        program.bring_to_front(WINDOW)
        picture_of(program.window, "result")


def table(executable, folder):
    """The window while it is set to construct a table, and with a table chosen."""
    study = prepare(folder)
    home = Home(folder / "home")
    table_job.save_configuration(home, executable)
    with Program(executable, home) as program:
        describe_case(program)
        program.tick("Construct look-up table")
        picture_of(program.window, "construct")
        table_job.construct(program, study)
        program.choose("Look-up table", table_job.TABLE)
        picture_of(program.window, "table")


def main():
    executable = pathlib.Path(sys.argv[1]).resolve()
    (DOCS / "pictures").mkdir(exist_ok=True)
    with tempfile.TemporaryDirectory() as folder:
        first_start(executable, pathlib.Path(folder) / "first")
        table(executable, pathlib.Path(folder) / "table")


if __name__ == "__main__":
    main()
