"""All rows of the bench."""
import rows_disk
import rows_end
import rows_home
import rows_system
import rows_tool
from fault import Fault, try_at

LEARN = Fault("nothing goes wrong", quick=True)
GROUPS = {
    "For comparison": [LEARN], "The tools": rows_tool.ROWS, "Disks, folders and files": rows_disk.ROWS,
    "The system": rows_system.ROWS, "Home, settings, tables": rows_home.ROWS, "The end in a run": rows_end.ENDS,
    "Drops on top of each other": rows_end.DROPS,
}
BY_NAME = {fault.name: fault for rows in GROUPS.values() for fault in rows}


def try_named(name, point, executable, pool):
    """For a process that knows the row by its name only: functions cannot be sent to it."""
    return try_at(BY_NAME[name], point, executable, pool)
