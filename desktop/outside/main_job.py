"""The main job, done from outside: anonymize the sample study with the configuration that the program brings."""
import pathlib
import shutil
from collections import namedtuple

from .configuration import asked_for, read_rules
from .program import OVERWRITE
from .study import make_study
from .verdict import expected_report, problems, wrong_report

CASE = {"Case ID": "0042", "Diagnosis": "Torn meniscus", "Keywords": "knee, abdomen", "Credits": "Teaching file 7"}
DEFAULT = "DefaultAnonymizationConfiguration.txt"
Study = namedtuple("Study", "before after tried files")
Outcome = namedtuple("Outcome", "summary log asked wrong kept")


def prepare(folder):
    """Makes the sample study three times: to look back at, to drop, and to learn what the tool says about it."""
    folder = pathlib.Path(folder)
    files = make_study(folder / "before")
    shutil.copytree(folder / "before", folder / "studies")
    shutil.copytree(folder / "before", folder / "tried")
    return Study(folder / "before", folder / "studies", folder / "tried", files)


def describe_case(program):
    for field, text in CASE.items():
        program.fill(field, text)
    before = program.read("UID root")
    program.press("Generate root", lambda: program.read("UID root") != before)


def default_rules(executable):
    return read_rules(pathlib.Path(executable).resolve().parent / "resources" / DEFAULT)


def run_and_judge(program, study, rules):
    """Drops the whole study to be overwritten, with new instance UIDs, and judges what comes of it."""
    program.tick("Overwrite source files")
    program.tick("Generate new instance UIDs")
    program.drop(study.after)
    program.answer(OVERWRITE, "Ok, Overwrite source data")
    summary = program.wait_for_summary()
    log = program.log_window_text()
    asked = asked_for(rules, CASE, program.read("UID root"))
    wrong, kept = problems(study.before, study.after, study.files, asked, new_instances=True)
    wrong += wrong_report(summary, log, expected_report(study.tried), ["./disc/DICOMDIR"])
    return Outcome(summary, log, asked, wrong, kept)
