"""The mouse and the keyboard of the screen."""
import subprocess
import time


def tell(*words):
    subprocess.run(["xdotool", *map(str, words)], check=True, timeout=30)


def click(point):
    tell("mousemove", *point)
    time.sleep(0.05)
    tell("click", 1)


def press_key(key):
    tell("key", "--clearmodifiers", key)


def type_text(text):
    if text:
        tell("type", "--clearmodifiers", "--delay", 8, "--", text)


def drag(start, target, hovering=lambda: None):
    """Presses at start, moves as a hand does and releases over target; both are points of the screen.

    hovering() is called over the target, before the button is released.
    """
    tell("mousemove", *start)
    time.sleep(0.05)
    tell("mousedown", 1)
    time.sleep(0.15)
    for step in range(1, 7):
        tell("mousemove", start[0] + 5 * step, start[1] + 2 * step)
        time.sleep(0.01)
    time.sleep(0.1)
    begin = (start[0] + 30, start[1] + 12)
    for step in range(1, 21):
        tell("mousemove", *(round(a + (b - a) * step / 20) for a, b in zip(begin, target)))
        time.sleep(0.02)
    for shift in (1, 2, 1, 0):
        tell("mousemove", target[0] + shift, target[1] + shift)
        time.sleep(0.05)
    time.sleep(0.25)
    try:
        hovering()
    finally:
        tell("mouseup", 1)
