"""Faults of the tools that the program calls."""
from fault import Fault
from tools import FLOODING, HANGING, IN_A_CALL, NO_UTF8, count_files, set_point


def tool(scene):
    return scene.executable.parent / "resources/dcmodify"


def take_tool_away(scene):
    scene.own_program()
    tool(scene).rename(tool(scene).with_name("real-dcmodify"))


def forbid_tool(scene):
    resources = scene.own_program()
    content = tool(scene).read_bytes()
    tool(scene).rename(resources / "real-dcmodify")
    tool(scene).write_bytes(content)
    tool(scene).chmod(0o644)


def use(text):
    return lambda scene: scene.replace_tool(text)


def kill_in_a_call(scene):
    scene.replace_tool(IN_A_CALL)
    set_point(scene, scene.point)


def take_dictionary_away(scene):
    scene.own_program()
    dictionary = tool(scene).with_name("dicom.dic")
    dictionary.rename(dictionary.with_name("real-dicom.dic"))


def dictionary_back(scene):
    scene.tool_back("dicom.dic")


def tool_back(scene):
    scene.tool_back()


ROWS = [
    Fault("the tool is missing", take_tool_away, remove=tool_back, quick=True),
    Fault("the tool may not be executed", forbid_tool, remove=tool_back),
    Fault("the tool is killed between two files, at 20 points", lambda scene: count_files(scene, "kill"),
          remove=tool_back, shape=(4, 5), points=20),
    Fault("the tool is killed before the third of six files", lambda scene: (setattr(scene, "point", 3),
          count_files(scene, "kill")), remove=tool_back, quick=True),
    Fault("the tool is killed in a call of the system that changes a file, at 20 points", kill_in_a_call,
          remove=tool_back, points=20),
    # the tool itself then writes over the only copy
    Fault("the same without backups, at 20 points", kill_in_a_call, remove=tool_back, points=20, overwrites=True,
          may_lose=True),
    Fault("the tool hangs", use(HANGING), remove=tool_back, ends="never", quick=True),
    Fault("the tool prints 60 MB for each folder", use(FLOODING), remove=tool_back),
    Fault("the tool prints what is no UTF-8", use(NO_UTF8), remove=tool_back, quick=True),
    Fault("the dictionary is missing", take_dictionary_away, remove=dictionary_back, quick=True),
]
