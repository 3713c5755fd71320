"""Faults of disks, folders and files."""
import contextlib
import os
import shutil
import stat

from fault import Fault
from tools import count_files

THIRD = "image 3.dcm"
SCRIPT_AND_OUTPUT = 8  # KB that a run needs in a folder beside the files


def small_disk(scene, spare):
    """The study on a disk that has room for its files and so many KB."""
    held = sum((path.stat().st_size + 4095) // 4096 * 4 for path in scene.study.folder.rglob("*") if path.is_file())
    scene.disk(scene.study.folder, held + spare)


def full_disk(scene, place):
    """A disk at the folder on which nothing more can be written."""
    scene.disk(place, 64)
    filler = os.open(place / "filler", os.O_WRONLY | os.O_CREAT)
    with contextlib.suppress(OSError):
        while True:
            os.write(filler, bytes(4096))
    os.close(filler)


def more_room(scene):
    for place in scene.mounts:
        (place / "filler").unlink(missing_ok=True)
        scene.remount(place, "size=64m")


def pause_at_second_file(scene):
    scene.point = 2
    count_files(scene, "wait")


def swap(change):
    """Changes the third file, or the folder, while the tool is at the second file there."""
    def swapped(scene):
        change(scene.tool_has_come())
        scene.let_tool_go()
    return swapped


def remove_third(folder):
    (folder / THIRD).unlink()


def third_to_link(folder):
    kept = folder.parent.parent / "somewhere else.dcm"
    (folder / THIRD).rename(kept)
    (folder / THIRD).symlink_to(kept)


def third_to_device(folder):
    (folder / THIRD).unlink()
    os.mknod(folder / THIRD, 0o666 | stat.S_IFCHR, os.makedev(1, 3))


def third_to_pipe(folder):
    (folder / THIRD).unlink()
    os.mkfifo(folder / THIRD)


def remove_folder(folder):
    shutil.rmtree(folder)


def rename_folder(folder):
    folder.rename(folder.with_name("renamed"))


def protect(mode, *numbers):
    return lambda scene: [scene.study.path(number).chmod(mode) for number in numbers]


def mode_of_first_folder(mode):
    return lambda scene: scene.study.path(0).parent.chmod(mode)


def name_back(scene):
    shutil.rmtree(scene.study.folder / "renamed")  # the study is put right by copies
    scene.tool_back()


def tool_back(scene):
    scene.tool_back()


def mounted(options):
    def mount(scene):
        scene.disk(scene.study.folder, 8192)
        scene.remount(scene.study.folder, options)
    return mount


def remounted(options):
    return lambda scene: scene.remount(scene.study.folder, options)


ROWS = [
    Fault("the disk fills while the tool rewrites the first file",
          lambda scene: small_disk(scene, SCRIPT_AND_OUTPUT + 8), remove=more_room, quick=True),
    Fault("the disk fills while the tool rewrites the third file",
          lambda scene: small_disk(scene, SCRIPT_AND_OUTPUT + 68), remove=more_room),
    Fault("the disk is full when the script is written", lambda scene: small_disk(scene, 0), remove=more_room,
          quick=True),
    Fault("the folder may not be written to (mode 0555)", mode_of_first_folder(0o555),
          remove=mode_of_first_folder(0o755), quick=True),
    Fault("the folder may not be read (mode 0000)", mode_of_first_folder(0), remove=mode_of_first_folder(0o755)),
    Fault("the folder's disk is mounted read-only", mounted("ro"), remove=remounted("rw")),
    Fault("the folder's disk is mounted noexec", mounted("noexec"), remove=remounted("exec"), quick=True),
    Fault("the folder is deleted during the run", pause_at_second_file, during=swap(remove_folder),
          remove=tool_back, may_lose=True, quick=True),
    Fault("the folder is renamed during the run", pause_at_second_file, during=swap(rename_folder),
          remove=name_back, may_lose=True),
    Fault("files are write-protected (mode 0444)", protect(0o444, 0, 4), remove=protect(0o644, 0, 4)),
    Fault("files may not be read (mode 0000)", protect(0, 0, 4), remove=protect(0o644, 0, 4)),
    Fault("a file is deleted during the run", pause_at_second_file, during=swap(remove_third), remove=tool_back,
          may_lose=True),
    Fault("a file is replaced by a link during the run", pause_at_second_file, during=swap(third_to_link),
          remove=tool_back, may_lose=True),
    Fault("a file is replaced by a device during the run", pause_at_second_file, during=swap(third_to_device),
          remove=tool_back, may_lose=True),
    Fault("a file is replaced by a pipe during the run", pause_at_second_file, during=swap(third_to_pipe),
          remove=tool_back, may_lose=True, ends="never"),
]
