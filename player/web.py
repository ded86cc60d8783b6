#!/usr/bin/env python3
"""Builds the parts of the player that web books have beside the page's own: web.js and web.css, and
sw.js, which keeps a book for readers without a connection.

Usage: web.py PLAYER_DIR OUTPUT_DIR

The first two may be put into a page, which passes through a text template: they hold neither its
placeholders nor anything that ends the element around them.
"""

import pathlib
import sys

from bundle import COMMENT, join_script

STYLES = ["layers.css", "side.css", "contents.css", "search.css", "keeping.css", "looks.css"]


def check(name, text):
    for forbidden in ["$" + "{", "</script", "</style", "<!--"]:
        if forbidden in text.lower():
            sys.exit(f"player: {name} may not hold {forbidden}")


def main():
    player, output = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    style = "\n".join((player / "web" / sheet).read_text(encoding="utf-8").strip() for sheet in STYLES)
    parts = {"web.js": join_script(player / "web/main.js"), "web.css": style}
    output.mkdir(parents=True, exist_ok=True)
    for name, text in parts.items():
        check(name, text)
        (output / name).write_text(text + "\n", encoding="utf-8")
    worker = (player / "sw.js").read_text(encoding="utf-8")
    (output / "sw.js").write_text(COMMENT.sub("", worker), encoding="utf-8")


main()
