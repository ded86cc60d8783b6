"""What the player says to readers: texts/LANGUAGE.json, one file a language, English the pattern of all."""

import json
import re
import sys


def read(player):
    """Texts by section ("page": of every book, "web": of web books, "offline", "reading", "notes") and name, by language, English first."""
    files = sorted((player / "texts").glob("*.json"), key=lambda file: (file.stem != "en", file.stem))
    languages = {file.stem: parsed(file) for file in files}
    faults = [fault for language, texts in languages.items() for fault in compared(texts, languages["en"], language)]
    if faults:
        sys.exit("\n".join(f"player/texts/{fault}" for fault in faults))
    return languages


def parsed(file):
    try:
        # Some editors begin a file with a byte order mark.
        return json.loads(file.read_text(encoding="utf-8-sig"))
    except ValueError as error:
        sys.exit(f"player/texts/{file.name}: {error}")


def compared(texts, english, language):
    if not re.fullmatch("[a-z]{2,3}", language):
        yield f"{language}.json: named by its language's code of two or three small letters, such as pl.json"
    own, wanted = flat(texts), flat(english)
    for name in sorted(wanted.keys() | own.keys()):
        text = own.get(name)
        if name not in wanted:
            yield f"{language}.json: {name} is not in en.json"
        elif not isinstance(text, str) or not text:
            yield f"{language}.json: {name} is missing"
        elif placeholders(text) != placeholders(wanted[name]):
            yield f"{language}.json: {name} must hold {placeholders(wanted[name]) or 'no placeholder'}, as in en.json"
        elif re.search(r"[|\n]|\$\{|<", text):
            yield f"{language}.json: {name} may not hold |, <, a line end or a dollar sign before a brace"


def flat(texts):
    return {f"{section}.{name}": text for section, own in texts.items() if isinstance(own, dict)
            for name, text in own.items()}


def placeholders(text):
    return sorted(set(re.findall(r"\{.*?\}", text)))


def table(player, section):
    """All languages' texts of a section, in the form that learn() in src/book/words.js takes."""
    languages = read(player)
    names = list(languages["en"][section])
    rows = [["language", *names]] + [[code, *(own[section][name] for name in names)] for code, own in languages.items()]
    return "\n".join("|".join(row) for row in rows)
