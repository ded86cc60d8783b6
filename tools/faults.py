#!/usr/bin/env python3
"""Injects faults into `folvero publish` at single system calls and checks what becomes of the book.

    tools/faults.py                           # a sample of all points, in three minutes
    tools/faults.py --long                    # every point of every pair of kinds of books
    tools/faults.py --only kill --pair web:sample --program build/release/bin/folvero

A book of one kind is published over one of another kind. strace lists the system calls by which the program changes
folders during its commit; then the same is done once for each of them, with a fault at that call. A table shows how
often the result was wrong, in one row for each experiment:

    kill        the program is killed before the call. The folder must have either edition whole, and after the
                next publish no file of the other one.
    power       the program and its guard are killed, as when the power fails. The next publish must find its way.
    exchange    as kill, on a file system that can't exchange two names
    links       as kill, on a file system without hard links
    inplace     as kill, with a file in "files" that can be neither linked nor copied
    flush       no fault: what is exchanged must be on the disk before, and the exchange before the run ends
    vanish      the output folder is renamed before the call: an error (exit code 75), and no path printed
    intrude     somebody puts a file into the folder "files" before the call: it must stay, also when the program and
                its guard are killed there

The exit code is 1 when any result was wrong. Needs strace, and the samples of a build.
"""

import argparse
import contextlib
import ctypes
import hashlib
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
CALLS = ("rename,renameat,renameat2,link,linkat,symlink,symlinkat,mkdir,mkdirat,unlink,unlinkat,rmdir,"
         "fsync,fdatasync,syncfs")
KINDS = {
    "classic": ["--type", "html"],
    "web": ["--type", "web"],
    "single": ["--type", "web", "--single-file"],
    "app": ["--type", "app", "--name", "Book"],
    "sample": ["--type", "web", "--preview-pages", "1"],
}
# A short run kills in all of these, and makes the other experiments with the first two.
SHORT_PAIRS = ["web:sample", "app:app", "classic:web", "web:single"]
PR_SET_CHILD_SUBREAPER = 36


class Fault:
    """A system call of the run, and what happens there."""

    def __init__(self, call, number, line):
        self.call, self.number, self.line = call, number, line

    def __str__(self):
        return f"{self.call} {self.number}: {self.line}"


class Bench:
    """Two editions of a book and the folder in which one replaces the other."""

    def __init__(self, program, samples, work, pair):
        self.program, self.work = program, work
        self.has_pipe = False
        self.old, self.new = pair.split(":")
        self.documents = {"old": samples / "links.pdf", "new": samples / "outline.pdf"}
        self.book = work / "book"
        self.original = work / "original"
        self.reset(None)
        self.publish("old", self.old, check=True)
        self.old_files = files_of(self.book)
        shutil.rmtree(self.original, ignore_errors=True)
        shutil.copytree(self.book, self.original, symlinks=True)
        self.publish("new", self.new, check=True)
        self.new_files = files_of(self.book)

    def reset(self, edition):
        shutil.rmtree(self.book, ignore_errors=True)
        if edition:
            shutil.copytree(edition, self.book, symlinks=True)
        if edition and self.has_pipe:
            os.mkfifo(next(self.book.rglob("files")) / "pipe")

    def command(self, edition, kind):
        pages = "1-2" if edition == "new" else "1-3"
        return [str(self.program), "publish", "--quiet", "--pages", pages, "--title", edition, *KINDS[kind],
                str(self.documents[edition]), str(self.book)]

    def publish(self, edition, kind, check=False):
        result = subprocess.run(self.command(edition, kind), capture_output=True, text=True)
        if check and result.returncode != 0:
            sys.exit(f"faults.py: {result.stderr}")
        return result

    def strace(self, options, log):
        """Publishes the new edition over the old one under strace; only the thread that commits is traced."""
        self.reset(self.original)
        return subprocess.Popen(["strace", "-qq", "-o", str(log), *options, *self.command("new", self.new)],
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)

    def points(self, options, is_long):
        """The calls from the beginning of the commit on. Of many of a kind in a row, a short run takes three."""
        log = self.work / "calls"
        finish(self.strace(["-e", f"trace={CALLS}", *options], log))
        found, counts, is_commit = [], {}, False
        for line in log.read_text(errors="replace").splitlines():
            call = re.match(r"\w+", line)
            if not call or "(" not in line:
                continue
            counts[call[0]] = counts.get(call[0], 0) + 1
            # Either is the first that a commit does.
            is_commit = is_commit or '"swap"' in line or call[0] == "syncfs"
            if is_commit and "/Lumivex/" not in line:
                found.append(Fault(call[0], counts[call[0]], line))
        return found if is_long else thinned(found)


