"""Bundles and minifies the player's scripts and styles with esbuild."""

import json
import subprocess
import sys

# Browsers of March 2022: not all earlier ones have dialogs. Private methods rewritten for older ones would make the
# scripts a tenth larger. Template literals become concatenations: the page passes through a text template that takes a
# dollar sign followed by an opening brace for a placeholder.
SCRIPT = ["--minify", "--charset=utf8", "--log-level=warning", "--target=chrome99,firefox98,safari15.4",
          "--supported:template-literal=false"]
STYLE = ["--minify", "--charset=utf8", "--log-level=warning", "--loader=css"]


def run(esbuild, options, text=None):
    result = subprocess.run([esbuild, *options], input=text, capture_output=True, encoding="utf-8")
    if result.returncode != 0 or result.stderr:
        sys.exit(f"player: {result.stderr}")
    return result.stdout.strip()


def bundled(esbuild, first, *texts):
    """The script that begins in a module, with all that it imports. Strict, as modules are. texts: names and values"""
    define = [f"--define:{name}={json.dumps(value, ensure_ascii=False)}" for name, value in texts]
    return run(esbuild, [str(first), "--bundle", "--format=iife", '--banner:js="use strict";', *define, *SCRIPT])


def joined_style(esbuild, sheets):
    return run(esbuild, STYLE, "\n".join(sheet.read_text(encoding="utf-8") for sheet in sheets))
