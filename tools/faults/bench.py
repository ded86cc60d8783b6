"""What the experiments share: running `folvero publish`, and judging what a run leaves behind."""

import contextlib
import ctypes
import fcntl
import hashlib
import json
import os
import re
import shutil
import signal
import stat
import subprocess
import sys
import time
from dataclasses import dataclass, field
from pathlib import Path

KINDS = {
    "classic": ["--type", "html"],
    "web": ["--type", "web"],
    "single": ["--type", "web", "--single-file"],
    "app": ["--type", "app", "--name", "Book"],
    "course": ["--type", "scorm", "--name", "Book"],
    "sample": ["--type", "web", "--preview-pages", "1"],
}
DONE, INCOMPLETE, DOCUMENT, TEMPORARY, PASSWORD = 0, 3, 65, 75, 77
CRASH = re.compile(r"terminate called|Assertion|core dumped|Segmentation|Aborted|\*\*\* |bad_alloc|ERROR: \w+Sanitizer")
WORK_FOLDERS = Path("/tmp/Lumivex")
PR_SET_CHILD_SUBREAPER = 36
CLONE_NEWNS, MS_PRIVATE, MS_REC = 0x20000, 1 << 18, 1 << 14


@dataclass
class Run:
    """What a run of the program gave: a negative code is the signal that ended it."""
    code: int
    output: str
    errors: str
    seconds: float = 0
    left: set = field(default_factory=set)  # work folders that it left behind


@dataclass
class Tally:
    """How many points an experiment tried, and at how many each fault was found."""
    is_verbose: bool
    total: int = 0
    skipped: str = ""  # why nothing could be tried
    wrong: dict = field(default_factory=dict)

    def add(self, point, faults):
        self.total += 1
        for fault in faults:
            self.wrong[fault] = self.wrong.get(fault, 0) + 1
        if faults and self.is_verbose:
            print(f"  {', '.join(sorted(faults))}: {point}", flush=True)


def adopt_orphans():
    """Makes what the program leaves behind our child, so that it can be waited for."""
    ctypes.CDLL(None).prctl(PR_SET_CHILD_SUBREAPER, 1)


def separate_work_folders():
    """Gives this process work folders of its own, so that none of another program is taken for ours. As root only."""
    WORK_FOLDERS.mkdir(mode=0o1777, exist_ok=True)
    libc = ctypes.CDLL(None)
    if libc.unshare(CLONE_NEWNS) == 0 and libc.mount(None, b"/", None, MS_REC | MS_PRIVATE, None) == 0:
        libc.mount(b"none", str(WORK_FOLDERS).encode(), b"tmpfs", 0, b"mode=1777")


def finish(process, seconds=None):
    """Waits for a process, and for those that it left behind."""
    start = time.monotonic()
    try:
        output, errors = process.communicate(timeout=seconds)
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        output, errors = process.communicate()
    seconds = time.monotonic() - start
    while True:
        try:
            os.waitpid(-1, 0)
        except ChildProcessError:
            return Run(process.returncode, output or "", errors or "", seconds)


def run(command, seconds=None, **options):
    streams = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **options}
    before = abandoned_work_folders()
    result = finish(subprocess.Popen(command, text=True, errors="replace", start_new_session=True, **streams), seconds)
    result.left = abandoned_work_folders() - before
    return result


def files_of(folder):
    """Digests of all files by path; pipes, and hidden files beside the book, such as its stamp, are not part of it."""
    found = {}
    for path in sorted(folder.rglob("*")):
        name = path.relative_to(folder).as_posix()
        if name.startswith("."):
            continue
        if path.is_symlink():
            found[name] = f"link to {os.readlink(path)}"
        elif path.is_file():
            found[name] = hashlib.sha256(path.read_bytes()).hexdigest()
    return found


def leftovers_in(folder):
    return [name for name in os.listdir(folder) if "folvero-" in name] if folder.exists() else []


def abandoned_work_folders():
    """Work folders that a program has locked and that no program locks any more. Those of others may be among them."""
    found = set()
    for path in WORK_FOLDERS.glob("temp.*"):
        with contextlib.suppress(OSError):
            folder = os.open(path, os.O_RDONLY | os.O_DIRECTORY)
            try:
                if os.fstat(folder).st_mode & stat.S_ISVTX:
                    fcntl.flock(folder, fcntl.LOCK_EX | fcntl.LOCK_NB)
                    if path.exists():  # and not removed meanwhile
                        found.add(path)
            finally:
                os.close(folder)
    return found


def gaps_in(book):
    """What a web book lacks of the files that it lists, and what is empty."""
    try:
        listed = json.loads((book / "files/web/offline.json").read_text())
    except (OSError, ValueError):
        return ["files/web/offline.json"]
    names = [*listed["shell"], *listed["rest"], "files/UserConfig.bin"]
    return [name for name in names if not (book / name).is_file() or not (book / name).stat().st_size]


def faults_of(result, allowed):
    """What is wrong with how a run ended, whatever it was to do: a set of names of faults."""
    wrong = set()
    if result.code not in allowed:
        wrong.add(f"exit code {result.code}")
    if CRASH.search(result.errors):
        wrong.add("crash message")
    if result.code not in (DONE, INCOMPLETE) and not re.search("^folvero: .+", result.errors, re.M):
        wrong.add("no message")
    if result.left:
        wrong.add("work folder left behind")
    return wrong


class Bench:
    """Two editions of a book, and the folder in which one replaces the other."""

    def __init__(self, program, samples, work, pair):
        self.program, self.work, self.pair = program, work, pair
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

    def command(self, edition="new", kind=None, title=None):
        pages = "1-2" if edition == "new" else "1-3"
        return [str(self.program), "publish", "--quiet", "--pages", pages, "--title", title or edition,
                *KINDS[kind or self.new], str(self.documents[edition]), str(self.book)]

    def publish(self, edition, kind, check=False):
        result = run(self.command(edition, kind))
        if check and result.code != DONE:
            sys.exit(f"faults.py: {result.errors}")
        return result

    def check_editions(self):
        """What is wrong with the folder after a run that was ended."""
        mixed = files_of(self.book) not in (self.old_files, self.new_files)
        return ({"mixtures"} if mixed else set()) | self.check_next()

    def check_next(self):
        if self.publish("new", self.new).code != DONE:
            return {"next run failed"}
        if files_of(self.book) != self.new_files or leftovers_in(self.book):
            return {"left behind"}
        return set()
