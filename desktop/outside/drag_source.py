#!/usr/bin/python3
"""A small window to drag files out of.

    drag_source.py ADDRESS...

Offers the addresses, in this order, as a list of files. Prints the position of its middle when it can be
dragged, "begun" when a drag begins, "wanted" as soon as what it is over would take it, then "accepted" or
"refused" when the drag is over, and ends.
"""
import sys

import gi

gi.require_version("Gtk", "3.0")
gi.require_version("Gdk", "3.0")
from gi.repository import Gdk, GLib, Gtk  # noqa: E402

SIZE = 70


def main():
    addresses = sys.argv[1:]
    window = Gtk.Window(title="Files", decorated=False, accept_focus=False, skip_taskbar_hint=True)
    window.set_default_size(SIZE, SIZE)
    window.set_keep_above(True)
    window.add(Gtk.Label(label="Files"))
    window.drag_source_set(
        Gdk.ModifierType.BUTTON1_MASK, [Gtk.TargetEntry.new("text/uri-list", 0, 0)],
        Gdk.DragAction.COPY | Gdk.DragAction.MOVE | Gdk.DragAction.LINK)
    failures = []

    def over(_, drag):
        print("refused" if failures or not Gdk.drag_drop_succeeded(drag) else "accepted", flush=True)
        Gtk.main_quit()

    def failed(*_):  # nothing took the drop; what took it and failed is known to the drag itself
        failures.append(True)
        return True

    def begun(_, drag):
        print("begun", flush=True)
        GLib.timeout_add(20, tell_wanted, drag)

    def tell_wanted(drag):
        if not drag.get_selected_action():
            return True
        print("wanted", flush=True)
        return False

    def tell_position():
        _, x, y = window.get_window().get_origin()
        print(x + SIZE // 2, y + SIZE // 2, flush=True)

    window.connect("drag-data-get", lambda _w, _c, data, *_: data.set_uris(addresses))
    window.connect("drag-begin", begun)
    window.connect("drag-failed", failed)
    window.connect("drag-end", over)
    window.connect("map-event", lambda *_: GLib.timeout_add(150, tell_position))
    window.move(4, 4)
    window.show_all()
    Gtk.main()


if __name__ == "__main__":
    main()
