"""Shared code of the benchmark scripts: documents, programs, running and timing them, tables."""

import argparse
import os
import pathlib
import re
import shutil
import statistics
import subprocess
import sys
import tempfile
import time

REPOSITORY = pathlib.Path(__file__).resolve().parent.parent
BUILD = REPOSITORY / "build" / "release"
GENERATED = BUILD / "bench-samples"

# Documents of Debian packages, found through the package manager.
PACKAGED = {"R-exts.pdf": "r-doc-pdf", "pgfmanual.pdf": "texlive-pictures-doc"}
GENERATED_NAMES = ("picture-heavy.pdf", "scanned.pdf")


def fail(message):
    sys.exit(f"{pathlib.Path(sys.argv[0]).name}: {message}")


def packaged_document(name):
    """The path of a document of PACKAGED, or None when its package is not installed."""
    listing = subprocess.run(["dpkg", "-L", PACKAGED[name]], capture_output=True, text=True)
    for line in listing.stdout.splitlines():
        path = pathlib.Path(line)
        if path.name == name and path.is_file():
            return path
    print(f"{name}: not found, install {PACKAGED[name]}", file=sys.stderr)
    return None


def generated_documents():
    """Our own large documents, made on first use."""
    paths = [GENERATED / name for name in GENERATED_NAMES]
    maker = BUILD / "bin" / "folvero-make-samples"
    if not all(path.exists() for path in paths):
        if not maker.exists():
            fail(f"build {maker.name} first, or name documents")
        subprocess.run([maker, "--bench", GENERATED], check=True)
    return paths


def default_documents():
    return [path for path in map(packaged_document, PACKAGED) if path] + generated_documents()


def page_count(document):
    info = subprocess.run(["pdfinfo", document], capture_output=True, text=True, check=True)
    return int(re.search(r"^Pages:\s+(\d+)", info.stdout, re.MULTILINE).group(1))


def clamped_range(pages, document):
    """(first, last) of a text such as 101-200, limited to the document's last page."""
    first, last = (int(number) for number in pages.split("-"))
    last = min(last, page_count(document))
    if first > last:
        fail(f"{document} has only {last} pages")
    return first, last


def arguments(description, pages="101-200", rounds=5, documents="*"):
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("documents", nargs=documents, type=pathlib.Path, metavar="DOCUMENT",
                        help="PDF files; without any, those of the packages and our own")
    parser.add_argument("--pages", default=pages, help="first-last (default %(default)s)")
    parser.add_argument("--rounds", type=int, default=rounds, help="default %(default)s")
    parser.add_argument("--folvero", type=pathlib.Path, default=BUILD / "bin" / "folvero",
                        help="the program to measure (default: the release build's)")
    return parser


def publish_command(folvero, document, folder, pages, *options, kind="html"):
    return [folvero, "publish", "--force", document, folder, "--type", kind, "--pages", pages, *options]


def page_files(folder):
    """The page pictures of a published book by page number."""
    found = (pathlib.Path(folder) / "files" / "page").glob("*.jpg")
    return {int(path.stem): path for path in found if path.stem.isdigit()}


def run(*commands):
    """Runs commands in parallel; fails with the error output of the first failing one."""
    running = [subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
               for command in commands]
    errors = [process.communicate()[1] for process in running]
    for process, said in zip(running, errors):
        if process.returncode != 0:
            fail(f"{process.args[0]}: exit code {process.returncode}\n{said.decode()[-2000:]}")


def timed(action):
    """Runs it; returns wall-clock and CPU seconds."""
    start, before = time.perf_counter(), os.times()
    action()
    elapsed, after = time.perf_counter() - start, os.times()
    return elapsed, (after.children_user - before.children_user
                     + after.children_system - before.children_system)


class ScratchFolder(tempfile.TemporaryDirectory):
    def __enter__(self):
        return pathlib.Path(super().__enter__())


def require(*programs):
    for program in programs:
        if not shutil.which(program):
            fail(f"{program} is not installed")


def median(values):
    return statistics.median(values)


def print_table(header, rows):
    """A Markdown table; the first column is text, the others numbers."""
    print("| " + " | ".join(header) + " |")
    print("| --- |" + " ---: |" * (len(header) - 1))
    for row in rows:
        print("| " + " | ".join(str(cell) for cell in row) + " |")
    print()
