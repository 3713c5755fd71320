"""Faults of the system: too few handles, threads, processes, too little memory."""
import os
import pathlib
import subprocess

from fault import Fault
from outside import reader
from outside.waiting import wait_until
from tools import FLOODING, count_files

WITH_TABLE = "Done!\nLUT tag propagated to 6 files.\nSkipped 0 DICOM files."
MEGABYTE = 1 << 20
FORKS = "clone,clone3,fork,vfork"


def limit(scene, what, value):
    subprocess.run(["prlimit", f"--pid={scene.window.process.pid}", f"--{what}={value}:"], check=True)


def leave_handles(number):
    def leave(scene):
        used = set(map(int, os.listdir(f"/proc/{scene.window.process.pid}/fd")))
        free = [one for one in range(1024) if one not in used]
        limit(scene, "nofile", free[number])
    return leave


def handles_back(scene):
    if scene.window.process.poll() is None:
        limit(scene, "nofile", 1024)


def leave_memory(megabytes):
    def leave(scene):
        status = pathlib.Path(f"/proc/{scene.window.process.pid}/status").read_text(encoding="ascii")
        used = int(status.split("VmSize:")[1].split()[0]) * 1024
        limit(scene, "as", used + megabytes * MEGABYTE)
    return leave


def memory_back(scene):
    if scene.window.process.poll() is None:
        limit(scene, "as", "unlimited")


def flood(scene):
    scene.replace_tool(FLOODING)


def memory_and_tool_back(scene):
    memory_back(scene)
    scene.tool_back()


def pause_at_first_file(scene):
    count_files(scene, "wait")


def forbid_processes(scene):
    """From now on the program's threads can start neither a process nor a thread."""
    scene.tool_has_come()
    number = scene.window.process.pid
    scene.help_with("strace", "-qq", "-f", "-o", "/dev/null", "-e", "trace=" + FORKS,
                    "-e", f"inject={FORKS}:error=EAGAIN", "-p", number)
    wait_until(lambda: all_watched(number), "every thread watched")
    scene.let_tool_go()


def forbid_pipes(scene):
    """From now on the program's threads cannot make a pipe. Those that Qt makes are of another kind."""
    number = scene.window.process.pid
    scene.help_with("strace", "-qq", "-f", "-o", "/dev/null", "-e", "trace=pipe2", "-e", "inject=pipe2:error=EMFILE",
                    "-p", number)
    wait_until(lambda: all_watched(number), "every thread watched")


def all_watched(number):
    return all("TracerPid:\t0\n" not in (task / "status").read_text(encoding="ascii")
               for task in pathlib.Path(f"/proc/{number}/task").iterdir())


def answer_out_of_handles(scene):
    reader.answer(scene.window, "Ran out of file handles!", "OK")


def processes_back(scene):
    for helper in scene.helpers:
        helper.terminate()
        helper.wait()
    scene.tool_back()


ROWS = [
    Fault("no file handle is left", ready=leave_handles(0), remove=handles_back, quick=True),
    Fault("no file handle is left, and a table is used", ready=leave_handles(0), remove=handles_back, table=True,
          usual=WITH_TABLE),
    Fault("12 file handles are left, and a table is used", ready=leave_handles(12), remove=handles_back,
          table=True, usual=WITH_TABLE),
    Fault("no pipe can be made for a table's use, and \"Ran out of file handles!\" is answered with OK",
          ready=forbid_pipes, during=answer_out_of_handles, ends="program", table=True, usual=WITH_TABLE),
    # what else finds no memory is not the same each time
    Fault("no memory is left for a thread", ready=leave_memory(7), remove=memory_back, quick=True, steady=False),
    Fault("no process can be started from the second folder on", pause_at_first_file, during=forbid_processes,
          remove=processes_back),
    Fault("60 MB of output for each folder, and memory for 40 MB", flood, ready=leave_memory(40),
          remove=memory_and_tool_back),
]
