"""The windows of a Wayland compositor, by sway's own control program."""
import json
import subprocess

from .waiting import wait_until


def tell(*words):
    return subprocess.run(["swaymsg", *words], check=True, timeout=30, stdout=subprocess.PIPE, text=True).stdout


def place_of(title):
    """x, y, width and height of the window with that title, now; None when there is none."""
    def search(node):
        if node.get("name") == title and node.get("pid"):
            return tuple(node["rect"][name] for name in ("x", "y", "width", "height"))
        return next(filter(None, map(search, node["nodes"] + node["floating_nodes"])), None)
    return search(json.loads(tell("-t", "get_tree")))


def put(title, x, y):
    """Moves the window with that title, once it is there, and gives its place."""
    wait_until(lambda: place_of(title), f"the window '{title}'")
    tell(f'[title="^{title}$"] move absolute position {x} {y}')
    return wait_until(lambda: (place_of(title) or ())[:2] == (x, y) and place_of(title), f"'{title}' at its place")


def take_picture(path):
    """A picture of the whole screen."""
    subprocess.run(["grim", str(path)], check=True, timeout=60)


def colour_of(point):
    """Red, green and blue of one point of the screen."""
    picture = subprocess.run(["grim", "-t", "ppm", "-g", "{},{} 1x1".format(*point), "-"], check=True, timeout=60,
                             stdout=subprocess.PIPE).stdout
    return tuple(picture[-3:])
