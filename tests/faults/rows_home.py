"""Faults of the user's folders, settings and tables."""
import os
import pathlib
import pwd
import shutil
import socket

from fault import NEW_ROOT, Fault
from outside.program import Home
from rows_disk import full_disk, more_room
from scene import TABLE_FILE
from window import WITHOUT_RIGHTS

NO_FOLDERS = {b"XDG_CONFIG_HOME": None, b"XDG_DATA_HOME": None, b"XDG_CACHE_HOME": None}
CONSTRUCTED = "Done constructing LUT. File placed on Desktop."
# the folder of the account, under which the program looks when HOME is not set, is a folder of the bench
INSTEAD_OF_HOME = ("unshare", "--mount", "sh", "-c", 'mount --bind "$0" "$1" && shift && exec "$@"')


def configuration_beside_program(scene):
    scene.own_program()
    source = scene.home.configurations / "AnonymizationConfiguration_Test.txt"
    shutil.copy(source, scene.executable.parent)


def start_without_home(scene):
    account = pwd.getpwuid(os.getuid()).pw_dir
    scene.start((*INSTEAD_OF_HOME, str(scene.home.folder), account), NO_FOLDERS | {b"HOME": None})


def start_with_missing_home(scene):
    scene.start(changes=NO_FOLDERS | {b"HOME": os.fsencode(scene.folder / "nowhere/at all")})


def home_no_utf8(scene):
    """The home moves into a folder whose name is no UTF-8."""
    place = pathlib.Path(os.fsdecode(os.fsencode(scene.folder) + b"/h\xf4me"))
    scene.home.folder.rename(place)
    scene.home = Home(place)


def home_back(scene):
    place = scene.folder / "home"
    scene.home.folder.rename(place)
    scene.home = Home(place)


def home_read_only(scene):
    for folder in (scene.home.folder, *(path for path in scene.home.folder.rglob("*") if path.is_dir())):
        folder.chmod(0o555)


def home_writable(scene):
    for folder in (scene.home.folder, *(path for path in scene.home.folder.rglob("*") if path.is_dir())):
        folder.chmod(0o755)


def damage_settings(scene):
    scene.home.settings.write_bytes(b"[General\x00\xff\xfe\nuidRoot\x00=" + bytes(range(256)) * 20)


def lock_settings(scene):
    """As another program that has them open for long, and still runs."""
    other = scene.help_with(*WITHOUT_RIGHTS, "sleep", "600").pid
    lock = scene.home.settings.with_name(scene.home.settings.name + ".lock")
    lock.write_text(f"{other}\nsleep\n{socket.gethostname()}\n", encoding="ascii")


def unlock_settings(scene):
    scene.home.settings.with_name(scene.home.settings.name + ".lock").unlink(missing_ok=True)


def settings_to_pipe(scene):
    scene.home.settings.unlink()
    os.mkfifo(scene.home.settings)


def settings_to_folder(scene):
    scene.home.settings.unlink()
    scene.home.settings.mkdir()


def new_settings(scene):
    if scene.home.settings.is_dir():
        scene.home.settings.rmdir()
    else:
        scene.home.settings.unlink(missing_ok=True)


def settings_are_whole(scene):
    stored = scene.settings_now(NEW_ROOT)
    return [] if stored in ("the old root", "the new root") else [f"the settings: {stored}"]


def construct_on_full_disk(scene):
    scene.construct_table()
    full_disk(scene, scene.home.desktop)


def no_half_table(scene):
    return [f"a table was left: {path.name}" for path in scene.home.desktop.glob("AnonymizationLUT*")]


def room_and_no_table(scene):
    more_room(scene)
    (scene.home.desktop / TABLE_FILE).unlink(missing_ok=True)


def full_settings_disk(scene):
    full_disk(scene, scene.home.settings.parent)


ROWS = [
    Fault("HOME is not set", configuration_beside_program, ready=start_without_home, starts=False, closes=True),
    Fault("HOME names no folder", configuration_beside_program, ready=start_with_missing_home, starts=False,
          closes=True, quick=True),
    Fault("HOME is no UTF-8", home_no_utf8, remove=home_back, closes=True, check=settings_are_whole),
    Fault("HOME may not be written to (mode 0555)", home_read_only, remove=home_writable, closes=True,
          check=settings_are_whole),
    Fault("the settings are damaged", damage_settings, closes=True, quick=True),
    Fault("the settings are locked by another program", lock_settings, remove=unlock_settings, closes=True),
    Fault("the settings may not be read (mode 0000)", lambda scene: scene.home.settings.chmod(0),
          remove=lambda scene: scene.home.settings.chmod(0o644), closes=True),
    Fault("the settings are a pipe", settings_to_pipe, remove=new_settings, closes=True, quick=True),
    Fault("the settings are a folder", settings_to_folder, remove=new_settings, closes=True),
    Fault("the disk is full when the settings are written", full_settings_disk, remove=more_room, closes=True,
          check=settings_are_whole),
    Fault("the disk is full when a constructed table is written", construct_on_full_disk, check=no_half_table,
          remove=room_and_no_table, usual=CONSTRUCTED, usual_state="as it was", quick=True),
]
