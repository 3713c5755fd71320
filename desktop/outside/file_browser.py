#!/usr/bin/python3
"""A file browser as the session bus knows it: prints "ready", then the address of each item it is asked to show."""
import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

NAME = "org.freedesktop.FileManager1"
INTERFACE = f"""<node><interface name="{NAME}"><method name="ShowItems">
    <arg type="as" direction="in"/><arg type="s" direction="in"/></method></interface></node>"""


def show(_bus, _sender, _path, _interface, _method, arguments, call):
    for address in arguments.unpack()[0]:
        print(address, flush=True)
    call.return_value(None)


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
