#!/usr/bin/python3
"""Peak memory of an import for a short and for a long document of the same kind of pages.

Counts the program and all its workers: the proportional set size (PSS) of the whole process tree,
read every few milliseconds, so that pages shared between them count once. Memory should depend on
the size of a page, not on the number of pages, so the ratio should stay near 1. pdftoppm is shown
for comparison.
"""

import pathlib
import subprocess
import time

from support import BUILD, ScratchFolder, arguments, fail, median, page_count, print_table, require

INTERVAL_SECONDS = 0.01


def children(pid):
    result = []
    for task in pathlib.Path(f"/proc/{pid}/task").glob("*/children"):
        result += [int(child) for child in task.read_text().split()]
    return result


def process_tree(pid):
    tree = [pid]
    for member in tree:
        try:
            tree += children(member)
        except OSError:
            pass  # ended meanwhile
    return tree


def pss_kib(pid):
    try:
        for line in pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines():
            if line.startswith("Pss:"):
                return int(line.split()[1])
    except OSError:
        pass  # ended meanwhile
    return 0


def peak_kib(command):
    """Runs a command; returns the greatest sum of PSS and the greatest number of processes."""
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    peak, processes = 0, 0
    while process.poll() is None:
        tree = process_tree(process.pid)
        peak = max(peak, sum(pss_kib(member) for member in tree))
        processes = max(processes, len(tree))
        time.sleep(INTERVAL_SECONDS)
    if process.returncode != 0:
        fail(f"{command[0]}: exit code {process.returncode}")
    return peak, processes


def contenders(folvero):
    result = {}
    if folvero.exists():
        result["folvero publish"] = lambda document, folder: [folvero, "publish", document,
                                                              folder / "book", "--type", "html"]
    result["pdftoppm"] = lambda document, folder: ["pdftoppm", "-jpeg", "-r", "144", document,
                                                   folder / "page"]
    return result


def measured(command, document, rounds):
    peaks, processes = [], 0
    for _ in range(rounds):
        with ScratchFolder() as folder:
            peak, count = peak_kib(command(document, folder))
        peaks.append(peak)
        processes = max(processes, count)
    return median(peaks) / 1024, processes


def main():
    options = arguments(__doc__.splitlines()[0], rounds=3).parse_args()
    require("pdftoppm", "pdfinfo")
    samples = BUILD / "samples"
    documents = options.documents or [samples / "fifty.pdf", samples / "thousand.pdf"]
    if len(documents) != 2:
        fail("give two documents, the short one first")
    rows = []
    for name, command in contenders(options.folvero).items():
        (short, processes), (long, _) = (measured(command, document, options.rounds)
                                         for document in documents)
        rows.append((name, processes, f"{short:.1f}", f"{long:.1f}", f"{long / short:.2f}"))
    print_table(("", "processes", *(f"{document.name} ({page_count(document)} pages), MiB"
                                    for document in documents), "ratio"), rows)


if __name__ == "__main__":
    main()