def thinned(points):
    runs = []
    for point in points:
        if runs and runs[-1][0].call == point.call:
            runs[-1].append(point)
        else:
            runs.append([point])
    kept = []
    for run in runs:
        kept += run if len(run) < 4 else [run[0], run[len(run) // 2], run[-1]]
    return kept


def files_of(folder):
    """Digests of all files by path; hidden ones beside the book, such as its stamp, are not part of it."""
    found = {}
    for path in sorted(folder.rglob("*")):
        name = path.relative_to(folder).as_posix()
        if not name.startswith(".") and (path.is_file() or path.is_symlink()):
            found[name] = hashlib.sha256(path.read_bytes()).hexdigest()
    return found


def leftovers_in(folder):
    return [name for name in os.listdir(folder) if "folvero-" in name]


def finish(process):
    """Waits for a process, and for those that it left behind: they become our children."""
    output, errors = process.communicate()
    while True:
        try:
            os.waitpid(-1, 0)
        except ChildProcessError:
            return process.returncode, output, errors


def check_editions(bench):
    """What is wrong with the folder after a run that was ended: a set of names of faults."""
    wrong = set()
    if files_of(bench.book) not in (bench.old_files, bench.new_files):
        wrong.add("mixtures")
    return wrong | check_next(bench)


def check_next(bench):
    result = bench.publish("new", bench.new)
    if result.returncode != 0:
        return {"next run failed"}
    if files_of(bench.book) != bench.new_files or leftovers_in(bench.book):
        return {"left behind"}
    return set()


def kill_at(bench, point, options=()):
    finish(bench.strace([*options, "-e", f"trace={CALLS}", "-e",
                         f"inject={point.call}:signal=SIGKILL:when={point.number}"], bench.work / "log"))
    return check_editions(bench)


def children_of(process):
    text = Path(f"/proc/{process}/task/{process}/children").read_text()
    return [int(child) for child in text.split()]


def stop_at(bench, point, while_stopped):
    """Stops the program before a call, calls a function with its process ID, and lets it go on."""
    log = bench.work / "log"
    log.unlink(missing_ok=True)
    strace = bench.strace(["-e", f"trace={CALLS}", "-e", f"inject={point.call}:signal=SIGSTOP:when={point.number}"],
                          log)
    while not (log.exists() and "stopped by SIGSTOP" in log.read_text(errors="replace")):
        if strace.poll() is not None:
            break  # the call did not come
        time.sleep(0.005)
    for process in children_of(strace.pid) if strace.poll() is None else []:
        while_stopped(process)
        with contextlib.suppress(ProcessLookupError):
            os.kill(process, signal.SIGCONT)
    return finish(strace)


def cut_power_at(bench, point):
    def kill_all(process):
        for victim in [*children_of(process), process]:
            os.kill(victim, signal.SIGKILL)
    stop_at(bench, point, kill_all)
    return check_next(bench)


def vanish_at(bench, point):
    elsewhere = bench.work / "elsewhere"
    shutil.rmtree(elsewhere, ignore_errors=True)
    code, output, _ = stop_at(bench, point, lambda process: bench.book.rename(elsewhere))
    wrong = set()
    if code == 0 or output:
        wrong.add("exit code 0")
    elif code != 75:
        wrong.add(f"exit code {code}")
    if bench.book.exists():
        wrong.add("made anew")
    return wrong


def intrude_at(bench, point):
    wrong = set()
    # An application is replaced with all that is in it.
    for is_killed in (False, True) if bench.new != "app" else ():
        def intrude(process):
            folder = next((path for path in bench.book.rglob("files") if ".folvero" not in str(path)), bench.book)
            (folder / "theirs").write_text("theirs")
            for victim in [*children_of(process), process] if is_killed else []:
                os.kill(victim, signal.SIGKILL)
        code, _, errors = stop_at(bench, point, intrude)
        if not is_killed and code not in (0, 75):
            wrong.add(f"exit code {code}")
        if bench.publish("new", bench.new).returncode != 0:
            wrong.add("next run failed")
        found = files_of(bench.book)
        if not any(name.endswith("theirs") for name in found):
            wrong.add("file lost")
        if {name for name in found if not name.endswith("theirs")} != set(bench.new_files) or leftovers_in(bench.book):
            wrong.add("left behind")
    return wrong


def check_flush_at(bench, point):
    calls = (bench.work / "calls").read_text(errors="replace").splitlines()
    at = calls.index(point.line)
    end = next((i for i in range(at, len(calls)) if '"journal"' in calls[i]), len(calls))
    wrong = set()
    if not any(line.startswith("syncfs") for line in calls[:at]):
        wrong.add("not flushed before")
    if not any(re.match("fsync|syncfs", line) for line in calls[at:end]):
        wrong.add("not flushed after")
    return wrong


def is_exchange(point):
    return point.call in ("rename", "renameat2") and not re.search(r'\.stamp|\.part"', point.line)


def is_of_commit(point):
    """Whether the folder may still change: the stamp and the removal of the staging folder come later."""
    return point.call not in ("unlink", "unlinkat", "rmdir") and ".stamp" not in point.line


EXPERIMENTS = {
    # Name: options of strace for all of its runs, which points, what is done there
    "kill": ([], lambda point: True, kill_at),
    "power": ([], is_of_commit, cut_power_at),
    "exchange": (["-e", "inject=renameat2:error=EINVAL"], lambda point: point.call != "renameat2", kill_at),
    "links": (["-e", "inject=linkat:error=EPERM"], lambda point: point.call != "linkat", kill_at),
    "inplace": (["-e", "inject=linkat:error=EPERM"], lambda point: point.call != "linkat", kill_at),
    "flush": ([], is_exchange, check_flush_at),
    "vanish": ([], is_of_commit, vanish_at),
    "intrude": ([], lambda point: ".stamp" not in point.line, intrude_at),
}


def run_experiment(name, benches, is_long, is_verbose):
    options, is_taken, inject = EXPERIMENTS[name]
    total, wrong = 0, {}
    for bench in benches:
        bench.has_pipe = name == "inplace"
        points = [point for point in bench.points(options, is_long) if is_taken(point)]
        for point in points:
            faults = inject(bench, point, options) if options else inject(bench, point)
            for fault in faults:
                wrong[fault] = wrong.get(fault, 0) + 1
            if faults and is_verbose:
                print(f"  {bench.old} -> {bench.new}: {', '.join(sorted(faults))}: {point}", flush=True)
        total += len(points)
    return total, wrong


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--long", action="store_true", help="every point of every pair")
    parser.add_argument("--only", action="append", choices=EXPERIMENTS, help="an experiment; may be repeated")
    parser.add_argument("--pair", action="append", metavar="OLD:NEW", help="a pair of: " + ", ".join(KINDS))
    parser.add_argument("--program", type=Path, default=ROOT / "build/release/bin/folvero")
    parser.add_argument("--samples", type=Path, default=ROOT / "build/release/samples")
    parser.add_argument("--verbose", action="store_true", help="print each point with a wrong result")
    return parser.parse_args()


def main():
    arguments = parse_arguments()
    ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1)
    pairs = arguments.pair or ([f"{old}:{new}" for old in KINDS for new in KINDS] if arguments.long else SHORT_PAIRS)
    with tempfile.TemporaryDirectory(prefix="folvero-faults-") as work:
        benches = []
        for pair in pairs:
            folder = Path(work) / pair.replace(":", "-")
            folder.mkdir()
            benches.append(Bench(arguments.program.resolve(), arguments.samples.resolve(), folder, pair))
        is_right = True
        for name in arguments.only or EXPERIMENTS:
            start = time.monotonic()
            few = None if arguments.long or arguments.pair or name == "kill" else 2
            total, wrong = run_experiment(name, benches[:few], arguments.long, arguments.verbose)
            is_right = is_right and not wrong and total > 0
            found = ", ".join(f"{fault}: {count} of {total}" for fault, count in sorted(wrong.items()))
            print(f"{name:10}{total:5} points  {found or 'nothing wrong'}  ({time.monotonic() - start:.0f} s)", flush=True)
    return 0 if is_right else 1


if __name__ == "__main__":
    sys.exit(main())
