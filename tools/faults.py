#!/usr/bin/env python3
"""Injects faults into `folvero publish` and checks what becomes of the book.

    tools/faults.py                           # a sample of all points, in three minutes
    tools/faults.py --long                    # every point of every pair of kinds of books
    tools/faults.py --only kill --pair web:sample --program build/release/bin/folvero
    tools/faults.py --long --only mutated --count 20000

A book of one kind is published over one of another kind, once for each fault. A table shows how often the result was
wrong, in one row for each experiment. strace lists the system calls by which the program changes folders during its
commit, and injects the fault at one of them:

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

Faults elsewhere. Exit code 0 means the whole new book, any other the whole old one, and nothing may be left behind:

    full        each call that writes below the book's folder or the work folder, in the program or in a page worker,
                fails with "No space left on device": an error that names file and cause (exit code 75)
    quota, io   the same with "Disk quota exceeded" and "Input/output error"
    small       file systems of growing size, too small for the book or for the work folder
    mutated     damaged documents (--count): a documented exit code, in time
    locale      languages, time zones and environments: the same book byte for byte
    limits      narrow limits of memory, processes, files and stack; closed streams; current folders that are gone
    hostile     a page worker that writes what no page is: nothing of it gets into a book

The exit code is 1 when any result was wrong. Needs strace, and the samples of a build.
"""

import argparse
import sys
import tempfile
import time
from pathlib import Path

from faults import commit, disk, environment, hostile, mutated
from faults.bench import KINDS, Tally, adopt_orphans, separate_work_folders
from faults.context import Context

ROOT = Path(__file__).resolve().parent.parent
EXPERIMENTS = {**commit.EXPERIMENTS, **disk.EXPERIMENTS, **mutated.EXPERIMENTS, **environment.EXPERIMENTS,
               **hostile.EXPERIMENTS}
# A short run kills in all of these, and makes the other experiments with the first one or two.
SHORT_PAIRS = ["classic:web", "app:app", "web:sample"]
SHORT_COUNT, LONG_COUNT = 63, 20_000


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--long", action="store_true", help="every point of every pair")
    parser.add_argument("--only", action="append", choices=EXPERIMENTS, help="an experiment; may be repeated")
    parser.add_argument("--pair", action="append", metavar="OLD:NEW", help="a pair of: " + ", ".join(KINDS))
    parser.add_argument("--count", type=int, help=f"mutated documents ({SHORT_COUNT}, with --long {LONG_COUNT})")
    parser.add_argument("--first", type=int, default=0, metavar="NUMBER", help="number of the first mutated document")
    parser.add_argument("--documents", type=Path, action="append", metavar="FOLDER",
                        help="documents to mutate; by default the samples, with --long also those in /usr/share/doc")
    parser.add_argument("--program", type=Path, default=ROOT / "build/release/bin/folvero")
    parser.add_argument("--samples", type=Path, default=ROOT / "build/release/samples")
    parser.add_argument("--verbose", action="store_true", help="print each point with a wrong result")
    return parser.parse_args()


def context_of(arguments, work):
    pairs = arguments.pair or ([f"{old}:{new}" for old in KINDS for new in KINDS] if arguments.long else SHORT_PAIRS)
    documents = [arguments.samples] + ([Path("/usr/share/doc")] if arguments.long else [])
    return Context(arguments.program.resolve(), arguments.samples.resolve(), work, pairs, arguments.long,
                   arguments.long or bool(arguments.pair), arguments.documents or documents, arguments.first,
                   arguments.count or (LONG_COUNT if arguments.long else SHORT_COUNT))


def main():
    arguments = parse_arguments()
    adopt_orphans()
    separate_work_folders()
    is_right, start = True, time.monotonic()
    with tempfile.TemporaryDirectory(prefix="folvero-faults-") as work:
        context = context_of(arguments, Path(work))
        for name in arguments.only or EXPERIMENTS:
            begun = time.monotonic()
            tally = Tally(arguments.verbose)
            EXPERIMENTS[name](context, tally)
            is_right = is_right and not tally.wrong and (tally.total > 0 or bool(tally.skipped))
            found = ", ".join(f"{fault}: {count}" for fault, count in sorted(tally.wrong.items()))
            print(f"{name:10}{tally.total:6} points  {found or tally.skipped or 'nothing wrong'}  "
                  f"({time.monotonic() - begun:.0f} s)", flush=True)
    print(f"all in {time.monotonic() - start:.0f} s")
    return 0 if is_right else 1


if __name__ == "__main__":
    sys.exit(main())
