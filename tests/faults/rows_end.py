"""The program ends in the middle of a run, and drops on top of each other."""
import signal

from fault import Fault
from outside.waiting import wait_until
from tools import count_files

POINTS = 20


def pause_at_point(scene):
    count_files(scene, "wait")


def pause_at_third_file(scene):
    scene.point = 3
    count_files(scene, "wait")


def while_tool_waits(act):
    """The tool waits at the point until the program has ended, and then goes on."""
    def done(scene):
        scene.tool_has_come()
        act(scene)
        scene.window.wait_for_end()
        scene.let_tool_go()
    return done


def send(number):
    return while_tool_waits(lambda scene: scene.window.process.send_signal(number))


close = while_tool_waits(lambda scene: scene.window.ask_to_close())
cut_off = while_tool_waits(lambda scene: scene.window.dropper.cut_off(scene.window.number))


def tool_back(scene):
    scene.tool_back()


def series(scene):
    return sorted(scene.study.folder.iterdir())


def drop_others(scene):
    """Each further folder as a drop of its own, at once."""
    for folder in series(scene)[1:]:
        scene.window.drop(folder)
    all_runs_have_ended(scene)


def drop_again(scene):
    scene.window.drop(scene.study.folder)
    all_runs_have_ended(scene)


def all_runs_have_ended(scene):
    """The controls come back at the end of the first run."""
    description = scene.window.named["Drop area"]
    wait_until(lambda: "Working" not in description.description and not scene.tools_at_work(),
               "the end of all runs", 60)


def at_points(name, during):
    return Fault(f"{name}, at {POINTS} points of a run", pause_at_point, during=during, remove=tool_back,
                 ends="program", shape=(4, 5), points=POINTS)


ENDS = [
    at_points("the program gets SIGTERM", send(signal.SIGTERM)),
    at_points("the program gets SIGHUP", send(signal.SIGHUP)),
    at_points("the session ends: the screen cuts the connection", cut_off),
    at_points("the user closes the window", close),
    Fault("the program gets SIGTERM at the third of six files", pause_at_third_file, during=send(signal.SIGTERM),
          remove=tool_back, ends="program", quick=True),
    Fault("the user closes the window at the third of six files", pause_at_third_file, during=close,
          remove=tool_back, ends="program", quick=True),
]
DROPS = [
    Fault("two drops at once, of a folder each", drop=lambda scene: series(scene)[:1], during=drop_others,
          quick=True, steady=False),
    Fault("ten drops at once, of a folder each", drop=lambda scene: series(scene)[:1], during=drop_others,
          shape=(10, 2), steady=False),
    Fault("two drops at once, of the same folder", during=drop_again, steady=False),
]
