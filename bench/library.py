#!/usr/bin/python3
"""How fast a library of many books is made, and what it takes: books a second with one and two workers and with two
shards at once, peak memory of the parent process at a tenth of the books and at all, the times of a run over 1,000
books that are up to date, of status, catalogue and index, and files and bytes a book.

    bench/library.py [BOOKS]     default 5000, which takes an hour or more; run.sh does not run it

The books of the rates are a tenth of all. Each shard is bound to a processor, as on a machine that has one.
"""

import argparse
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

from support import BUILD, REPOSITORY, ScratchFolder, fail, print_table

POLL_SECONDS = 0.05
UP_TO_DATE = 1000
BOOKS_ONLY = ["--quiet", "--no-catalogue"]


def peak_mib(pid):
    """The most memory that a process had so far; 0 once it has ended."""
    try:
        for line in pathlib.Path(f"/proc/{pid}/status").read_text().splitlines():
            if line.startswith("VmHWM:"):
                return int(line.split()[1]) / 1024
    except OSError:
        pass
    return 0


def run(folvero, *commands):
    """Runs commands with "folvero library" at the same time, each with the processors in front of it; the seconds that
    each takes, and the most memory of one parent process."""
    start = time.perf_counter()
    peak = 0
    # A pipe that nobody reads yet would block programs that report much.
    errors = tempfile.TemporaryFile("w+")
    running = [subprocess.Popen([folvero, "library", *map(str, words)], stdout=subprocess.DEVNULL, stderr=errors,
                                preexec_fn=lambda processors=processors: os.sched_setaffinity(0, processors))
               for processors, words in commands]
    seconds = {}
    while len(seconds) < len(running):
        peak = max([peak, *(peak_mib(process.pid) for process in running)])
        time.sleep(POLL_SECONDS)
        for process in running:
            if process not in seconds and process.poll() is not None:
                seconds[process] = time.perf_counter() - start
    for process in running:
        if process.returncode != 0:
            errors.seek(0)
            fail(f"{process.args}: exit code {process.returncode}\n{errors.read()[-2000:]}")
    return [seconds[process] for process in running], peak


def make_list(scratch, count):
    folder = scratch / f"{count}-books"
    subprocess.run([sys.executable, "-B", REPOSITORY / "bench/library-pdfs.py", str(count), folder], check=True)
    return folder / "list.csv"


def footprint(folder):
    """Files and folders, and bytes on the disk, of all that is below a folder; hard links count once."""
    seen = {}
    for path in folder.rglob("*"):
        info = path.lstat()
        seen[info.st_ino] = info.st_blocks * 512
    return len(seen), sum(seen.values())


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("books", nargs="?", type=int, default=5000)
    parser.add_argument("--folvero", type=pathlib.Path, default=BUILD / "bin" / "folvero")
    options = parser.parse_args()
    processors = sorted(os.sched_getaffinity(0))[:2]
    if len(processors) < 2:
        fail("two processors are needed")
    one, two, both = {processors[0]}, {processors[1]}, set(processors)
    few, many = max(2, options.books // 10), options.books

    with ScratchFolder() as scratch:
        short, whole = make_list(scratch, few), make_list(scratch, many)
        rows = []

        def make(name, books, *commands):
            each, peak = run(options.folvero, *commands)
            seconds = max(each)
            rows.append((name, books, f"{seconds:.1f}", f"{books / seconds:.2f}", f"{peak:.1f}"))
            return each

        make("--jobs 1", few, (one, ["make", short, scratch / "a", "--jobs", 1, *BOOKS_ONLY]))
        make("--jobs 2", few, (both, ["make", short, scratch / "b", "--jobs", 2, *BOOKS_ONLY]))
        shards = [(one, ["make", short, scratch / "c", "--jobs", 1, "--shard", "1/2", "--quiet"]),
                  (two, ["make", short, scratch / "c", "--jobs", 1, "--shard", "2/2", "--quiet"])]
        alone = [run(options.folvero, shard)[0][0] for shard in shards]
        shutil.rmtree(scratch / "c")
        together = make("two shards, --jobs 1 each", few, *shards)
        # Shards are never quite equal: each is compared with itself.
        print(", ".join(f"shard {number}: {seconds:.1f} s alone, {beside:.1f} s beside the other"
                        for number, seconds, beside in zip((1, 2), alone, together)))
        make("--jobs 2, all books", many, (both, ["make", whole, scratch / "d", "--jobs", 2, *BOOKS_ONLY]))
        inodes, size = footprint(scratch / "d/books")
        current = whole
        if many > UP_TO_DATE:
            current = whole.parent / "first.csv"
            lines = whole.read_text().splitlines(keepends=True)
            current.write_text("".join(lines[:1 + UP_TO_DATE]))
        up_to_date = min(many, UP_TO_DATE)
        make("again, up to date", up_to_date, (both, ["make", current, scratch / "d", "--jobs", 2, *BOOKS_ONLY]))
        make("status", up_to_date, (both, ["status", scratch / "d"]))
        make("catalogue", many, (both, ["catalogue", scratch / "d", "--url", "https://example.org/", "--quiet"]))
        make("index", many, (both, ["index", scratch / "d", "--quiet"]))

    print_table(("", "books", "s", "books/s", "peak of the parent, MiB"), rows)
    print(f"{inodes / many:.1f} files and folders and {size / many / 1e6:.2f} MB a book")


if __name__ == "__main__":
    main()
