#!/usr/bin/env python3
"""Puts the player's script and style into its page, so that a book needs no other file of it.

Usage: build.py ESBUILD PLAYER_DIR TEMPLATE OUTPUT

The template's look.css comes after the player's own style. From its template.json the page learns
how leaves turn ("turn"), whether two pages may lie side by side ("pages") and whether the pages are
bound in the middle ("binding"); style and script find these as data attributes of the root.

The page passes through a text template that takes every dollar sign followed by an opening brace
for a placeholder, so the page may hold exactly those that the template knows.
"""

import json
import pathlib
import re
import sys

import texts
from bundle import bundled, joined_style

PLACEHOLDERS = ["book.language", "book.scripts", "index.title", "meta.keywords", "meta.description", "book.head",
                "book.movie", "book.end"]
STYLES = ["book.css", "controls.css", "drawer.css", "panels.css", "print.css"]


def check(page, script):
    if "</script" in script.lower():
        sys.exit("player: the script would end the element that it lies in")
    opener = "$" + "{"
    found = [part.split("}")[0] for part in page.split(opener)[1:]]
    if found != PLACEHOLDERS:
        sys.exit(f"player: expected the placeholders {PLACEHOLDERS}, found {found}")
    if page.lstrip().startswith(opener) or re.search(r"\}\s*\$\{", page):
        sys.exit("player: a placeholder stands where the text template would stop")


def attributes(template, name):
    binding = "yes" if template["binding"] else "no"
    return (f'data-template="{name}" data-turn="{template["turn"]}" '
            f'data-pages="{template["pages"]}" data-binding="{binding}"')


def main():
    esbuild, player, name, output = sys.argv[1], pathlib.Path(sys.argv[2]), sys.argv[3], pathlib.Path(sys.argv[4])
    folder = player / "templates" / name
    template = json.loads((folder / "template.json").read_text(encoding="utf-8"))
    sheets = [player / "style" / sheet for sheet in STYLES] + [folder / "look.css"]
    style = joined_style(esbuild, sheets)
    script = bundled(esbuild, player / "src/main.js", ("PAGE_TEXTS", texts.table(player, "page")),
                     ("LANGUAGES", " ".join(texts.others(player))), ("TURN", template["turn"]))
    page = (player / "shell.html").read_text(encoding="utf-8")
    early = bundled(esbuild, player / "early.js")
    page = page.replace("/*early*/", early).replace("/*style*/", style).replace("/*script*/", script)
    page = page.replace('data-template=""', attributes(template, name))
    check(page, early + script)
    output.parent.mkdir(parents=True, exist_ok=True)
    output.write_text(page, encoding="utf-8")


main()
