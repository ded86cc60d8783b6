#!/usr/bin/env python3
"""Makes a library with Slurm on two nodes that are as separate as network, process and host name spaces make them, cuts
one off for a minute in the middle, and prints what came of it.

    two-machines.py PROGRAM FOLDER [BOOKS [SHARDS]]

Needs root, iproute2, and the packages of the test library.slurm. FOLDER is new; books and PDFs stay there. The nodes
share the disk, so a node that is cut off goes on making books: what keeps it from making those of the other is their
leases.
"""

import json
import os
import subprocess
import sys
import time
from collections import Counter
from pathlib import Path

SOURCE = Path(__file__).resolve().parent.parent
os.environ |= {"FOLVERO_PROGRAM": str(Path(sys.argv[1]).resolve()), "FOLVERO_SOURCE_DIR": str(SOURCE)}
sys.path.insert(0, str(SOURCE / "tests/cluster"))
from support import FOLVERO, Cluster, eventually, make_pdfs, output  # noqa: E402

NETWORKS = {"n1": "10.213.1", "n2": "10.213.2"}
CUT = 60  # seconds


class TwoMachines(Cluster):
    address = f"{NETWORKS['n1']}.1"

    def place_of(self, node, _host):
        return f"NodeHostname={node} NodeAddr={NETWORKS[node]}.2"

    def run(self, name, *command):
        if name in NETWORKS:
            command = ("nsenter", f"--net=/run/netns/folvero-{name}", "unshare", "--uts", "--pid", "--fork",
                       "--mount-proc", "--kill-child", "sh", "-c", 'hostname "$0" && exec "$@"', name, *command)
        super().run(name, *command)


def ip(*words):
    output("ip", *words)


def connect():
    for node, network in NETWORKS.items():
        space, link = f"folvero-{node}", f"fol-{node}"
        ip("netns", "add", space)
        ip("link", "add", link, "type", "veth", "peer", "name", "up0", "netns", space)
        ip("address", "add", f"{network}.1/24", "dev", link)
        ip("link", "set", link, "up")
        ip("-n", space, "address", "add", f"{network}.2/24", "dev", "up0")
        for device in ("lo", "up0"):
            ip("-n", space, "link", "set", device, "up")
        ip("-n", space, "route", "add", "default", "via", f"{network}.1")


def disconnect():
    for node in NETWORKS:
        subprocess.run(["ip", "netns", "delete", f"folvero-{node}"], check=False)


def results(out):
    return [json.loads(file.read_text()) for file in out.glob(".folvero-library/results/*/*.json")]


def has_ended(cluster, job):
    """A task that comes back to the node that still remembers it is held, and the node drained, until an operator frees
    both."""
    reasons = cluster.command("squeue", "--noheader", "--array", f"--jobs={job}", "--format=%F_%K %r").splitlines()
    for task, reason in (line.split(maxsplit=1) for line in reasons):
        if reason == "launch failed requeued held":
            print(f"released: task {task}", flush=True)
            cluster.command("scontrol", "update", "NodeName=n1", "State=RESUME")
            cluster.command("scontrol", "release", task)
    return not reasons


def run(cluster, folder, books, shards):
    out = folder / "site"
    make_pdfs(books, folder / "scans", 40)
    script = output(FOLVERO, "library", "sbatch", folder / "scans/list.csv", out, "--shards", str(shards))
    start = time.monotonic()

    def report(what):
        print(f"{time.monotonic() - start:6.1f} s  {len(results(out)):4} books  {what}", flush=True)

    job = cluster.command("sbatch", "--parsable", input=script, cwd="/").strip()
    eventually(lambda: len(results(out)) > books // 5, "a fifth of the books")
    report("n1 is cut off")
    ip("link", "set", "fol-n1", "down")
    eventually(lambda: "n1" not in str(cluster.tasks(job)), "the cut is noticed")
    report("Slurm takes n1 for dead and queues its task again")
    time.sleep(max(0.0, CUT - 10))
    ip("link", "set", "fol-n1", "up")
    report("n1 is connected again")
    eventually(lambda: has_ended(cluster, job), "the job has ended")
    report(f"the job has ended: {Counter(cluster.ended(job))}")
    print("made by", dict(Counter(result["host"] for result in results(out))))
    print(output(FOLVERO, "library", "status", out))


def main():
    folder = Path(sys.argv[2]).resolve()
    books, shards = [int(word) for word in (*sys.argv[3:], *("120", "6")[len(sys.argv) - 3:])]
    folder.mkdir()
    try:
        connect()
        cluster = TwoMachines(list(NETWORKS))
        try:
            run(cluster, folder, books, shards)
        except AssertionError:
            print(cluster.command("squeue"), cluster.command("sinfo"), cluster.log())
            raise
        finally:
            cluster.remove()
    finally:
        disconnect()


if __name__ == "__main__":
    main()
