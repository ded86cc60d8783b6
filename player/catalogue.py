#!/usr/bin/env python3
"""Builds what the catalogues of libraries have beside their pages: catalogue.js and catalogue.css, an icon, and the
texts, which the program puts into the pages.

Usage: catalogue.py ESBUILD PLAYER_DIR ICON OUTPUT_DIR
"""

import json
import pathlib
import shutil
import sys

import texts
from bundle import bundled, joined_style


STYLES = ["page.css", "books.css", "lists.css", "search.css"]


def main():
    esbuild, player, icon, output = sys.argv[1], *map(pathlib.Path, sys.argv[2:5])
    own = player / "catalogue"
    (output / "texts").mkdir(parents=True, exist_ok=True)
    (output / "catalogue.js").write_text(bundled(esbuild, own / "main.js") + "\n", encoding="utf-8")
    style = joined_style(esbuild, [own / sheet for sheet in STYLES])
    (output / "catalogue.css").write_text(style + "\n", encoding="utf-8")
    for language, sections in texts.read(own).items():
        text = json.dumps(sections, ensure_ascii=False, indent=1)
        (output / f"texts/{language}.json").write_text(text + "\n", encoding="utf-8")
    shutil.copyfile(icon, output / "icon.svg")


main()
