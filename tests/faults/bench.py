#!/usr/bin/python3
"""The built program and the real tools, while something goes wrong: disks, files, tools, the system, the user.

    bench.py EXECUTABLE TABLE [--long | --only WORD]

To be run on a desktop of its own (desktop/in_a_box.py), by root: it mounts disks, in a namespace of its own. Tries the
most telling faults, with --long all of them, or those with WORD in their names; the last two write what they find into
TABLE, a Markdown file. What may never be makes the exit status 1: a file that is neither whole nor has its original
beside it, a run that does not end, a control that stays switched off, a next run that is not as ever, or, of the short
form, an outcome that TABLE does not tell.
"""
import concurrent.futures
import multiprocessing
import os
import pathlib
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parents[1] / "desktop")]
from fault import Fault, try_at  # noqa: E402
from rows import BY_NAME, GROUPS, try_named  # noqa: E402
from study import make_originals  # noqa: E402
from table import row_of, rows_in, write_table  # noqa: E402

BESIDE_EACH_OTHER = 3


def learn(executable, pool, name, faults):
    """Has the program change what the faults drop, nothing going wrong; the folder `name` holds what comes of it."""
    if not faults:
        return
    (pool / name).symlink_to("originals")
    kept = {}
    shape = tuple(max(sizes) for sizes in zip(*(fault.shape for fault in faults)))

    def keep(scene):
        for file in scene.study.files:
            kept[file] = (scene.study.folder / file).read_bytes()
    seen = try_at(Fault(name, shape=shape, remove=keep, table=faults[0].table), 1, executable, pool)
    (pool / name).unlink()
    for file, content in kept.items():
        place = pool / name / file
        place.parent.mkdir(parents=True, exist_ok=True)
        place.write_bytes(content)
    if not kept or any(b"Nowhere" not in content or b"Patient^Number" in content for content in kept.values()):
        raise SystemExit(f"although nothing went wrong, files were not changed: {seen}")


def try_all(faults, executable, pool):
    """What comes of each at each of its points, by its name; says so as soon as it is known."""
    context = multiprocessing.get_context("spawn")
    with concurrent.futures.ProcessPoolExecutor(BESIDE_EACH_OTHER, mp_context=context) as workers:
        tried = {fault.name: [workers.submit(try_named, fault.name, point, executable, pool)
                              for point in range(1, fault.points + 1)] for fault in faults}
        found = {}
        for name, tries in tried.items():
            found[name] = [one.result() for one in tries]
            wrong = [f"point {i + 1}: {text}" for i, seen in enumerate(found[name]) for text in seen.wrong]
            print("\n    ".join([("FAULTY " if wrong else "ok     ") + name, *wrong]), flush=True)
    return found


def wanted(words):
    for fault in BY_NAME.values():
        if "--long" in words or (words[1] in fault.name if "--only" in words else fault.quick):
            yield fault


def go_apart():
    """Goes on where nobody sees what is mounted."""
    if "FAULTS_APART" not in os.environ:
        own_user = [] if os.getuid() == 0 else ["--user", "--map-current-user", "--keep-caps"]
        os.environ["FAULTS_APART"] = "1"
        os.execvp("unshare", ["unshare", *own_user, "--mount", sys.executable, *sys.argv])


def main():
    go_apart()
    executable, table, words = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]), sys.argv[3:]
    begin = time.monotonic()
    with tempfile.TemporaryDirectory() as folder:
        pool = pathlib.Path(folder)
        faults = list(wanted(words))
        make_originals(pool / "originals")
        learn(executable, pool, "changed", [fault for fault in faults if not fault.table])
        learn(executable, pool, "changed by table", [fault for fault in faults if fault.table])
        found = try_all(faults, executable, pool)
    wrong = any(seen.wrong for tries in found.values() for seen in tries)
    rows = {name: row_of(name, tries) for name, tries in found.items()}
    known = rows_in(table) if table.exists() else {}
    if words:
        write_table(table, GROUPS, known | rows)
    for name, row in rows.items():
        if not words and BY_NAME[name].steady and row != known.get(name):
            print(f"{table.name} does not tell this:\n  now:  {row}\n  told: {known.get(name)}")
            wrong = True
    print(f"{len(rows)} faults in {time.monotonic() - begin:.0f} s")
    return 1 if wrong else 0


if __name__ == "__main__":
    os.environ["NO_AT_BRIDGE"] = "1"
    sys.exit(main())
