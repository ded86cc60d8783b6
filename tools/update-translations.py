#!/usr/bin/env python3
"""Brings translation files up to date with the texts of the program and of the template library.

Usage: update-translations.py LUPDATE FILE.ts...

Texts that are new stand in the files as unfinished, those that are gone are removed. A file for
English holds the texts with plural forms only.
"""

import json
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parent.parent


def property_texts():
    """The properties' texts in the editor: titles, explanations, captions and choices."""
    for node in ElementTree.parse(ROOT / "player/templates/properties.xml").iter("property"):
        for name in ("title", "desc", "aTitle"):
            yield node.findtext(name, "")
        if node.get("type") == "pt_list":
            yield from node.findtext("valueSource", "").split(",")


def template_names():
    for folder in sorted((ROOT / "player/templates").glob("*/template.json")):
        # As the program displays folder names.
        yield re.sub(r"\w+", lambda word: word[0].capitalize(), folder.parent.name)


def style_names():
    for settings in sorted((ROOT / "resources/AppFiles/Styles").glob("*/*/tmplSetting.txt")):
        yield settings.parent.name


def library_source():
    """The library's texts as source code for lupdate."""
    lines = []
    for context, texts in (("TemplateProperty", property_texts()),
                           ("TemplateName", template_names()), ("StyleName", style_names())):
        for text in dict.fromkeys(filter(None, texts)):
            # A JSON string is a C++ string literal as well.
            quoted = json.dumps(text, ensure_ascii=False)
            lines.append(f'QT_TRANSLATE_NOOP("{context}", {quoted})')
    return "\n".join(lines) + "\n"


def main():
    lupdate, files = sys.argv[1], [pathlib.Path(name) for name in sys.argv[2:]]
    with tempfile.TemporaryDirectory() as folder:
        library = pathlib.Path(folder) / "library.cpp"
        library.write_text(library_source(), encoding="utf-8")
        for file in files:
            plurals = ["-pluralonly"] if file.stem.endswith("_en") else []
            subprocess.run([lupdate, "-silent", "-locations", "none", "-no-obsolete",
                            "-source-language", "en", *plurals, str(ROOT / "src"), str(ROOT / "translations"), str(library),
                            "-ts", str(file)], check=True)


main()
