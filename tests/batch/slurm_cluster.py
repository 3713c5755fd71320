"""Slurm on this machine alone, under a folder, as long as a test needs it. Its daemons want to be root."""

import contextlib
import os
import pathlib
import socket
import subprocess
import time

CONFIGURATION = """\
ClusterName=here
SlurmctldHost={host}(127.0.0.1)
SlurmctldPort={controller_port}
SlurmdPort={node_port}
AuthType=auth/munge
AuthInfo=socket={folder}/munge.socket
CredType=cred/munge
SlurmUser=root
SlurmctldPidFile={folder}/slurmctld.pid
SlurmdPidFile={folder}/slurmd.pid
SlurmctldLogFile={folder}/slurmctld.log
SlurmdLogFile={folder}/slurmd.log
StateSaveLocation={folder}/state
SlurmdSpoolDir={folder}/spool
ProctrackType=proctrack/pgid
TaskPlugin=task/none
MpiDefault=none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
ReturnToService=2
SlurmdParameters=config_overrides
SchedulerParameters=sched_min_interval=100000,batch_sched_delay=0
NodeName={host} NodeAddr=127.0.0.1 CPUs=4 RealMemory=4000 State=UNKNOWN
PartitionName=all Nodes=ALL Default=YES MaxTime=INFINITE State=UP
"""


def free_port():
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def is_ready(environment):
    state = subprocess.run(["sinfo", "-h", "-o", "%T"], env=environment, capture_output=True, text=True, check=False)
    return state.stdout.strip() == "idle"


@contextlib.contextmanager
def slurm(folder):
    """Gives the environment that Slurm's commands need, with at most four processors in use at once."""
    folder = pathlib.Path(folder)
    for name in ("state", "spool"):
        (folder / name).mkdir(parents=True)
    key = folder / "munge.key"
    key.write_bytes(os.urandom(1024))
    key.chmod(0o600)
    configuration = folder / "slurm.conf"
    configuration.write_text(CONFIGURATION.format(folder=folder, host=socket.gethostname().split(".")[0],
                                                  controller_port=free_port(), node_port=free_port()), encoding="ascii")
    environment = {**os.environ, "SLURM_CONF": str(configuration)}
    words = [["munged", "--foreground", "--force", f"--key-file={key}", f"--socket={folder}/munge.socket",
              f"--pid-file={folder}/munged.pid", f"--log-file={folder}/munged.log", f"--seed-file={folder}/munge.seed"],
             ["slurmctld", "-D"], ["slurmd", "-D"]]
    with contextlib.ExitStack() as daemons, open(folder / "daemons.log", "wb") as log:
        for command in words:
            started = daemons.enter_context(subprocess.Popen(command, env=environment, stdout=log, stderr=log))
            daemons.callback(started.terminate)
            time.sleep(0.3)
        until = time.monotonic() + 60
        while not is_ready(environment):
            assert time.monotonic() < until, (folder / "slurmctld.log").read_text(errors="replace")
            time.sleep(0.2)
        yield environment
