#!/usr/bin/env python3
"""Builds the parts of the player that web books have beside the page's own: web.js and web.css, vectors.js for enlarged
pages, reading.js for the reading view, notes.js for the reader's notes, contents.js for the tree of contents, search.js
for what searches, single.js for single-file books, course.js for courses, and what books that readers can keep have
beside these: offline.js and the service worker, sw.js. All books have languages/CODE.js, the texts of each language but
English, which the scripts have themselves.

Usage: web.py ESBUILD PLAYER_DIR OUTPUT_DIR

All but sw.js may be put into a page, which passes through a text template: they hold neither its
placeholders nor anything that ends the element around them.
"""

import json
import pathlib
import sys

import texts
from bundle import bundled, joined_style

STYLES = ["layers.css", "side.css", "contents.css", "search.css", "keeping.css", "looks.css"]


def check(name, text):
    for forbidden in ["$" + "{", "</script", "</style", "<!--"]:
        if forbidden in text.lower():
            sys.exit(f"player: {name} may not hold {forbidden}")


def main():
    esbuild, player, output = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
    scripts = {"web.js": ("main.js", "WEB_TEXTS", "web"), "offline.js": ("offlinepart.js", "OFFLINE_TEXTS", "offline")}
    parts = {name: bundled(esbuild, player / "web" / first, (define, texts.table(player, section)))
             for name, (first, define, section) in scripts.items()}
    parts["course.js"] = bundled(esbuild, player / "web/coursepart.js")
    for name in ["contents", "search", "single"]:
        parts[f"{name}.js"] = bundled(esbuild, player / f"web/{name}part.js")
    for name in ["vectors", "reading", "notes"]:
        style = joined_style(esbuild, [player / f"web/{name}.css"])
        parts[f"{name}.js"] = bundled(esbuild, player / f"web/{name}part.js", (f"{name.upper()}_TEXTS", texts.table(player, name)),
                                      (f"{name.upper()}_STYLE", style))
    parts |= {f"languages/{code}.js": f"window.folveroTexts={json.dumps(own, ensure_ascii=False)};"
              for code, own in texts.others(player).items()}
    parts["web.css"] = joined_style(esbuild, [player / "web" / sheet for sheet in STYLES])
    (output / "languages").mkdir(parents=True, exist_ok=True)
    for name, text in parts.items():
        check(name, text)
        (output / name).write_text(text + "\n", encoding="utf-8")
    (output / "sw.js").write_text(bundled(esbuild, player / "sw.js") + "\n", encoding="utf-8")


main()
