#!/usr/bin/python3
"""Runs a command on a desktop of its own and ends with the command's exit status.

    in_a_box.py COMMAND [ARGUMENT...]

The desktop is a virtual screen with a window manager, a session bus and an accessibility bus. HOME, the XDG
folders and TMPDIR point into a temporary tree, which is removed at the end. Of the caller's environment only PATH
and the sanitizers' options are kept.
"""
import ctypes
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

NEEDED = {
    "Xvfb": "xvfb", "openbox": "openbox", "xdotool": "xdotool", "wmctrl": "wmctrl", "import": "imagemagick",
    "dbus-run-session": "dbus-daemon", "/usr/libexec/at-spi-bus-launcher": "at-spi2-core",
    "dcmdump": "dcmtk", "dcmodify": "dcmtk", "dump2dcm": "dcmtk", "dcmmkdir": "dcmtk",
}
LIBRARIES = (("Atspi", "2.0", "gir1.2-atspi-2.0"), ("Gtk", "3.0", "gir1.2-gtk-3.0"))
KEPT = ("PATH", "ASAN_OPTIONS", "UBSAN_OPTIONS", "TSAN_OPTIONS", "LSAN_OPTIONS")
PR_SET_PDEATHSIG = 1
PR_SET_CHILD_SUBREAPER = 36


def check_packages():
    missing = {package for command, package in NEEDED.items() if not shutil.which(command)}
    try:
        import gi
        for library, version, package in LIBRARIES:
            try:
                gi.require_version(library, version)
            except ValueError:
                missing.add(package)
    except ImportError:
        missing.add("python3-gi")
    if missing:
        sys.exit("A desktop to run on cannot be started. On Debian: apt-get install " + " ".join(sorted(missing)))


def end_with_parent():
    """For a child before it starts: it gets SIGTERM when this process ends, however that happens."""
    ctypes.CDLL(None).prctl(PR_SET_PDEATHSIG, signal.SIGTERM)


def adopt_orphans():
    """What a child leaves behind becomes a child of this process, so that end_children() finds it."""
    ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1)


def end_children(seconds):
    """Asks every child to end, waits, and makes an end of those that still run after that time."""
    end = time.monotonic() + seconds
    asked = set()
    while True:
        try:
            while os.waitpid(-1, os.WNOHANG)[0]:
                pass
        except ChildProcessError:
            return
        try:
            with open(f"/proc/self/task/{os.getpid()}/children", encoding="ascii") as numbers:
                children = list(map(int, numbers.read().split()))
        except FileNotFoundError:  # no /proc: what this process has started ends with it
            return
        for child in children:
            late = time.monotonic() > end
            if late or child not in asked:
                asked.add(child)
                os.kill(child, signal.SIGKILL if late else signal.SIGTERM)
        time.sleep(0.02)


def start_screen(environment, log):
    reading, writing = os.pipe()
    subprocess.Popen(
        ["Xvfb", "-displayfd", str(writing), "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"],
        pass_fds=[writing], env=environment, stdout=log, stderr=log, preexec_fn=end_with_parent)
    os.close(writing)
    with os.fdopen(reading) as numbers:
        number = numbers.readline().strip()
    if not number:
        raise SystemExit("The virtual screen did not start; the end of its messages:\n" + tail(log))
    return {"DISPLAY": ":" + number}


def run_session(command, manager, environment, log):
    """The exit status of the command, run with a session bus and a window manager.

    What the bus and the window manager say goes to the log, what the command says to where it would go.
    """
    output, errors = os.dup(1), os.dup(2)
    script = f'{manager} & exec "$@" >&{output} 2>&{errors}'
    session = subprocess.Popen(
        ["dbus-run-session", "--", "sh", "-c", script, "sh", *command],
        env=environment, stdout=log, stderr=log, pass_fds=[output, errors], preexec_fn=end_with_parent)
    return session.wait()


def tail(log):
    log.flush()
    log.seek(0)
    return log.read()[-2000:].decode(errors="replace")


def make_environment(tree):
    environment = {name: os.environ[name] for name in KEPT if name in os.environ}
    environment.setdefault("PATH", "/usr/local/bin:/usr/bin:/bin")
    environment.update({"LANG": "C.UTF-8", "LC_ALL": "C.UTF-8", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                        "PYTHONDONTWRITEBYTECODE": "1"})
    folders = {
        "HOME": "home", "TMPDIR": "tmp", "XDG_RUNTIME_DIR": "runtime", "XDG_CONFIG_HOME": "home/.config",
        "XDG_DATA_HOME": "home/.local/share", "XDG_CACHE_HOME": "home/.cache", "XDG_STATE_HOME": "home/.local/state",
    }
    for variable, folder in folders.items():
        environment[variable] = os.path.join(tree, folder)
        os.makedirs(environment[variable], mode=0o700)
    return environment


def run_in_a_box(command, start, manager):
    """The exit status of the command, run in an environment to which start(environment, log) adds its screen."""
    adopt_orphans()
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    tree = tempfile.mkdtemp(prefix="dravolin-desktop-")
    try:
        environment = make_environment(tree)
        with open(os.path.join(tree, "log"), "w+b") as log:
            environment |= start(environment, log)
            return run_session(command, manager, environment, log)
    finally:
        end_children(seconds=10)
        shutil.rmtree(tree, ignore_errors=True)


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    check_packages()
    return run_in_a_box(sys.argv[1:], start_screen, "openbox")


if __name__ == "__main__":
    sys.exit(main())
