#!/usr/bin/env python3
"""Builds the script that shows changed settings in the window's preview.

Usage: preview.py ESBUILD PLAYER_DIR OUTPUT
"""

import pathlib
import sys

from bundle import bundled


def main():
    esbuild, player, output = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
    output.parent.mkdir(parents=True, exist_ok=True)
    output.write_text(bundled(esbuild, player / "preview/main.js") + "\n", encoding="utf-8")


main()
