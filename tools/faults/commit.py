"""Ends the program, or takes its folder away, at each system call by which it changes a book's folder."""

import contextlib
import os
import re
import shutil
import signal
import subprocess
import time
from dataclasses import dataclass
from pathlib import Path

from .bench import DONE, TEMPORARY, files_of, finish, leftovers_in

CALLS = ("rename,renameat,renameat2,link,linkat,symlink,symlinkat,mkdir,mkdirat,unlink,unlinkat,rmdir,"
         "fsync,fdatasync,syncfs")
EXCHANGE = "renameat2"
FEW = 3


@dataclass
class Point:
    """A system call of the run."""
    call: str
    number: int
    line: str

    def __str__(self):
        return f"{self.call} {self.number}: {self.line}"


def traced(bench, options, log):
    """Publishes the new edition over the old one under strace; only the thread that commits is traced."""
    bench.reset(bench.original)
    return subprocess.Popen(["strace", "-qq", "-o", str(log), *options, *bench.command()],
                            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)


def points_of(bench, options, is_long):
    """The calls from the beginning of the commit on. Of many of a kind in a row, a short run takes three, and
    all that exchange an entry of the book's folder."""
    log = bench.work / "calls"
    finish(traced(bench, ["-e", f"trace={CALLS}", *options], log))
    found, counts, is_commit = [], {}, False
    for line in log.read_text(errors="replace").splitlines():
        call = re.match(r"\w+", line)
        if not call or "(" not in line:
            continue
        counts[call[0]] = counts.get(call[0], 0) + 1
        # Either is the first that a commit does.
        is_commit = is_commit or '"swap"' in line or call[0] == "syncfs"
        if is_commit and "/Lumivex/" not in line:
            found.append(Point(call[0], counts[call[0]], line))
    return found if is_long else thinned(found)


def thinned(points):
    runs = []
    for point in points:
        if runs and runs[-1][0].call == point.call:
            runs[-1].append(point)
        else:
            runs.append([point])
    kept = []
    for some in runs:
        is_short = len(some) <= FEW or some[0].call == EXCHANGE
        kept += some if is_short else [some[0], some[len(some) // 2], some[-1]]
    return kept


def kill_at(bench, point, options):
    finish(traced(bench, [*options, "-e", f"trace={CALLS}", "-e",
                          f"inject={point.call}:signal=SIGKILL:when={point.number}"], bench.work / "log"))
    return bench.check_editions()


def children_of(process):
    text = Path(f"/proc/{process}/task/{process}/children").read_text()
    return [int(child) for child in text.split()]


def stop_at(bench, point, while_stopped):
    """Stops the program at a call, calls a function with its process ID, and lets it go on."""
    log = bench.work / "log"
    log.unlink(missing_ok=True)
    strace = traced(bench, ["-e", f"trace={CALLS}", "-e", f"inject={point.call}:signal=SIGSTOP:when={point.number}"],
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


def cut_power_at(bench, point, _):
    def kill_all(process):
        for victim in [*children_of(process), process]:
            os.kill(victim, signal.SIGKILL)
    stop_at(bench, point, kill_all)
    return bench.check_next()


def vanish_at(bench, point, _):
    elsewhere = bench.work / "elsewhere"
    shutil.rmtree(elsewhere, ignore_errors=True)
    result = stop_at(bench, point, lambda process: bench.book.rename(elsewhere))
    wrong = set()
    if result.code == DONE or result.output:
        wrong.add("exit code 0")
    elif result.code != TEMPORARY:
        wrong.add(f"exit code {result.code}")
    if bench.book.exists():
        wrong.add("made anew")
    return wrong


def intrude_at(bench, point, _):
    wrong = set()
    # An application is replaced with all that is in it.
    for is_killed in (False, True) if bench.new != "app" else ():
        def intrude(process):
            folder = next((path for path in bench.book.rglob("files") if ".folvero" not in str(path)), bench.book)
            (folder / "theirs").write_text("theirs")
            for victim in [*children_of(process), process] if is_killed else []:
                os.kill(victim, signal.SIGKILL)
        result = stop_at(bench, point, intrude)
        if not is_killed and result.code not in (DONE, TEMPORARY):
            wrong.add(f"exit code {result.code}")
        if bench.publish("new", bench.new).code != DONE:
            wrong.add("next run failed")
        found = files_of(bench.book)
        if not any(name.endswith("theirs") for name in found):
            wrong.add("file lost")
        if {name for name in found if not name.endswith("theirs")} != set(bench.new_files) or leftovers_in(bench.book):
            wrong.add("left behind")
    return wrong


def check_flush_at(bench, point, _):
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
    return point.call in ("rename", EXCHANGE) and not re.search(r'\.stamp|\.part"', point.line)


def is_of_commit(point):
    """Whether the folder may still change: the stamp and the removal of the staging folder come later."""
    return point.call not in ("unlink", "unlinkat", "rmdir") and ".stamp" not in point.line


def at_each_point(inject, is_taken, options=(), in_short=2, has_pipe=False):
    """An experiment: what is done at which points of how many pairs of a short run, with options of strace."""
    def check(context, tally):
        for bench in context.benches(in_short):
            bench.has_pipe = has_pipe
            for point in points_of(bench, options, context.is_long):
                if is_taken(point):
                    tally.add(f"{bench.pair}: {point}", inject(bench, point, options))
            bench.has_pipe = False
    return check


EXPERIMENTS = {
    "kill": at_each_point(kill_at, lambda point: True, in_short=3),
    "power": at_each_point(cut_power_at, is_of_commit),
    "exchange": at_each_point(kill_at, lambda point: point.call != EXCHANGE,
                              ["-e", f"inject={EXCHANGE}:error=EINVAL"], in_short=1),
    "links": at_each_point(kill_at, lambda point: point.call != "linkat", ["-e", "inject=linkat:error=EPERM"],
                           in_short=1),
    "inplace": at_each_point(kill_at, lambda point: point.call != "linkat", ["-e", "inject=linkat:error=EPERM"],
                             in_short=1, has_pipe=True),
    "flush": at_each_point(check_flush_at, is_exchange),
    "vanish": at_each_point(vanish_at, is_of_commit),
    "intrude": at_each_point(intrude_at, lambda point: ".stamp" not in point.line, in_short=1),
}
