#!/usr/bin/python3
"""Anonymizes the sample study with the program as its user does, then makes a look-up table from a fresh copy of it
and propagates that, and prints what became of them.

    sample.py EXECUTABLE RESULTS

RESULTS gets pictures of the screen and the study before and after. The exit status tells whether everything is as it
should be. Needs a desktop to run on, see desktop/in_a_box.py.
"""
import pathlib
import shutil
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "desktop"))
from outside.elements import read_elements  # noqa: E402
from outside.main_job import CASE, default_rules, describe_case, prepare, run_and_judge  # noqa: E402
from outside.program import WINDOW, Home, Program, take_picture  # noqa: E402
from outside import table_job  # noqa: E402
from outside.study import DICOMDIR, EMPTY_FOLDER, TEXT_FILE  # noqa: E402
from outside.verdict import table  # noqa: E402
from outside.waiting import Failure  # noqa: E402


def say(text=""):
    print(text, flush=True)


def indent(text):
    return "\n".join("  | " + line for line in text.split("\n"))


def anonymize(executable, folder, results):
    study = prepare(folder)
    say(f"The sample study: {len(study.files)} images of two persons, a DICOMDIR ({DICOMDIR}),")
    say(f"a text file ({TEXT_FILE}) and an empty folder ({EMPTY_FOLDER}).")
    with Program(executable, Home(folder / "home")) as program:
        try:
            say("Started. There is no configuration yet: going on with the one that the program brings.")
            program.start_with_default_configuration()
            describe_case(program)
            say("Filled in: " + ", ".join(f"{field} '{text}'" for field, text in CASE.items())
                + "; had a UID root generated.")
            say("Overwriting the source and new instance UIDs are ticked. Dropping the study on the window.")
            outcome = run_and_judge(program, study, default_rules(executable))
            take_picture(results / "log.png")
            program.bring_to_front(WINDOW)
            take_picture(results / "window.png")
            program.close()
            program.wait_for_end()
        except Failure:
            take_picture(results / "failure.png")
            raise
    return study, outcome


def propagate_table(executable, folder, results):
    """Makes a table from a fresh copy of the study and propagates it. What is wrong, as lines."""
    study = prepare(folder)
    home = Home(folder / "home")
    configuration = table_job.save_configuration(home, executable)
    say()
    say(f"A look-up table, with a configuration that leaves ({table_job.TAG}) Study ID to it. Constructing:")
    with Program(executable, home) as program:
        try:
            describe_case(program)
            summary, table = table_job.construct(program, study)
            say(indent(summary))
            wrong = [] if summary == table_job.CONSTRUCTED else ["the construction did not end as it should"]
            say(f"{table.name} on the desktop:")
            say(indent(table.read_text(encoding="utf-8")))
            table_job.skip_one(table)
            say(f"Edited: {table_job.SKIPPED} is to be skipped. Dropping the study again with the table selected:")
            outcome = table_job.propagate(program, study, configuration, table)
            program.close()
            program.wait_for_end()
        except Failure:
            take_picture(results / "failure.png")
            raise
    for file in study.files:
        old, new = (value_of(tree / file, table_job.TAG) for tree in (study.before, study.after))
        say(f"  {str(file):<50} {old:<12} {new}")
    say("The summary in the window:")
    say(indent(outcome.summary))
    say("The log window:")
    say(indent(outcome.log))
    return wrong + outcome.wrong


def value_of(file, tag):
    return next((element.value for element in read_elements(file) if element.tags == [tag]), "-")


def say_wrong(lines):
    if lines:
        say()
        say("WRONG:")
        for line in lines:
            say("  " + line)


def report(study, outcome):
    for file in study.files:
        say()
        say(f"{file}: the identifying attributes before and after")
        for line in table(read_elements(study.before / file), read_elements(study.after / file), outcome.asked):
            say(line)
    say()
    say("The summary in the window:")
    say(indent(outcome.summary))
    say("The log window:")
    say(indent(outcome.log))
    if outcome.kept:
        say()
        say("Still there, in attributes that the configuration does not list:")
        for line in outcome.kept:
            say("  " + line)
    say_wrong(outcome.wrong)


def main():
    executable, results = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
    shutil.rmtree(results, ignore_errors=True)
    results.mkdir(parents=True)
    with tempfile.TemporaryDirectory() as folder:
        folder = pathlib.Path(folder)
        try:
            study, outcome = anonymize(executable, folder / "main", results)
            report(study, outcome)
            wrong = propagate_table(executable, folder / "table", results)
            say_wrong(wrong)
        except Failure as failure:
            say(f"FAILED: {failure}. The screen at that moment: {results}/failure.png")
            return 1
        shutil.copytree(study.before, results / "before")
        shutil.copytree(study.after, results / "after")
    say()
    say(f"Pictures of the screen: {results}/window.png, {results}/log.png")
    say(f"The study: {results}/before, {results}/after")
    say("FAILED: see WRONG above." if outcome.wrong + wrong else "As it should be.")
    return 1 if outcome.wrong + wrong else 0


if __name__ == "__main__":
    sys.exit(main())
