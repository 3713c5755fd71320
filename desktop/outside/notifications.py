#!/usr/bin/python3
"""A notification service as the session bus knows it: prints "ready", then one line for each notification."""
import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

NAME = "org.freedesktop.Notifications"
INTERFACE = f"""<node><interface name="{NAME}"><method name="Notify">
    <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
    <arg type="a{{sv}}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/>
    </method></interface></node>"""


def show(_bus, _sender, _path, _interface, _method, arguments, call):
    program, _, icon, summary, body, _, hints, _ = arguments.unpack()
    print("|".join((program, icon, summary, body, hints["desktop-entry"])), flush=True)
    call.return_value(GLib.Variant("(u)", (1,)))


def main():
    loop = GLib.MainLoop()
    description = Gio.DBusNodeInfo.new_for_xml(INTERFACE).interfaces[0]
    Gio.bus_own_name(
        Gio.BusType.SESSION, NAME, Gio.BusNameOwnerFlags.REPLACE,
        lambda bus, _: bus.register_object("/" + NAME.replace(".", "/"), description, show),
        lambda *_: print("ready", flush=True), lambda *_: loop.quit())
    loop.run()


if __name__ == "__main__":
    main()
