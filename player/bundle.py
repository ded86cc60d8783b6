"""Joins the modules of a script into one, for a page that needs no further file."""

import re
import sys

IMPORT = re.compile(r"^import \{[^}]*\} from '(\.\.?/(?:[a-z]+/)?[a-z0-9]+\.js)';\n", re.MULTILINE)
NAME = re.compile(r"^(?:async )?(?:const|let|class|function)\*? (\w+)", re.MULTILINE)
COMMENT = re.compile(r"^[ \t]*/\*\*(?:(?!\*/).)*\*/\n", re.MULTILINE | re.DOTALL)


def modules_in_order(path, done):
    """The modules that a module needs, each after those that it needs itself."""
    path = path.resolve()
    if path in done:
        return
    source = path.read_text(encoding="utf-8")
    for needed in IMPORT.findall(source):
        modules_in_order(path.parent / needed, done)
    done[path] = source


def join_script(first):
    """The script that begins in a module, with all that it imports."""
    modules = {}
    modules_in_order(first, modules)
    parts = []
    for source in modules.values():
        source = COMMENT.sub("", IMPORT.sub("", source))
        if re.search(r"^import\b", source, re.MULTILINE):
            sys.exit("player: an import that the build does not understand")
        parts.append(re.sub(r"^export ", "", source, flags=re.MULTILINE).strip())
    names = NAME.findall("\n".join(parts))
    twice = sorted({name for name in names if names.count(name) > 1})
    if twice:
        sys.exit(f"player: modules that are joined use the same names: {twice}")
    return "(() => {\n'use strict';\n" + "\n".join(parts) + "\n})();"
