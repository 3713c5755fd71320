"""A look-up table from the data to the files, done from outside on the sample study."""
import pathlib
from collections import namedtuple

from .configuration import asked_for, read_rules
from .elements import read_elements
from .main_job import CASE, DEFAULT
from .program import OVERWRITE
from .verdict import expected_report, wrong_elements, wrong_report
from .waiting import wait_until

TAG = "0020,0010"
TABLE = "StudyID"
CONFIGURATION = "Studies"
SKIPPED = "STU-3391"  # the disc; its DICOMDIR holds the value, too
CONSTRUCTED = "\nDone constructing LUT. File placed on Desktop."
Propagation = namedtuple("Propagation", "summary log new_values wrong")


def save_configuration(home, executable):
    """The default configuration, with the Study ID left to a table."""
    default = pathlib.Path(executable).resolve().parent / "resources" / DEFAULT
    lines = [line for line in default.read_text(encoding="utf-8").splitlines() if not line.startswith((TAG, "+" + TAG[1:]))]
    home.configurations.mkdir(parents=True)
    file = home.configurations / f"AnonymizationConfiguration_{CONFIGURATION}.txt"
    file.write_text("\n".join(lines) + f"\n{TAG}\tStudy ID\t<LUT_{TABLE}>\n", encoding="utf-8")
    return file


def wait_for_run(program, before):
    """The summary of a run that has been asked for while the status was `before`."""
    wait_until(lambda: program.running() or program.status != before, "the start of the run")
    return program.wait_for_summary()


def construct(program, study):
    """Has the table made from the study's values. Gives the summary and the table's file."""
    program.tick("Construct look-up table")
    before = program.status
    program.drop(study.after)
    summary = wait_for_run(program, before)
    program.tick("Construct look-up table", on=False)
    return summary, program.home.desktop / f"AnonymizationLUT_{TABLE}.txt"


def skip_one(table):
    """What a person does in an editor: leave the files of one study as they are."""
    lines = table.read_text(encoding="utf-8").split("\n")
    edited = [SKIPPED + "\t\t<skip>" if line.startswith(SKIPPED + "\t") else line for line in lines]
    table.write_text("\n".join(edited), encoding="utf-8")


def rows(table):
    """Old values and new ones, as they stand in the file."""
    lines = table.read_text(encoding="utf-8").splitlines()
    return {line.split("\t")[0]: line.split("\t")[-1] for line in lines if line and not line.startswith("#")}


def propagate(program, study, configuration, table):
    """Drops the study with the table selected, to be overwritten, and judges what comes of it."""
    program.choose("Look-up table", TABLE)
    program.tick("Overwrite source files")
    before = program.status
    program.drop(study.after)
    program.answer(OVERWRITE, "Ok, Overwrite source data")
    return judge(program, study, configuration, table, wait_for_run(program, before))


def judge(program, study, configuration, table, summary):
    """What has come of a run with the table that has ended."""
    log = program.log_window_text()
    asked = asked_for(read_rules(configuration), CASE, program.read("UID root"))
    del asked[TAG]
    entries = rows(table)
    new_values, wrong = {}, []
    for file in study.files:
        old = read_elements(study.before / file)
        new_values[file] = entries[next(element.value for element in old if element.tags == [TAG])]
        own = asked if new_values[file] == "<skip>" else asked | {TAG: new_values[file]}
        wrong += [f"{file}: {line}" for line in wrong_elements(old, read_elements(study.after / file), own, False)]
    adapted = sum(value != "<skip>" for value in new_values.values())
    note = f"\n\nLUT tag propagated to {adapted} files.\nSkipped {len(study.files) - adapted + 1} DICOM files.\n\n"
    if note not in log:
        wrong.append(f"the log window does not say {note!r}: {log!r}")
    wrong += wrong_report(summary, log.replace(note, ""), expected_report(study.tried), ["./disc/DICOMDIR"])
    return Propagation(summary, log, new_values, wrong)
