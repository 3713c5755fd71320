"""A mouse for a Wayland compositor that has none, by the protocol wlr-virtual-pointer."""
import os
import socket
import struct
import time

DISPLAY, REGISTRY, ROUND_TRIP, MANAGER, POINTER = range(1, 6)  # numbers of objects, in the order of their making
MANAGER_NAME = "zwlr_virtual_pointer_manager_v1"
LEFT = 0x110
EXTENT = 10000


def text(string):
    data = string.encode() + b"\0"
    return struct.pack("=I", len(data)) + data + bytes(-len(data) % 4)


class Mouse:
    """There as long as the context lasts; points are pixels of the screen."""

    def __init__(self, width, height):
        self.size = width, height

    def __enter__(self):
        self.line = socket.socket(socket.AF_UNIX)
        self.line.connect(os.environ["WAYLAND_DISPLAY"])
        self.send(DISPLAY, 1, struct.pack("=I", REGISTRY))
        number = self.number_of_manager()
        self.send(REGISTRY, 0, struct.pack("=I", number) + text(MANAGER_NAME) + struct.pack("=II", 1, MANAGER))
        self.send(MANAGER, 0, struct.pack("=II", 0, POINTER))
        return self

    def __exit__(self, *_):
        self.line.close()

    def send(self, target, request, arguments=b""):
        self.line.sendall(struct.pack("=II", target, (8 + len(arguments)) << 16 | request) + arguments)

    def number_of_manager(self):
        """The number under which the compositor offers virtual pointers."""
        self.send(DISPLAY, 0, struct.pack("=I", ROUND_TRIP))
        while True:
            sender, what = struct.unpack("=II", self.receive(8))
            arguments = self.receive((what >> 16) - 8)
            if sender == ROUND_TRIP:
                raise RuntimeError("the compositor offers no virtual pointer")
            if sender == REGISTRY and text(MANAGER_NAME) in arguments:
                return struct.unpack_from("=I", arguments)[0]

    def receive(self, size):
        data = b""
        while len(data) < size:
            data += self.line.recv(size - len(data))
        return data

    def now(self):
        return int(time.monotonic() * 1000) & 0xffffffff

    def move(self, point):
        place = [round(at * EXTENT / size) for at, size in zip(point, self.size)]
        self.send(POINTER, 1, struct.pack("=IIIII", self.now(), *place, EXTENT, EXTENT))
        self.send(POINTER, 4)

    def press(self, down):
        self.send(POINTER, 2, struct.pack("=III", self.now(), LEFT, down))
        self.send(POINTER, 4)

    def drag(self, start, target, hovering=lambda: None):
        """Presses at start, moves as a hand does, calls hovering() over target and releases there."""
        self.move(start)
        time.sleep(0.2)
        self.press(True)
        time.sleep(0.15)
        for step in range(1, 27):
            self.move(tuple(a + (b - a) * step / 26 for a, b in zip(start, target)))
            time.sleep(0.02)
        for shift in (1, 2, 1, 0):
            self.move((target[0] + shift, target[1] + shift))
            time.sleep(0.05)
        try:
            hovering()
        finally:
            self.press(False)
