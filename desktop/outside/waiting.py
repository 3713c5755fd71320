"""Waiting for what is going to be true."""
import time


class Failure(AssertionError):
    """Something that was expected of the program did not happen; the text is meant for a person."""


def wait_until(condition, what, seconds=30):
    """Returns the first true value of condition(), or fails with a text that begins with `what`."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise Failure(f"waited {seconds} s in vain: {what}")
        time.sleep(0.05)


def arrives(condition, seconds):
    """The first true value of condition() within that time, else False."""
    try:
        return wait_until(condition, "", seconds)
    except Failure:
        return False
