"""A cluster with Slurm on this machine, books to make on it, and what they must be like.

Environment: FOLVERO_PROGRAM, the program under test; FOLVERO_SOURCE_DIR, the source tree.
"""

import fcntl
import json
import os
import re
import secrets
import shutil
import socket
import struct
import subprocess
import sys
import tempfile
import time
from pathlib import Path

FOLVERO = os.environ["FOLVERO_PROGRAM"]
SOURCE = Path(os.environ["FOLVERO_SOURCE_DIR"])
HERE = Path(__file__).resolve().parent
PATIENCE = 300  # seconds
PATH = os.environ["PATH"] + ":/usr/sbin:/sbin"

CONFIGURATION = """\
ClusterName=books
SlurmctldHost={host}({address})
SlurmUser={user}
SlurmdUser={user}
AuthType=auth/munge
AuthInfo=socket={base}/munge/socket,cred_expire=5
CredType=cred/munge
StateSaveLocation={base}/state
SlurmdSpoolDir={base}/spool/%n
SlurmctldPidFile={base}/log/controller.pid
SlurmdPidFile={base}/log/%n.pid
SlurmctldLogFile={base}/log/controller.log
SlurmdLogFile={base}/log/%n.log
SlurmctldPort={port}
ProctrackType=proctrack/pgid
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
MpiDefault=none
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
SlurmdTimeout=6
MessageTimeout=10
KillWait=5
BatchStartTimeout=30
ReturnToService=2
SchedulerParameters=sched_interval=1,bf_interval=2
SlurmdParameters=config_overrides
"""


def eventually(condition, what):
    """What the condition returns once that is true."""
    end = time.monotonic() + PATIENCE
    while not (answer := condition()):
        if time.monotonic() > end:
            raise AssertionError(f"not within {PATIENCE} s: {what}")
        time.sleep(0.2)
    return answer


def output(*command, **options):
    """What a program prints; it must succeed."""
    result = subprocess.run(command, capture_output=True, text=True, **options)
    if result.returncode != 0:
        raise AssertionError(f"{command}: code {result.returncode}\n{result.stdout}{result.stderr}")
    return result.stdout


def switch_loopback_on():
    """In a new network namespace it is off; only root can change that."""
    get_flags, set_flags, is_up = 0x8913, 0x8914, 1
    with socket.socket(socket.AF_INET, socket.SOCK_DGRAM) as any_socket:
        request = struct.pack("16sH14x", b"lo", 0)
        flags = struct.unpack("16sH14x", fcntl.ioctl(any_socket, get_flags, request))[1]
        if not flags & is_up:
            fcntl.ioctl(any_socket, set_flags, struct.pack("16sH14x", b"lo", flags | is_up))


def free_ports(count):
    sockets = [socket.create_server(("127.0.0.1", 0)) for _ in range(count)]
    ports = [each.getsockname()[1] for each in sockets]
    for each in sockets:
        each.close()
    return ports


class Kept:
    """A program that is killed with all that it has started, see keeper.py."""

    def __init__(self, *command, **options):
        self.keeper = subprocess.Popen([sys.executable, "-B", HERE / "keeper.py", *command],
                                       stdin=subprocess.PIPE, **options)

    def kill(self):
        self.keeper.stdin.close()
        self.keeper.wait()

    def has_ended(self):
        return self.keeper.poll() is not None


