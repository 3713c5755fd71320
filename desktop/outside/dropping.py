"""Drops files on a window by the X server's messages alone: without the mouse, and on windows that are covered."""
import pathlib

from Xlib import X, display, error
from Xlib.protocol import event

from .waiting import wait_until

PROTOCOL = 5  # of XDND
FORMAT = "text/uri-list"


class Dropper:
    """A program that has files to drop. Only one may drop at a time on one screen."""

    def __init__(self):
        self.display = display.Display()
        self.root = self.display.screen().root
        self.window = self.root.create_window(-10, -10, 1, 1, 0, X.CopyFromParent)

    def atom(self, name):
        return self.display.intern_atom(name)

    def main_window(self, process_id, title):
        """The number of the window with that title; 0 when there is none."""
        listed = self.root.get_full_property(self.atom("_NET_CLIENT_LIST"), X.AnyPropertyType)
        for number in listed.value if listed else ():
            window = self.display.create_resource_object("window", number)
            try:
                owner = window.get_full_property(self.atom("_NET_WM_PID"), X.AnyPropertyType)
                if owner and owner.value[0] == process_id and window.get_wm_name() == title:
                    return number
            except error.BadWindow:  # closed while it was looked at
                continue
        return 0

    def cut_off(self, number):
        """Ends the connection of the window's program to the screen, as the end of a session does."""
        self.display.create_resource_object("window", number).kill_client()
        self.display.sync()

    def drop(self, number, point, paths):
        """Whether the window has taken the paths, let go over that point of the screen."""
        addresses = "".join(pathlib.Path(path).as_uri() + "\r\n" for path in paths).encode("ascii")
        self.window.set_selection_owner(self.atom("XdndSelection"), X.CurrentTime)
        self.send(number, "XdndEnter", PROTOCOL << 24, self.atom(FORMAT))
        self.send(number, "XdndPosition", 0, point[0] << 16 | point[1], X.CurrentTime, self.atom("XdndActionCopy"))
        if not self.wait_for("XdndStatus", addresses) & 1:
            self.send(number, "XdndLeave")
            return False
        self.send(number, "XdndDrop", 0, X.CurrentTime)
        return bool(self.wait_for("XdndFinished", addresses) & 1)

    def send(self, number, message, *words):
        data = [self.window.id, *words, 0, 0, 0, 0][:5]
        target = self.display.create_resource_object("window", number)
        target.send_event(event.ClientMessage(window=target, client_type=self.atom(message), data=(32, data)))
        self.display.flush()

    def wait_for(self, message, addresses):
        """The second word of that message; meanwhile hands over the addresses to whoever asks for them."""
        def arrived():
            while self.display.pending_events():
                came = self.display.next_event()
                if came.type == X.SelectionRequest:
                    self.hand_over(came, addresses)
                elif came.type == X.ClientMessage and came.client_type == self.atom(message):
                    return [came.data[1][1]]
            return None
        return wait_until(arrived, f"the message {message}")[0]

    def hand_over(self, request, addresses):
        request.requestor.change_property(request.property, self.atom(FORMAT), 8, addresses)
        request.requestor.send_event(event.SelectionNotify(
            time=request.time, requestor=request.requestor, selection=request.selection, target=request.target,
            property=request.property))
        self.display.flush()
