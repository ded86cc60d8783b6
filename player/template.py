#!/usr/bin/env python3
"""Writes a template's flashTemplate.xml: the properties that all templates share, with the
template's own values in them.

Usage: template.py PLAYER_DIR TEMPLATE OUTPUT
"""

import json
import pathlib
import sys
import xml.etree.ElementTree as ElementTree


def main():
    player = pathlib.Path(sys.argv[1])
    template = json.loads((player / "templates" / sys.argv[2] / "template.json").read_text("utf-8"))
    tree = ElementTree.parse(player / "templates/properties.xml")
    tree.find("info/defaultStyle").text = template["defaultStyle"]
    nodes = {node.findtext("key"): node for node in tree.iter("property")}
    for key, value in template["values"].items():
        if key not in nodes:
            sys.exit(f"{sys.argv[2]}: there is no property {key}")
        nodes[key].find("value").text = value
        nodes[key].find("defaultValue").text = value
    output = pathlib.Path(sys.argv[3])
    output.parent.mkdir(parents=True, exist_ok=True)
    tree.write(output, encoding="utf-8", xml_declaration=True, short_empty_elements=False)


main()
