"""Errors of disks: injected at each system call that writes, and on file systems that are full in truth."""

import os
import re
import shutil
import stat
import sys
from collections import defaultdict

from .bench import DONE, WORK_FOLDERS, TEMPORARY, files_of, faults_of, leftovers_in, run

CALLS = ("write,pwrite64,writev,openat,rename,renameat,renameat2,link,linkat,symlinkat,mkdir,mkdirat,fsync,fdatasync,"
         "syncfs,copy_file_range,sendfile,ftruncate,fallocate,fchmod")
CAUSES = {"ENOSPC": "No space left on device", "EDQUOT": "Disk quota exceeded", "EIO": "Input/output error"}
# Of a thread's calls of a kind, a short run takes so many.
SHORT_POINTS = 3
WORKER = "libexec/folvero/folvero-page-worker"
WRAPPER = """#!/bin/sh
# Runs the page worker under strace when it is to draw. The options come from a file: a worker gets no environment.
real="$0.real"
if [ "$1" = draw ] && [ -s "$0.options" ]; then
    exec strace -D -qq -y -o "$0.log" $(cat "$0.options") "$real" "$@"
fi
exec "$real" "$@"
"""


def installation_with_wrapper(program, folder):
    """A copy of the program's installation, by links, whose page worker is run by a script."""
    if folder.exists():
        return folder / "bin" / program.name
    original = program.parent.parent
    (folder / WORKER).parent.mkdir(parents=True)
    (folder / "bin").mkdir()
    shutil.copy2(program, folder / "bin" / program.name)
    (folder / "share").symlink_to(original / "share")
    shutil.copy2(original / WORKER, folder / (WORKER + ".real"))
    (folder / WORKER).write_text(WRAPPER)
    (folder / WORKER).chmod(0o755)
    return folder / "bin" / program.name


