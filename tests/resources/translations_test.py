"""The translations of the window: complete, up to date with the program's texts, and of one form
with them.

Environment: FOLVERO_TRANSLATIONS, the folder of the translation files; FOLVERO_LUPDATE, the tool
that collects texts; FOLVERO_UPDATE_TRANSLATIONS, the script that runs it.
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

FOLDER = Path(os.environ["FOLVERO_TRANSLATIONS"])
FILES = sorted(FOLDER.glob("*.ts"))


def messages(path):
    """Context, source text and element of each message."""
    for context in ElementTree.parse(path).iter("context"):
        for message in context.iter("message"):
            yield context.findtext("name"), message.findtext("source"), message


def keys(path):
    return {(context, source, message.get("numerus")) for context, source, message in messages(path)}


def unfinished(path):
    return [(context, source) for context, source, message in messages(path)
            if message.find("translation").get("type")]


def texts(path):
    """Each source text with each form of its translation."""
    for _, source, message in messages(path):
        translation = message.find("translation")
        for form in list(translation.iter("numerusform")) or [translation]:
            yield source, form.text or ""


ALL_TEXTS = [pair for path in FILES for pair in texts(path)]


class Translations(unittest.TestCase):
    def test_every_text_is_translated(self):
        self.assertLessEqual({f"folvero_{language}.ts" for language in ("de", "en", "es", "fr", "it")},
                             {path.name for path in FILES})
        self.assertEqual([text for path in FILES for text in unfinished(path)], [])
        self.assertEqual([source for source, text in ALL_TEXTS if not text.strip()], [])

    def test_files_have_the_texts_of_the_program(self):
        for path in FILES:
            with tempfile.TemporaryDirectory() as folder:
                copy = Path(shutil.copy(path, folder))
                subprocess.run([sys.executable, "-B", os.environ["FOLVERO_UPDATE_TRANSLATIONS"],
                                os.environ["FOLVERO_LUPDATE"], copy],
                               check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
                self.assertEqual(keys(copy), keys(path),
                                 f"{path.name} is out of date: build the target update-translations")
                self.assertEqual(unfinished(copy), [], path.name)

    def test_placeholders_mnemonics_and_endings_are_those_of_the_source(self):
        for source, text in ALL_TEXTS:
            with self.subTest(source):
                self.assertEqual(set(re.findall(r"%(?:\d+|n)", text)), set(re.findall(r"%(?:\d+|n)", source)))
                self.assertEqual(len(re.findall(r"&(?=\w)", text)), len(re.findall(r"&(?=\w)", source)))
                self.assertEqual(re.findall("[…:]$", text), re.findall("[…:]$", source))

    def test_no_character_is_escaped_twice(self):
        """Readers of XML take one level away: the other would be read in the window."""
        self.assertEqual([text for _, text in ALL_TEXTS if re.search(r"&#?\w+;", text)], [])


if __name__ == "__main__":
    unittest.main()
