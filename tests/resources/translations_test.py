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


def update(path):
    subprocess.run([sys.executable, "-B", os.environ["FOLVERO_UPDATE_TRANSLATIONS"],
                    os.environ["FOLVERO_LUPDATE"], str(path)],
                   check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


class Translations(unittest.TestCase):
    def copy(self, source):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        return Path(shutil.copy(source, folder.name))

    def test_every_text_is_translated(self):
        self.assertLessEqual({"folvero_de.ts", "folvero_en.ts"}, {path.name for path in FILES})
        self.assertEqual([text for path in FILES for text in unfinished(path)], [])
        self.assertEqual([source for source, text in ALL_TEXTS if not text.strip()], [])

    def test_files_have_the_texts_of_the_program(self):
        for path in FILES:
            copy = self.copy(path)
            update(copy)
            self.assertEqual(keys(copy), keys(path),
                             f"{path.name} is out of date: build the target update-translations")
            self.assertEqual(unfinished(copy), [], path.name)

    def test_update_finds_texts_of_windows_errors_and_templates(self):
        copy = self.copy(FOLDER / "folvero_de.ts")
        copy.write_text('<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n'
                        '<TS version="2.1" language="de"></TS>\n')
        update(copy)
        found = unfinished(copy)
        for key in [("MainMenu", "&Quit"), ("PDFDocument", "no such file"),
                    ("SystemError", "Permission denied"), ("TemplateName", "Desk"),
                    ("TemplateProperty", "Scale to fit"), ("StyleName", "Rainy window")]:
            self.assertIn(key, found)

    def test_placeholders_mnemonics_and_endings_are_those_of_the_source(self):
        for source, text in ALL_TEXTS:
            with self.subTest(source):
                self.assertEqual(set(re.findall(r"%(?:\d+|n)", text)), set(re.findall(r"%(?:\d+|n)", source)))
                self.assertEqual(len(re.findall(r"&(?=\w)", text)), len(re.findall(r"&(?=\w)", source)))
                self.assertEqual(re.findall("[…:]$", text), re.findall("[…:]$", source))

    def test_german_has_its_own_quotation_marks(self):
        for source, translation in texts(FOLDER / "folvero_de.ts"):
            with self.subTest(source):
                self.assertNotRegex(translation, r'["”]|\.\.\.')
                self.assertEqual(translation.count("„"), translation.count("“"))


if __name__ == "__main__":
    unittest.main()
