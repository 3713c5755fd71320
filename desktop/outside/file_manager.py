"""A file manager with the icons of one folder, to drag them out of."""
import os
import pathlib
import re
import subprocess
import sys

from . import mouse
from .waiting import wait_until

TOP = 740  # of its window, below those of the program
PLACE = f"0,20,{TOP},620,270"
ICONS = pathlib.Path(__file__).with_name("icons.py")


class FileManager:
    """Leaving the context ends it."""

    def __init__(self, folder):
        self.folder = folder

    def __enter__(self):
        self.process = subprocess.Popen(["pcmanfm", "--no-desktop", str(self.folder)],
                                        env=os.environ | {"GTK_MODULES": "gail:atk-bridge"},
                                        stderr=subprocess.DEVNULL)  # it complains of what a bare desktop lacks
        wait_until(self.tell_window_to_move, "the file manager's window")
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()

    def tell_window_to_move(self):
        return subprocess.run(["wmctrl", "-F", "-r", self.folder.name, "-e", PLACE], check=False, timeout=30,
                              stderr=subprocess.DEVNULL).returncode == 0

    def corner(self):
        """The upper left corner of the window's inside."""
        told = subprocess.run(["xwininfo", "-name", self.folder.name], check=True, timeout=30, stdout=subprocess.PIPE,
                              text=True).stdout
        return tuple(map(int, re.findall(r"Absolute upper-left .: *(-?\d+)", told)))

    def icons(self):
        """The middle of each icon by its name; None while that cannot be told."""
        try:
            told = subprocess.run([sys.executable, str(ICONS), str(self.process.pid)], check=False, timeout=5,
                                  stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout
        except subprocess.TimeoutExpired:
            return None
        left, top = self.corner()
        lines = [line.split(" ", 2) for line in told.splitlines()]
        return {name: (left + int(x), top + int(y)) for x, y, name in lines}

    def places(self, names):
        """The middles of these icons; None while they are not all there or the window has still to move."""
        first, second = self.icons(), self.icons()
        if first and first == second and set(names) <= set(first) and self.corner()[1] > TOP:
            return [first[name] for name in names]
        return None

    def drag(self, names, target, hovering):
        """Marks the icons of these names and drags them onto the target, a point of the screen."""
        first, *others = wait_until(lambda: self.places(names), f"the icons {names}")
        if others:  # a click and a press at one place may become a double click
            mouse.click(first)
        for place in others:
            mouse.tell("keydown", "ctrl")
            mouse.click(place)
            mouse.tell("keyup", "ctrl")
        mouse.drag(first, target, hovering)
