#!/usr/bin/python3
"""Compares import and publish with other programs that draw the same pages.

All draw a range of pages at 144 dots an inch into JPEG files of quality 90. Ours is timed as a
whole program, publishing included. The programs take turns, so that a busy moment of the machine
strikes all of them; the table shows medians. "CPU s" is what all processes computed together, which
a busy machine disturbs less than the clock.
"""

import pathlib
import shlex

from support import (ScratchFolder, arguments, clamped_range, default_documents, fail, median,
                     page_files, print_table, publish_command, require, run, timed)

OURS = "folvero publish"


def halves(first, last):
    middle = (first + last) // 2
    return [(first, middle), (middle + 1, last)] if middle < last else [(first, last)]


def folvero(program, document, first, last, folder):
    run(publish_command(program, document, folder / "book", f"{first}-{last}"))
    return len(page_files(folder / "book"))


def pdftoppm(document, ranges, folder):
    run(*(["pdftoppm", "-jpeg", "-r", "144", "-jpegopt", "quality=90", "-f", str(first), "-l",
           str(last), document, folder / f"page{first}"] for first, last in ranges))
    return len(list(folder.glob("*.jpg")))


def mutool(document, ranges, folder):
    """Draws to PNM files, which cjpeg then converts to JPEG one by one."""
    commands = []
    for first, last in ranges:
        part = folder / str(first)
        part.mkdir()
        quoted = shlex.quote(str(part))
        commands.append(["sh", "-ec",
                         f"mutool draw -q -r 144 -F ppm -o {quoted}/%d.ppm "
                         f"{shlex.quote(str(document))} {first}-{last}; cd {quoted}; "
                         "for page in *.ppm; do "
                         'cjpeg -quality 90 -outfile "${page%.ppm}.jpg" "$page"; rm "$page"; '
                         "done"])
    run(*commands)
    return len(list(folder.glob("*/*.jpg")))


def ways(program, document, first, last):
    """Name -> function that draws the pages into a folder and returns how many files it made."""
    whole, split = [(first, last)], halves(first, last)
    result = {}
    if program.exists():
        result[OURS] = lambda folder: folvero(program, document, first, last, folder)
    result["pdftoppm"] = lambda folder: pdftoppm(document, whole, folder)
    result["pdftoppm, two at once"] = lambda folder: pdftoppm(document, split, folder)
    result["mutool + cjpeg"] = lambda folder: mutool(document, whole, folder)
    result["mutool + cjpeg, two at once"] = lambda folder: mutool(document, split, folder)
    return result


def measure(way, name, pages):
    with ScratchFolder() as folder:
        made = []
        seconds, computed = timed(lambda: made.append(way(folder)))
    if made[0] != pages:
        fail(f"{name} made {made[0]} files of {pages} pages")
    return seconds, computed


def report(program, document, pages, rounds):
    first, last = clamped_range(pages, document)
    count = last - first + 1
    contenders = ways(program, document, first, last)
    times = {name: [] for name in contenders}
    for _ in range(rounds):
        for name, way in contenders.items():
            times[name].append(measure(way, name, count))
    ours = median([seconds for seconds, _ in times[OURS]]) if OURS in times else None
    print(f"## {document.name}, pages {first}-{last}, {rounds} rounds\n")
    rows = []
    for name, measured in times.items():
        seconds, computed = zip(*measured)
        middle = median(seconds)
        ratio = f"{middle / ours:.2f}" if ours else "-"
        rows.append((name, f"{middle:.2f}", f"{min(seconds):.2f}", f"{max(seconds):.2f}",
                     f"{median(computed):.2f}", f"{count / middle:.1f}", ratio))
    print_table(("", "median s", "fastest s", "slowest s", "CPU s", "pages/s", "time : ours"), rows)


def main():
    options = arguments(__doc__).parse_args()
    require("pdftoppm", "pdfinfo", "mutool", "cjpeg")
    if not options.folvero.exists():
        print(f"{options.folvero.name} is not built; only the outside programs are measured\n")
    for document in options.documents or default_documents():
        report(options.folvero, pathlib.Path(document).resolve(), options.pages, options.rounds)


if __name__ == "__main__":
    main()
