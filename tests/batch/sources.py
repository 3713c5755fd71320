"""Trees of files, and sources that no call may touch."""

import contextlib
import csv
import hashlib
import os
import pathlib
import stat


def content(path):
    """The hash of a file, or what else lies there."""
    mode = os.lstat(path).st_mode
    if stat.S_ISREG(mode):
        return hashlib.sha256(pathlib.Path(path).read_bytes()).hexdigest()
    return os.readlink(path) if stat.S_ISLNK(mode) else oct(mode)


def entries(folder):
    """Everything in a folder, the folder among it."""
    folder = os.fsdecode(folder)
    yield folder
    for top, folders, files in os.walk(folder):
        yield from (os.path.join(top, name) for name in folders + files)


def tree(folder):
    """Hash of every file in a folder, by path in it."""
    return {os.path.relpath(path, folder): content(path) for path in entries(folder) if os.path.isfile(path)}


def sources(folder):
    """What the lists of cases in a folder name as sources, and is there."""
    found = set()
    for path in pathlib.Path(folder).glob("*.csv"):
        with open(path, encoding="utf-8", newline="", errors="surrogateescape") as file:
            found |= {pathlib.Path(folder, row["source"]) for row in csv.DictReader(file) if row.get("source")}
    return sorted(path for path in found if path.exists())


def state(source):
    """All of a file or folder that a program could change."""
    attributes = {path: os.lstat(path) for path in entries(source)}
    return {path: (content(path), one.st_mode, one.st_uid, one.st_mtime_ns) for path, one in attributes.items()}


@contextlib.contextmanager
def untouched(folder):
    """Fails when a source that a list in the folder names is another one afterwards."""
    before = {path: state(path) for path in sources(folder)}
    yield
    for path, expected in before.items():
        assert state(path) == expected, f"{path} was touched"
