#!/usr/bin/python3
"""Where an import's time goes: shares of drawing, encoding, writing and waiting.

Reads what `folvero publish --timing FILE` writes: seconds by the clock to open the document ("open"),
to import ("import"), to publish ("publish") and in all ("total"), and seconds that all page workers
together drew, encoded, wrote and waited ("draw", "encode", "write", "idle").
"""

import json
import pathlib

from support import (ScratchFolder, arguments, clamped_range, default_documents, fail, median,
                     print_table, publish_command, run)

STAGES = ("draw", "encode", "write", "idle")


def timing(program, document, first, last):
    with ScratchFolder() as folder:
        file = folder / "timing.json"
        run(publish_command(program, document, folder / "book", f"{first}-{last}", "--timing",
                            file))
        return json.loads(file.read_text())


def report(program, document, pages, rounds):
    first, last = clamped_range(pages, document)
    records = [timing(program, document, first, last) for _ in range(rounds)]
    stages = [{stage: record[stage] for stage in STAGES} for record in records]
    print(f"## {document.name}, pages {first}-{last}, {rounds} rounds\n")
    rows = []
    for stage in STAGES:
        seconds = median([record[stage] for record in stages])
        share = median([record[stage] / sum(record.values()) for record in stages])
        rows.append((f"{stage} (all workers)", f"{seconds:.3f}", f"{share:.1%}"))
    for key in ("open", "import", "publish", "total"):
        seconds = median([record[key] for record in records])
        share = median([record[key] / record["total"] for record in records])
        rows.append((f"{key} (by the clock)", f"{seconds:.3f}", f"{share:.1%}"))
    print_table(("", "median s", "share"), rows)


def main():
    options = arguments(__doc__.splitlines()[0]).parse_args()
    if not options.folvero.exists():
        fail(f"{options.folvero.name} is not built")
    for document in options.documents or default_documents():
        report(options.folvero, pathlib.Path(document).resolve(), options.pages, options.rounds)


if __name__ == "__main__":
    main()
