"""The table of what was seen, as Markdown."""
HEAD = """# What happens when something goes wrong

`scripts/faults.sh` has made this table: it sets up each fault around the built program and the real tools, drops
files of DICOM folders on the window, and looks at what comes of it. A short form is a test (`ctest -R faults`).

Every folder of a run is a job of its own. In the column of the files, *changed whole* is what a file is after a run
in which nothing goes wrong, byte for byte, and *original beside* says that `NAME.bak` holds the file as it was. After
every fault of a kind that does not itself take files away each file is as it was, changed whole, or has its original
beside it; the controls of the window come back; and the next run, with the fault gone, ends as ever. The bench fails
when that is not so. `...` stands for the folder in which a fault was set up.

Where a mode is the fault, the program runs with root's number and none of root's rights, so that permissions count. The
status *Done!* says that the tools reported no error; a tool that could not be started reports none. The line below it
counts the files themselves.
"""
COLUMNS = "| fault | what the user sees | system log | files | next run |\n|---|---|---|---|---|\n"


def cell(text):
    return text.replace("|", "\\|").replace("\n", "<br>") or "-"


def counted(texts):
    """Each text once, with the number of times when there are several."""
    if len(set(texts)) <= 1:
        return texts[0]
    return "\n".join(f"{times(texts.count(text))}: {text or '-'}" for text in sorted(set(texts)))


def times(number):
    return "once" if number == 1 else f"{number} times"


def row_of(name, tries):
    columns = [counted(["\n".join(seen.user) for seen in tries]), counted(["\n".join(seen.log) for seen in tries]),
               counted([seen.files for seen in tries]), counted([seen.following for seen in tries])]
    return "| " + " | ".join(map(cell, [name, *columns])) + " |"


def rows_in(file):
    """The rows of such a table by their first column."""
    lines = file.read_text(encoding="utf-8").splitlines()
    return {line.split(" | ")[0][2:]: line for line in lines if line.startswith("| ")}


def write_table(file, groups, rows):
    parts = [HEAD]
    for title, faults in groups.items():
        told = "".join(rows[fault.name] + "\n" for fault in faults if fault.name in rows)
        parts.append(f"\n## {title}\n\n" + COLUMNS + told)
    file.write_text("".join(parts), encoding="utf-8")
