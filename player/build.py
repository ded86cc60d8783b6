#!/usr/bin/env python3
"""Puts the player's script and style into its page, so that a book needs no further file.

Usage: build.py SHELL STYLE_DIR SCRIPT_DIR OUTPUT

The page passes through a text template that takes every dollar sign followed by an opening brace
for a placeholder, so the page may hold exactly the three that the template knows.
"""

import pathlib
import re
import sys

PLACEHOLDERS = ["index.title", "meta.keywords", "meta.description"]
STYLES = ["book.css", "controls.css"]
IMPORT = re.compile(r"^import \{[^}]*\} from '\./([a-z0-9]+)\.js';\n", re.MULTILINE)
COMMENT = re.compile(r"^[ \t]*/\*\*(?:(?!\*/).)*\*/\n", re.MULTILINE | re.DOTALL)


def modules_in_order(folder, name, done):
    """The modules that a module needs, each after those that it needs itself."""
    if name in done:
        return
    source = (folder / f"{name}.js").read_text(encoding="utf-8")
    for needed in IMPORT.findall(source):
        modules_in_order(folder, needed, done)
    done[name] = source


def join_script(folder):
    modules = {}
    modules_in_order(folder, "main", modules)
    parts = []
    for source in modules.values():
        source = COMMENT.sub("", IMPORT.sub("", source))
        if re.search(r"^import\b", source, re.MULTILINE):
            sys.exit("player: an import that the build does not understand")
        parts.append(re.sub(r"^export ", "", source, flags=re.MULTILINE).strip())
    return "(() => {\n'use strict';\n" + "\n".join(parts) + "\n})();"


def check(page, script):
    if "</script" in script.lower():
        sys.exit("player: the script would end the element that it lies in")
    opener = "$" + "{"
    found = [part.split("}")[0] for part in page.split(opener)[1:]]
    if found != PLACEHOLDERS:
        sys.exit(f"player: expected the placeholders {PLACEHOLDERS}, found {found}")
    if page.lstrip().startswith(opener) or re.search(r"\}\s*\$\{", page):
        sys.exit("player: a placeholder stands where the text template would stop")


def main():
    shell, style_dir, script_dir, output = map(pathlib.Path, sys.argv[1:])
    style = "\n".join((style_dir / name).read_text(encoding="utf-8") for name in STYLES)
    script = join_script(script_dir)
    page = shell.read_text(encoding="utf-8")
    page = page.replace("/*style*/", style.strip()).replace("/*script*/", script)
    check(page, script)
    output.parent.mkdir(parents=True, exist_ok=True)
    output.write_text(page, encoding="utf-8")


main()
