#!/usr/bin/env python3
"""Checks the direction of includes: check-includes.py [--qt QT_HEADERS] SOURCE_FOLDER

An include may point at the same room or a lower one that is no stranger to it, and only app/, tests/ and benchmarks/ may include Qt Gui or Widgets.
Each line that does otherwise is printed, and the exit status is then 1. QT_HEADERS is the folder that holds
QtCore/, QtGui/ and QtWidgets/; without it only includes that name the module are recognised. --self-test
checks the check.
"""

import pathlib
import re
import sys
import tempfile

ROOMS = ["base", "identifiers", "config", "run/jobs", "processing", "run",
         "check", "dicom", "batch", "cli", "app"]  # lowest first
STRANGERS = {"dicom": {"check"}, "app": {"check", "dicom", "batch", "cli"}}  # lower rooms that a room does not see
FREE = {"app", "tests", "benchmarks"}  # may include Qt Gui and Widgets
CHECKED = ["base", "identifiers", "config", "run", "processing", "check", "dicom", "batch", "cli", "app",
           "tests", "benchmarks"]
INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')


def room_of(path):
    """The room that a path relative to the source folder lies in, or None."""
    folder = path.rpartition("/")[0] + "/"
    return max((room for room in ROOMS if folder.startswith(room + "/")), key=len, default=None)


def widget_headers(qt):
    names = set()
    if qt:
        core = {header.name for header in (qt / "QtCore").iterdir()}
        for module in ("QtGui", "QtWidgets"):
            names |= {header.name for header in (qt / module).iterdir()} - core
    return names


def complaint(source, file, line, widgets):
    """What is wrong with a line of the file, or None."""
    match = INCLUDE.match(line)
    if not match:
        return None
    project, system = match.groups()
    own = room_of(file)
    beside = project and "/" not in project and (source / file).with_name(project).is_file()
    if project and not beside and own and (own != "app" or room_of(project)):
        target = room_of(project)
        if target is None:
            return "is no header of this room or a lower one"
        if ROOMS.index(target) > ROOMS.index(own):
            return f"points upwards, from {own} to {target}"
        if target in STRANGERS.get(own, ()):
            return f"points from {own} to {target}, which do not know each other"
    named = project or system
    if file.split("/")[0] not in FREE:
        if named.startswith(("QtGui/", "QtWidgets/")) or named in widgets:
            return "is Qt Gui or Widgets outside app/"
    return None


def check(source, qt):
    """All offending lines below the source folder."""
    widgets = widget_headers(qt)
    found = []
    files = 0
    for top in CHECKED:
        for path in sorted((source / top).rglob("*")):
            if path.suffix not in {".h", ".cpp"}:
                continue
            files += 1
            name = path.relative_to(source).as_posix()
            for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
                if reason := complaint(source, name, line, widgets):
                    found.append(f"{name}:{number}: {line.strip()}: {reason}")
    return found, files


def self_test():
    allowed = [
        ("identifiers/A.cpp", '#include "identifiers/A.h"'),
        ("identifiers/A.cpp", '#include "A.cpp"'),  # a file beside it
        ("identifiers/A.cpp", '#include "base/A.h"'),
        ("config/A.cpp", '#include "identifiers/A.h"'),
        ("run/jobs/A.cpp", '#include "config/A.h"'),
        ("processing/A.cpp", '#include "run/jobs/A.h"'),
        ("run/A.cpp", '#include "processing/A.h"'),
        ("run/A.cpp", '#include "run/jobs/A.h"'),
        ("app/A.cpp", '#include "run/A.h"'),
        ("app/A.cpp", '#include "ui_MainWindow.h"'),
        ("dicom/A.cpp", '#include "processing/A.h"'),
        ("batch/A.cpp", '#include "dicom/A.h"'),
        ("batch/A.cpp", '#include "check/A.h"'),
        ("cli/A.cpp", '#include "batch/A.h"'),
        ("app/A.cpp", "#include <QWidget>"),
        ("tests/app/A.cpp", "#include <QtWidgets/QWidget>"),
        ("benchmarks/A.cpp", "#include <QtWidgets/QWidget>"),
        ("config/A.cpp", "#include <QString>"),
        ("config/A.cpp", "#include <QtCore/QString>"),
        ("config/A.cpp", '// #include "app/A.h"'),
    ]
    upwards = "points upwards, from {} to {}".format
    unknown = "is no header of this room or a lower one"
    strangers = "points from {} to {}, which do not know each other".format
    widgets = "is Qt Gui or Widgets outside app/"
    refused = [
        ("base/A.cpp", '#include "identifiers/A.h"', upwards("base", "identifiers")),
        ("identifiers/A.cpp", '#include "config/A.h"', upwards("identifiers", "config")),
        ("config/A.h", '  #  include "run/jobs/A.h"', upwards("config", "run/jobs")),
        ("run/jobs/A.cpp", '#include "processing/A.h"', upwards("run/jobs", "processing")),
        ("run/jobs/A.cpp", '#include "run/A.h"', upwards("run/jobs", "run")),
        ("processing/A.cpp", '#include "run/A.h"', upwards("processing", "run")),
        ("run/A.cpp", '#include "app/A.h"', upwards("run", "app")),
        ("check/A.cpp", '#include "dicom/A.h"', upwards("check", "dicom")),
        ("dicom/A.cpp", '#include "batch/A.h"', upwards("dicom", "batch")),
        ("batch/A.cpp", '#include "cli/A.h"', upwards("batch", "cli")),
        ("cli/A.cpp", '#include "app/A.h"', upwards("cli", "app")),
        ("dicom/A.cpp", '#include "check/A.h"', strangers("dicom", "check")),
        ("app/A.cpp", '#include "dicom/A.h"', strangers("app", "dicom")),
        ("app/A.cpp", '#include "cli/A.h"', strangers("app", "cli")),
        ("run/A.cpp", '#include "support/A.h"', unknown),
        ("run/A.cpp", '#include "A.h"', unknown),
        ("run/A.cpp", '#include "../app/A.h"', unknown),
        ("run/A.cpp", "#include <QWidget>", widgets),
        ("run/A.cpp", "#include <qimage.h>", widgets),
        ("run/A.cpp", "#include <QtGui/QImage>", widgets),
    ]
    headers = ["QtCore/QString", "QtGui/QImage", "QtGui/qimage.h", "QtGui/QString", "QtWidgets/QWidget"]
    failures = 0
    for file, line, *reason in allowed + refused:
        with tempfile.TemporaryDirectory() as folder:
            source = pathlib.Path(folder)
            for header in headers:
                (source / "qt" / header).parent.mkdir(parents=True, exist_ok=True)
                (source / "qt" / header).touch()
            (source / file).parent.mkdir(parents=True)
            (source / file).write_text(f"#pragma once\n\n{line}\n", encoding="utf-8")
            expected = [f"{file}:3: {line.strip()}: {reason[0]}"] if reason else []
            found, _ = check(source, source / "qt")
            if found != expected:
                failures += 1
                print(f"{file}, {line}: expected {expected}, found {found}")
    return failures


def main(arguments):
    if arguments == ["--self-test"]:
        return 1 if self_test() else 0
    qt = None
    if len(arguments) == 3 and arguments[0] == "--qt":
        qt = pathlib.Path(arguments[1])
        arguments = arguments[2:]
    if len(arguments) != 1:
        print(__doc__)
        return 2
    found, files = check(pathlib.Path(arguments[0]), qt)
    print("\n".join(found) if found else f"{files} files, all includes point downwards")
    return 1 if found or not files else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
