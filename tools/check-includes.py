#!/usr/bin/env python3
"""Checks the includes of src/: a folder may include lower folders only, and no modules include each other in a
circle; a module is a header with its source file.

Prints each include that is not allowed and exits with 1. Usage: check-includes.py [SOURCE_FOLDER]
"""

import graphlib
import pathlib
import re
import sys

# Each folder may include the folders of the lines above it.
LAYERS = """
base
system
util
picture
pdf
drawing template annotations
pages
output
webbook/reading
webbook
library project
library/search library/catalogue
app console
ui cli server worker
app/desktop
""".strip().split("\n")
RANK = {folder: rank for rank, layer in enumerate(LAYERS) for folder in layer.split()}
ENGINE = re.compile(r'^#include [<"]mupdf/', re.MULTILINE)


def included(path):
    return re.findall(r'^#include "([^"]+)"', path.read_text(encoding="utf-8"), re.MULTILINE)


def folder_of(name):
    return str(pathlib.PurePath(name).parent)


def module_of(name):
    return name.rpartition(".")[0]


def faults(root):
    graph = {}
    for path in sorted([*root.rglob("*.h"), *root.rglob("*.cpp")]):
        name = str(path.relative_to(root))
        folder = folder_of(name)
        if folder not in RANK:
            yield f"{name}: the folder has no place in the layers"
            continue
        module = graph.setdefault(module_of(name), set())
        for other in included(path):
            if module_of(other) != module_of(name):
                module.add(module_of(other))
            if not (root / other).exists():
                yield f"{name} includes {other}, which is no path in {root.name}/"
            elif folder_of(other) != folder and RANK.get(folder_of(other), len(LAYERS)) >= RANK[folder]:
                yield f"{name} includes {other}, which is not below {folder}/"
        if folder != "pdf" and ENGINE.search(path.read_text(encoding="utf-8")):
            yield f"{name} includes MuPDF; only pdf/ may"
    try:
        graphlib.TopologicalSorter(graph).prepare()
    except graphlib.CycleError as cycle:
        yield "include each other: " + " -> ".join(cycle.args[1])


def main():
    source = pathlib.Path(sys.argv[1]) if len(sys.argv) > 1 else pathlib.Path(__file__).resolve().parent.parent / "src"
    found = list(faults(source))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