class Disk:
    """A pair of editions, published with its own work folder and with strace around program or worker."""

    def __init__(self, context, bench):
        self.bench = bench
        self.program = installation_with_wrapper(context.program, context.work / "wrapped")
        self.worker = self.program.parent.parent / WORKER
        self.log = bench.work / "calls"

    def publish(self, where, options):
        """Publishes the new edition over the old one: where is "program" or "worker"."""
        self.bench.reset(self.bench.original)
        outer = ["strace", "-f", "-b", "execve", "-qq", "-y", "-o", str(self.log), *options]
        inner = self.worker.with_name(self.worker.name + ".options")
        inner.write_text(" ".join(options) if where == "worker" else "")
        command = [str(self.program), *self.bench.command()[1:], "--jobs", "1"]
        return run([*outer, *command] if where == "program" else command, seconds=300)

    def points(self, where, is_long):
        """The calls below the book's folder and the work folder, as pairs of a kind and a number in its thread."""
        if self.publish(where, ["-e", f"trace={CALLS}"]).code != DONE:
            sys.exit(f"faults.py: {self.bench.pair} can't be published under strace")
        log = self.log if where == "program" else self.worker.with_name(self.worker.name + ".log")
        counts, ours, others = defaultdict(int), defaultdict(dict), set()
        for line in log.read_text(errors="replace").splitlines():
            match = re.match(r"(?:(\d+) +)?(\w+)\(", line)
            if not match:
                continue
            thread, call = match.groups()
            counts[thread, call] += 1
            is_ours = str(self.bench.book) in line or f"{WORK_FOLDERS}/temp." in line
            is_written = call != "openat" or re.search("O_CREAT|O_WRONLY|O_RDWR|O_TMPFILE", line)
            if is_ours and is_written:
                ours[thread, call][counts[thread, call]] = line
            else:
                others.add((call, counts[thread, call]))
        found = {}
        for (_, call), lines in ours.items():
            # strace counts in each thread: where another one would fail to load a library, it would test that.
            numbers = [number for number in lines if (call, number) not in others]
            if not is_long and len(numbers) > SHORT_POINTS:
                numbers = [numbers[0], numbers[len(numbers) // 2], numbers[-1]]
            found.update({(call, number): lines[number] for number in numbers})
        return found

    def verdict(self, result, cause):
        wrong = faults_of(result, (DONE, TEMPORARY))
        expected = self.bench.new_files if result.code == DONE else self.bench.old_files
        if files_of(self.bench.book) != expected:
            wrong.add("bad book")
        if result.code != DONE and not re.search(f"^folvero: .*/.*{re.escape(cause)}", result.errors, re.M):
            wrong.add("cause or file not named")
        if leftovers_in(self.bench.book):
            wrong.add("left behind")
        return wrong


def fails_with(error, in_short=1):
    def check(context, tally):
        for bench in context.benches(in_short):
            disk = Disk(context, bench)
            for where in ("program", "worker"):
                for (call, number), line in disk.points(where, context.is_long).items():
                    result = disk.publish(where, ["-e", f"trace={call}", "-e",
                                                  f"inject={call}:error={error}:when={number}"])
                    tally.add(f"{bench.pair} in the {where}, {call} {number}: {line[:200]}: "
                              f"code {result.code} {result.errors[:300]!r}", disk.verdict(result, CAUSES[error]))
    return check


# Mounts a file system of $1 kilobytes at $2, fills it with what $3 has, and runs the rest there. What is on it
# afterwards is copied to $4.
MOUNTED = """mount -t tmpfs -o size=$1k tmpfs "$2" || exit 99
[ -z "$3" ] || cp -a "$3/." "$2" || exit 98
kept=$4 at=$2; shift 4
"$@"; code=$?
rm -rf "$kept"; cp -a "$at" "$kept"; exit $code"""
UNSHARED = ["unshare", "-r", "-m", "sh", "-c", MOUNTED, "sh"]


def can_mount(folder):
    return run([*UNSHARED, "64", str(folder), "", str(folder.parent / "kept"), "true"]).code == 0


def kilobytes_in(folder):
    """What a folder needs on a tmpfs, where all takes whole pages."""
    paths = [folder, *folder.rglob("*")]
    return sum(-(-path.lstat().st_size // 4096) * 4 if stat.S_ISREG(path.lstat().st_mode) else 4 for path in paths)


def publish_on(context, bench, what, size):
    """Publishes with a small file system for the book, or for the work folder, and judges that."""
    bench.reset(bench.original)
    place, kept = bench.work / "place", bench.work / "kept"
    is_book = what == "book"
    command = [str(context.program), *bench.command()[1:]]
    if is_book:
        command[-1] = str(place)
    mount = [str(place), str(bench.original)] if is_book else [str(WORK_FOLDERS), ""]
    # Where the one in /tmp has no room, the folder of that name would be used.
    result = run([*UNSHARED, str(size), *mount, str(kept), *command], seconds=300,
                 env={**os.environ, "TMPDIR": "/no such folder"})
    wrong = faults_of(result, (DONE, TEMPORARY))
    if files_of(kept if is_book else bench.book) != (bench.new_files if result.code == DONE else bench.old_files):
        wrong.add("bad book")
    if result.code != DONE and CAUSES["ENOSPC"] not in result.errors:
        wrong.add("cause not named")
    if leftovers_in(kept if is_book else bench.book) or any(kept.glob("temp.*")):
        wrong.add("left behind")
    return result, wrong


def fill(context, tally):
    """File systems of growing size for the book, then for the work folder, until a book fits."""
    for bench in context.benches(2):
        place = bench.work / "place"
        place.mkdir(exist_ok=True)
        WORK_FOLDERS.mkdir(mode=0o1777, exist_ok=True)
        if not can_mount(place):
            tally.skipped = "no file system can be mounted here"
            return
        for what, size in (("book", kilobytes_in(bench.original) + 8), ("work folder", 4)):
            code = None
            while code != DONE and size < 20_000:
                result, wrong = publish_on(context, bench, what, size)
                code = result.code
                tally.add(f"{bench.pair}: {size} kB for the {what}: code {code} {result.errors[:300]!r}", wrong)
                size += 8 if context.is_long else 200


EXPERIMENTS = {"full": fails_with("ENOSPC", 2), "quota": fails_with("EDQUOT"), "io": fails_with("EIO"), "small": fill}
