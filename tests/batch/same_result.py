#!/usr/bin/env python3
"""The result of a run beside the window's, attribute by attribute:

    same_result.py DRAVOLIN_CLI MAKE_OBJECTS WINDOW_SCRIPT CONFIGURATION DESKTOP [COUNT]

COUNT objects of all kinds in all ways of writing, and the sample study of the folder DESKTOP, go through `dravolin-cli run` and, as copies, through the window's
script with DCMTK's tool. What docs/run.md lists as different is left out of the comparison, and nothing else.
"""

import csv
import hashlib
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

CLI, MAKE_OBJECTS, WINDOW_SCRIPT, CONFIGURATION, DESKTOP = map(os.path.abspath, sys.argv[1:6])
COUNT = int(sys.argv[6]) if len(sys.argv) > 6 else 60
sys.path[:0] = [os.path.dirname(MAKE_OBJECTS), DESKTOP]
from dump import dump  # noqa: E402
from outside import study  # noqa: E402
from sources import untouched  # noqa: E402

STUDY = "(0020,000d)"  # the window gives one to everything, and erases copies that a run keeps or replaces
TAG = re.compile(r"\(([0-9a-f]{4}),([0-9a-f]{4})\)$")


def configured_values():
    """The tags to which the configuration or the window gives a value: a run sets their nested copies as well."""
    tags = {"(0010,0010)", "(0010,0020)"}
    for line in pathlib.Path(CONFIGURATION).read_text(encoding="utf-8").splitlines():
        fields = line.split("\t")
        if not line.startswith("#") and len(fields) > 2:
            tags.add(f"({fields[0].replace('+', '0')})")
    return tags


def comparable(dumped, nested):
    """VR and value by tag path, without the header, lengths of groups, and what is different on purpose."""
    values = {}
    for path, (vr, shown) in dumped.values.items():
        shown = shown.replace(b"undefined length", b"explicit length")
        group, element = TAG.search(path).groups()
        is_copy = "." in path and path.rpartition(".")[2] in nested
        if group != "0002" and element != "0000" and path != "(fffc,fffc)" and not is_copy and not path.endswith(STUDY):
            values[path] = (vr, shown)
    return values


def is_hidden(shown):
    """In implicit VR nothing tells a private sequence from bytes any more when the tool has given it a length."""
    return shown is not None and shown[0] == "??" and shown[1].startswith(b"fe\\ff\\00\\e0")


def window_run(folder):
    tool = shutil.which("dcmodify")
    script = subprocess.run([WINDOW_SCRIPT, tool, CONFIGURATION, "Case", "17"], check=True,
                            stdout=subprocess.PIPE).stdout
    for place in [folder, *(path for path in folder.rglob("*") if path.is_dir())]:
        if any(path.is_file() for path in place.iterdir()):
            subprocess.run(["/bin/sh", "-c", script], cwd=place, check=False)
            (place / ".noxTemp.out").unlink()


def main():
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch)
        subprocess.run([sys.executable, MAKE_OBJECTS, "mixed", folder / "in", "--count", str(COUNT), "--no-directory"],
                       check=True, stdout=subprocess.DEVNULL)
        (folder / "in/planted.json").unlink()
        objects = COUNT + len(study.make_study(folder / "in/sample"))
        for name in study.DICOMDIR, study.TEXT_FILE:
            (folder / "in/sample" / name).unlink()
        shutil.copytree(folder / "in", folder / "window")
        (folder / "list.csv").write_text("source,destination,case_id,diagnosis,configuration\n"
                                         f"in,out,17,Case,{CONFIGURATION}\n", encoding="utf-8")
        with untouched(folder):
            run = subprocess.run([CLI, "run", "list.csv", "--keep-private", "--keep-uids"], cwd=folder, check=False,
                                 stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
        if f"{objects} done, 0 not done".encode() not in run.stdout:
            sys.exit(run.stdout.decode(errors="replace"))
        window_run(folder / "window")
        return compare(folder)


def compare(folder):
    with open(folder / "list.run/evidence/files.csv", encoding="utf-8", newline="") as file:
        results = {row["sha256_before"]: row["result"] for row in csv.DictReader(file)}
    paths = [path.relative_to(folder / "in") for path in (folder / "in").rglob("*") if path.is_file()]
    ours = [results[hashlib.sha256((folder / "in" / path).read_bytes()).hexdigest()] for path in paths]
    of_window, _ = dump(folder / "window", paths)
    of_run, _ = dump(folder / "out", ours)
    nested = configured_values()
    attributes = different = 0
    for path, own in zip(paths, ours):
        expected, found = comparable(of_window[str(path)], nested), comparable(of_run[own], nested)
        attributes += len(expected)
        for tag in sorted(expected.keys() | found.keys()):
            if expected.get(tag) != found.get(tag) and not is_hidden(expected.get(tag)):
                different += 1
                print(f"{path} {tag}: the window has {expected.get(tag)}, the run {found.get(tag)}"[:300])
    print(f"{len(paths)} objects, {attributes} attributes, {different} different")
    return 1 if different or not attributes else 0


if __name__ == "__main__":
    os.environ.pop("DCMDICTPATH", None)
    sys.exit(main())
