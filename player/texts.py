"""What the player says to readers: texts/LANGUAGE.json, one file a language, English the pattern of all."""

import json
import re
import sys

# Forms of a text with a number, as Intl.PluralRules names them; "other" is there always.
FORMS = ["zero", "one", "two", "few", "many", "other"]


def read(player):
    """Texts by section ("page": of every book, "web": of web books, "offline", "reading", "notes",
    "vectors") and name, by language, English first."""
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
    own = flat(texts)
    wanted = {name: text["other"] if isinstance(text, dict) else text for name, text in flat(english).items()}
    for name in sorted(wanted.keys() | own.keys()):
        text = own.get(name)
        if name not in wanted:
            yield f"{language}.json: {name} is not in en.json"
        elif isinstance(text, dict):
            yield from (f"{language}.json: {name}.{fault}" for fault in faults_of_forms(text, wanted[name]))
        else:
            yield from (f"{language}.json: {name} {fault}" for fault in faults_of_text(text, wanted[name]))


def faults_of_forms(forms, wanted):
    for form in sorted(forms.keys() | {"other"}):
        if form not in FORMS or wanted.count("{0}") != 1:
            yield f"{form} is none of the forms of a text with a number"
            continue
        # Arabic has its words for one and two of something.
        without = form in ["zero", "one", "two"] and "{0}" not in str(forms[form])
        yield from (f"{form} {fault}" for fault in
                    faults_of_text(forms.get(form), wanted.replace("{0}", "") if without else wanted))


def faults_of_text(text, wanted):
    if not isinstance(text, str) or not text:
        yield "is missing"
    elif placeholders(text) != placeholders(wanted):
        yield f"must hold {placeholders(wanted) or 'no placeholder'}, as in en.json"
    elif re.search(r"[|\n\t]|\$\{|<", text):
        yield "may not hold |, <, a tab, a line end or a dollar sign before a brace"


def flat(texts):
    return {f"{section}.{name}": text for section, own in texts.items() if isinstance(own, dict)
            for name, text in own.items()}


def placeholders(text):
    return sorted(set(re.findall(r"\{.*?\}", text)))


def table(player, section):
    """A section's English texts, which scripts have themselves, in the form that learn() in src/book/words.js takes."""
    return lines(read(player)["en"][section], "en")


def others(player):
    """By language, those that only its readers load: the texts of each section in the same form."""
    return {code: {section: lines(own, code) for section, own in texts.items()}
            for code, texts in read(player).items() if code != "en"}


def lines(texts, code):
    return "|".join(["language", *texts]) + "\n" + "|".join([code, *map(joined, texts.values())])


def joined(text):
    """The form for other numbers, then each further form after a tab, its name before it."""
    if isinstance(text, str):
        return text
    return "\t".join([text["other"], *(f"{form}:{text[form]}" for form in FORMS[:-1] if form in text)])
