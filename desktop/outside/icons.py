#!/usr/bin/python3
"""Prints the middle of each icon in the windows of a process, relative to its window, and its name: X Y NAME.

    icons.py PROCESS_ID

A program of its own, to be ended when it takes long: the accessibility library waits for itself for ever when contents
change just while they are looked at. It asks for no states, which is when that happens.
"""
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


def icons(node):
    if node.get_role() == Atspi.Role.ICON:
        yield node
    for index in range(node.get_child_count()):
        yield from icons(node.get_child_at_index(index))


def main():
    desktop = Atspi.get_desktop(0)
    for index in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(index)
        if application.get_process_id() != int(sys.argv[1]):
            continue
        for icon in icons(application):
            box = icon.get_extents(Atspi.CoordType.WINDOW)
            name = icon.get_name()
            if not name and "Text" in icon.get_interfaces():
                name = Atspi.Text.get_text(icon, 0, -1)
            print(box.x + box.width // 2, box.y + box.height // 2, name)


if __name__ == "__main__":
    main()
