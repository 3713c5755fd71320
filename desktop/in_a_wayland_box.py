#!/usr/bin/python3
"""Runs a command on a Wayland desktop of its own and ends with the command's exit status.

    in_a_wayland_box.py COMMAND [ARGUMENT...]

Like in_a_box.py, with a compositor that has no screen in place of the X server. Windows stand where they are put, each
as large as it wants to be.
"""
import os
import pathlib
import shutil
import subprocess
import sys

from in_a_box import end_with_parent, run_in_a_box, tail
from outside.waiting import Failure, wait_until

NEEDED = {"sway": "sway", "swaymsg": "sway", "grim": "grim", "setpriv": "util-linux"}
CONFIGURATION = """xwayland disable
output * mode 1280x1024
default_border none
for_window [title=".*"] floating enable
"""
NOBODY = "65534"


def check_packages():
    missing = {package for command, package in NEEDED.items() if not shutil.which(command)}
    if not list(pathlib.Path("/usr/lib").glob("*/qt6/plugins/platforms/libqwayland-generic.so")):
        missing.add("qt6-wayland")
    if missing:
        sys.exit("A Wayland desktop cannot be started. On Debian: apt-get install " + " ".join(sorted(missing)))


def start_compositor(environment, log):
    place = pathlib.Path(environment["HOME"]).parent / "screen"
    place.mkdir(mode=0o700)
    configuration = place / "configuration"
    configuration.write_text(CONFIGURATION, encoding="ascii")
    command = ["sway", "--config", str(configuration)]
    if os.geteuid() == 0:  # it does not run as root
        command = ["setpriv", "--reuid", NOBODY, "--regid", NOBODY, "--clear-groups", *command]
        os.chown(place, int(NOBODY), int(NOBODY))
        place.parent.chmod(0o711)
    subprocess.Popen(command, stdout=log, stderr=log, preexec_fn=end_with_parent, env=environment | {
        "XDG_RUNTIME_DIR": str(place), "WLR_BACKENDS": "headless", "WLR_RENDERER": "pixman",
        "WLR_LIBINPUT_NO_DEVICES": "1"})
    try:
        control = wait_until(lambda: next(place.glob("sway-ipc.*.sock"), None), "the compositor", 20)
        screen = wait_until(lambda: next(place.glob("wayland-*[0-9]"), None), "the compositor's screen", 20)
    except Failure as failure:
        raise SystemExit(f"{failure}; the end of its messages:\n{tail(log)}") from None
    return {"WAYLAND_DISPLAY": str(screen), "SWAYSOCK": str(control), "XDG_SESSION_TYPE": "wayland"}


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    check_packages()
    return run_in_a_box(sys.argv[1:], start_compositor, ":")


if __name__ == "__main__":
    sys.exit(main())
