"""What a row of the bench says, and how it is tried."""
import tempfile
import traceback
from dataclasses import dataclass
from typing import Callable

from outside import reader
from outside.waiting import Failure
from scene import Scene, Seen
from study import losses

USUAL = "Done!"
NEW_ROOT = "2.25.314159265358979323846264338327"


def nothing(_scene):
    pass


@dataclass(frozen=True)
class Fault:
    """One row. The functions get the scene, in this order: prepare, ready, during, remove."""
    name: str
    prepare: Callable = nothing  # before the program starts
    ready: Callable = nothing  # when its window is there
    during: Callable = nothing  # when the run has begun
    remove: Callable = nothing  # before the next run
    drop: Callable = lambda scene: [scene.study.folder]
    quick: bool = False
    ends: str = "run"  # "run": the run ends; "never": the user closes the window; "program": the program ends
    starter: tuple = ()
    shape: tuple = (2, 3)  # folders, files in each
    may_lose: bool = False  # the fault itself takes files away
    points: int = 1  # how often it is tried, each time at another point of the run, scene.point
    starts: bool = True  # the program is started by the bench; else by `ready`
    overwrites: bool = False  # a run makes no backups
    table: bool = False  # a run uses a look-up table, too
    closes: bool = False  # the user closes the window while the fault is there
    steady: bool = True  # what comes of it is the same each time
    check: Callable = lambda _scene: []  # what else is wrong, as texts
    usual: str = USUAL  # the status at the end of the next run
    usual_state: str = "changed whole"  # the files' state then


def try_at(fault, point, executable, pool):
    seen = Seen()
    with Scene(tempfile.mkdtemp(prefix="fault-"), executable, pool, *fault.shape) as scene:
        scene.point = point
        try:
            have_fault(fault, scene, seen)
            run_again(fault, scene, seen)
        except Exception as failure:  # whatever it is, the other rows are tried
            seen.wrong.append(scene.plain(f"{failure!r} at {traceback.extract_tb(failure.__traceback__)[-1]}"))
    return seen


def have_fault(fault, scene, seen):
    scene.overwrites = fault.overwrites
    if fault.table:
        scene.use_table()
    fault.prepare(scene)
    if fault.starts:
        scene.start(fault.starter)
    fault.ready(scene)
    scene.drop(*fault.drop(scene))
    fault.during(scene)
    {"run": see_end, "never": see_no_end, "program": see_program_end}[fault.ends](fault, scene, seen)
    if fault.closes:
        reader.fill(scene.window, "UID root", NEW_ROOT)
        close(scene, seen)
        scene.look_at_log(seen)
    states = scene.look_at_files(seen)
    if fault.closes:
        seen.files += "; settings: " + scene.settings_now(NEW_ROOT)
    seen.wrong += fault.check(scene)
    if not fault.may_lose:
        seen.wrong += [f"{file} is lost" for file in losses(states)]


def see_end(fault, scene, seen):
    if not scene.wait_for_end():
        seen.wrong.append("the run does not end")
    scene.look_at_window(seen)
    seen.wrong += [f"'{name}' stays switched off" for name in scene.window.switched_off()]
    scene.look_at_log(seen)


def see_no_end(_fault, scene, seen):
    if scene.wait_for_end(1.5):
        seen.wrong.append("the run has ended")
    if not scene.window.is_usable():
        seen.wrong.append("the window does not answer")
    scene.look_at_window(seen)
    seen.user.append("the window answers and can be closed")
    close(scene, seen)
    scene.look_at_log(seen)
    scene.end_tools()


def see_program_end(_fault, scene, seen):
    status = scene.window.wait_for_end()
    seen.user.append("the program ends" if status == 0 else f"the program ends, status {status}")
    scene.look_at_log(seen)
    scene.tools_have_ended()


def close(scene, seen):
    status = scene.window.end_by_closing()
    if status != 0:
        seen.wrong.append(f"the exit status is {status}")


def run_again(fault, scene, seen):
    """The next run, with the fault gone and the files put right."""
    fault.remove(scene)
    if fault.closes:
        scene.prepare_home()
    scene.study.put_right()
    if scene.window.process.poll() is not None:
        scene.start()
    for question in scene.window.application.questions():
        raise Failure(f"a question is still up: {question}")
    scene.drop(scene.study.folder)
    if not scene.wait_for_end():
        raise Failure("the next run does not end")
    status = scene.window.status.strip()
    states = scene.study.states(scene.changed)
    unchanged = [file for file, (state, _) in states.items() if state != fault.usual_state]
    seen.following = "as ever"
    if status != fault.usual or unchanged:
        seen.following = f"{status}; not changed: {unchanged}"
        seen.wrong.append("the next run is not as ever: " + seen.following)
    close(scene, seen)