class Cluster:
    """Munge, the controller of Slurm, and nodes with a processor each, as whoever calls it."""

    address = "127.0.0.1"  # of the controller

    def __init__(self, nodes):
        switch_loopback_on()
        # A socket's path must be short.
        self.base = Path(tempfile.mkdtemp(prefix="folvero-cluster-", dir="/tmp"))
        self.environment = os.environ | {"SLURM_CONF": str(self.base / "slurm.conf"), "PATH": PATH,
                                         "LC_ALL": "C.UTF-8"}
        self.programs = {}
        try:
            self.start(nodes)
        except BaseException:
            print(self.log(), file=sys.stderr)
            self.remove()
            raise

    def start(self, nodes):
        for folder in ("munge", "state", "spool", "log"):
            (self.base / folder).mkdir()
        key = self.base / "munge/key"
        key.write_bytes(secrets.token_bytes(1024))
        key.chmod(0o400)
        controller_port, *ports = free_ports(1 + len(nodes))
        host = socket.gethostname().partition(".")[0]
        user = output("id", "--user", "--name").strip()
        lines = CONFIGURATION.format(base=self.base, host=host, address=self.address, user=user,
                                     port=controller_port)
        for name, port in zip(nodes, ports):
            lines += f"NodeName={name} Port={port} CPUs=1 RealMemory=100 {self.place_of(name, host)}\n"
        lines += f"PartitionName=books Nodes={','.join(nodes)} Default=YES MaxTime=60 State=UP\n"
        (self.base / "slurm.conf").write_text(lines)
        (self.base / "cgroup.conf").write_text("CgroupPlugin=cgroup/v1\n")
        munge = [f"--{name}={self.base}/munge/{name.partition('-')[0]}"
                 for name in ("key-file", "socket", "pid-file", "seed-file", "log-file")]
        self.run("munge", "munged", "--foreground", "--force", *munge)
        eventually((self.base / "munge/socket").exists, "the socket of munge")
        self.run("controller", "slurmctld", "-D", "-c")
        for name in nodes:
            self.start_node(name)

    def place_of(self, _node, host):
        return f"NodeHostname={host} NodeAddr=127.0.0.1"

    def run(self, name, *command):
        with open(self.base / f"log/{name}.out", "ab") as log:
            self.programs[name] = Kept(*command, stdout=log, stderr=log, env=self.environment)

    def command(self, *words, env_changes=None, **options):
        return output(*words, env=self.environment | (env_changes or {}), **options)

    def start_node(self, name):
        self.run(name, "slurmd", "-D", "-N", name)
        eventually(lambda: self.is_ready(name), f"{name} is ready")

    def is_ready(self, node):
        for name in ("controller", node):
            if self.programs[name].has_ended():
                raise AssertionError(f"{name} has ended")
        result = subprocess.run(["sinfo", "--noheader", "--nodes", node, "--format=%T"],
                                capture_output=True, text=True, env=self.environment)
        return result.stdout.strip() in ("idle", "mixed", "allocated")

    def kill_node(self, name):
        """As when its power fails."""
        self.programs.pop(name).kill()

    def tasks(self, job):
        """The states of a job's tasks that have not ended, by their numbers."""
        lines = self.command("squeue", "--noheader", "--array", f"--jobs={job}",
                             "--format=%K %T %N").splitlines()
        return {int(number): state for number, *state in map(str.split, lines)}

    def ended(self, job):
        """(JobState, ExitCode) of each task of a job that has ended."""
        shown = self.command("scontrol", "--oneliner", "show", "job", job)
        return [(re.search(r"JobState=(\S+)", line)[1], re.search(r"ExitCode=(\S+)", line)[1])
                for line in shown.splitlines()]

    def log(self, *others):
        """The ends of all logs, and of others."""
        return "\n".join(f"== {file.name}\n{file.read_text(errors='replace')[-3000:]}"
                         for file in sorted([*self.base.glob("log/*.log"), *others]))

    def remove(self):
        for program in reversed(list(self.programs.values())):
            program.kill()
        shutil.rmtree(self.base)


def make_pdfs(count, folder, most_pages):
    output(sys.executable, "-B", SOURCE / "bench/library-pdfs.py", str(count), folder, str(most_pages))


def pages_of(pdf):
    return pdf.read_bytes().count(b"/Type /Page ")


def is_whole_picture(path):
    content = path.read_bytes()
    return (content.startswith(b"\x89PNG") and content.endswith(b"IEND\xaeB`\x82")
            or content.startswith(b"\xff\xd8") and content.endswith(b"\xff\xd9"))


def check_book(test, folder, pages, properties):
    """Fails unless a book is there and whole, and has the template's properties."""
    test.assertTrue((folder / "index.html").read_text().rstrip().endswith("</html>"), folder)
    configuration = json.loads(output(FOLVERO, "decode", "--json", folder))["SlidePowerPoint"]
    test.assertLessEqual(properties.items(), configuration["Properties"].items(), folder)
    listed = configuration["Ppts"]["Ppt"]
    listed = listed if isinstance(listed, list) else [listed]
    test.assertEqual(len(listed), pages, folder)
    for page in listed:
        for kind in ("Normal", "Thumb"):
            test.assertTrue(is_whole_picture(folder / "files" / page[kind]["ImgPath"]), folder)


def state_of(folder):
    """Time and size of each file of a book or a library."""
    return {str(path.relative_to(folder)): (path.stat().st_mtime_ns, path.stat().st_size)
            for path in folder.rglob("*") if path.is_file()}
