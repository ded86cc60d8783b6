#!/usr/bin/env python3
"""What the catalogue of many books takes: processor seconds and elapsed ones of a first run and of one without changes,
peak memory, files and bytes.

    bench/catalogue.py [BOOKS ...]     default 1000 10000 100000, which takes some minutes

Only the results of the books are there, not the books: ten languages, one or two authors, three subjects each.
"""

import argparse
import json
import os
import pathlib
import random
import subprocess
import time

from made_words import few_are_common, vocabulary
from support import BUILD, ScratchFolder, fail, print_table

LANGUAGES = ["en", "de", "fr", "es", "it", "la", "nl", "ru", "ja", "zh"]
JAPANESE = "東京大学図書館文書歴史地理記録書物新聞"
FIRST_DAY = 1_700_000_000


WORDS = vocabulary(30_000, 1, 2)
NAMES = [name.capitalize() for name in vocabulary(20_000, 2, 2)]


def facts(source):
    language = few_are_common(source, LANGUAGES + [""])
    words = ["".join(source.choices(JAPANESE, k=3)) if language in ("ja", "zh") else few_are_common(source, WORDS)
             for _ in range(source.randint(2, 8))]
    author = "; ".join(f"{few_are_common(source, NAMES)} {few_are_common(source, NAMES)}"
                       for _ in range(source.randint(1, 2)))
    subjects = "; ".join(few_are_common(source, WORDS[:3000]) for _ in range(3))
    return {"title": " ".join(words).capitalize(), "author": author, "date": str(source.randint(1800, 2020)),
            "language": language, "subject": subjects}


def make_library(folder, count):
    source = random.Random(count)
    for number in range(count):
        identity = f"book-{number:06}"
        added = time.strftime("%Y-%m-%dT%H:%M:%SZ", time.gmtime(FIRST_DAY + 60 * number))
        result = {"id": identity, "pdf": identity + ".pdf", "facts": facts(source), "state": "made",
                  "made": {"pages": 20, "bytes": 3_000_000, "files": 100, "cover": "files/thumb/1.jpg",
                           "added": added, "changed": added}}
        group = folder / ".folvero-library/results" / f"{number % 256:02x}"
        group.mkdir(parents=True, exist_ok=True)
        (group / f"{identity}.json").write_text(json.dumps(result), encoding="utf-8")


def run(folvero, folder):
    """Processor seconds, elapsed seconds and the most memory in MiB."""
    start = time.perf_counter()
    process = subprocess.Popen([folvero, "library", "catalogue", folder, "--quiet", "--url", "https://example.org/",
                                "--contact", "a@example.org"], stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        fail(f"folvero library catalogue: status {status}")
    return usage.ru_utime + usage.ru_stime, time.perf_counter() - start, usage.ru_maxrss / 1024


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("books", nargs="*", type=int, default=[1000, 10_000, 100_000])
    parser.add_argument("--folvero", type=pathlib.Path, default=BUILD / "bin" / "folvero")
    options = parser.parse_args()
    rows = []
    for count in options.books:
        with ScratchFolder() as scratch:
            make_library(scratch, count)
            first, again = run(options.folvero, scratch), run(options.folvero, scratch)
            files = [path for top in ("catalogue", "index.html", "sitemap.xml") for path in
                     ([scratch / top] if (scratch / top).is_file() else (scratch / top).rglob("*")) if path.is_file()]
            size = sum(path.stat().st_size for path in files)
            rows.append((f"{count:,}", f"{first[0]:.1f}, {first[1]:.1f}", f"{again[0]:.1f}, {again[1]:.1f}",
                         f"{max(first[2], again[2]):.0f}", f"{len(files):,}", f"{size / 1e6:.0f}"))
    print_table(("Books", "First run: processor, elapsed, s", "Without changes", "Peak, MiB", "Files", "MB"), rows)


main()
