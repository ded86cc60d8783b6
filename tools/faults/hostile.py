"""A page worker that a hostile document has taken over: what it writes must not get into a book."""

import shlex
import sys
from pathlib import Path

from .bench import DOCUMENT, DONE, INCOMPLETE, TEMPORARY, files_of, faults_of, leftovers_in, run
from .disk import WORKER, installation_with_wrapper

FAILED = 1
WEB_KINDS = ("web", "sample")
MARK = b"FOLVERO-HOSTILE-MARK"
PROXY = Path(__file__).with_name("proxy.py")
# Deeds of proxy.py. After one of the last group the page is as good as before.
SCRIPTS = ["script", "handler", "outside-image", "outside-use", "javascript-link", "style", "foreign-object", "entity",
           "no-svg", "bomb"]
PICTURES = ["html-picture", "html-page", "html-after-header", "html-after-picture", "link-picture", "fifo-picture",
            "folder-picture", "sparse-picture", "huge-header", "zero-header", "empty-picture"]
TEXTS = ["random-text", "endless-text", "script-text", "link-text", "empty-text"]
ANSWERS = ["answer-garbage", "answer-endless", "answer-other-page", "answer-reason"]
BESIDE = ["movie-beside", "page-beside", "links-beside", "many-beside", "other-page-beside"]
DEEDS = SCRIPTS + PICTURES + TEXTS + ANSWERS + BESIDE


def marked_files(book):
    """Files with the mark in them, or that are neither files nor folders."""
    found = []
    for path in book.rglob("*"):
        if path.is_symlink() or not (path.is_file() or path.is_dir()):
            found.append(path.name)
        elif path.is_file() and MARK in path.read_bytes():
            found.append(path.name)
    return found


def install_proxy(context):
    """The program with a page worker that hands everything to the real one, and changes what that made."""
    program = installation_with_wrapper(context.program, context.work / "hostile")
    worker = program.parent.parent / WORKER
    proxy = shlex.join([sys.executable, str(PROXY)])
    worker.write_text(f'#!/bin/sh\n[ "$1" = draw ] || exec "$0.real" "$@"\nexec {proxy} "$0" "$@"\n')
    return program, worker.with_name(worker.name + ".deed")


def check_hostile(context, tally):
    program, deed_file = install_proxy(context)
    for bench in context.benches(1):
        if bench.new not in WEB_KINDS:
            continue  # their pages have fewer files
        bench.reset(bench.original)
        normal = files_of_normal(bench)
        for deed in DEEDS:
            bench.reset(bench.original)
            deed_file.write_text(deed)
            result = run([str(program), *bench.command()[1:], "--jobs", "1"], seconds=300)
            wrong = faults_of(result, (DONE, INCOMPLETE, DOCUMENT, TEMPORARY, FAILED))
            files = files_of(bench.book)
            if marked_files(bench.book):
                wrong.add("in the book")
            if result.code not in (DONE, INCOMPLETE) and files != bench.old_files:
                wrong.add("bad book")
            if set(files) - set(normal):
                wrong.add("further files")
            if deed not in BESIDE and result.code == DONE and files != bench.new_files and not result.errors:
                wrong.add("not reported")
            if deed in BESIDE and files != bench.new_files and result.code == DONE:
                wrong.add("another book")
            if leftovers_in(bench.book):
                wrong.add("left behind")
            tally.add(f"{bench.pair}: {deed}: code {result.code} in {result.seconds:.1f} s: {result.errors[:300]!r}",
                      wrong)


def files_of_normal(bench):
    """All names that either edition has, and the pictures that a page may have in place of others."""
    # The structure of the text bears the position of the first page with text, which changes when pages are lost.
    names = [*bench.old_files, *bench.new_files, "files/reading/text-1.js"]
    return names + [name.replace(".png", ".jpg") for name in names] + [name.replace(".jpg", ".png") for name in names]


EXPERIMENTS = {"hostile": check_hostile}
