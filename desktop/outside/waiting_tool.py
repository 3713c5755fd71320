"""A program whose runs take as long as one wants."""
import shutil
import stat

WAITING_TOOL = """#!/bin/sh
here="${0%/*}"
: > "$here/started"
while [ ! -e "$here/go" ]; do sleep 0.05; done
"$here/real-dcmodify" "$@"
: > "$here/finished"
"""


def copy_with_waiting_tool(executable, copy):
    """A copy of the program in the folder `copy` whose dcmodify waits.

    In the copy's resources, it makes "started", waits for "go", works, and makes "finished".
    """
    shutil.copytree(executable.parent / "resources", copy / "resources", symlinks=True)
    shutil.copy2(executable, copy)
    tool = copy / "resources/dcmodify"
    tool.rename(tool.with_name("real-dcmodify"))
    tool.write_text(WAITING_TOOL, encoding="ascii")
    tool.chmod(tool.stat().st_mode | stat.S_IXUSR)
    return copy / executable.name
