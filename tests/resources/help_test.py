"""The help: a book of a page a chapter, whose contents and pictures are all there, in each language.

Environment: FOLVERO_SOURCE_RESOURCES and FOLVERO_BUILT_RESOURCES, the resources in the source and in
the build tree, and FOLVERO_PROGRAM, the headless program.
"""

import html
import json
import os
import re
import subprocess
import unittest
from pathlib import Path

SOURCE = Path(os.environ["FOLVERO_SOURCE_RESOURCES"]) / "help"
PRINTED = Path(os.environ["FOLVERO_BUILT_RESOURCES"]) / "PDF to Folvero for mac Help"
TEXTS = {path.stem: path.read_text(encoding="utf-8") for path in sorted(SOURCE.glob("*.html"))}
NAMES = {language: "PDF to Folvero for Mac" + (".pdf" if language == "en" else f".{language}.pdf")
         for language in TEXTS}


def chapters(language):
    return re.findall(r'<section[^>]* id="([^"]+)"', TEXTS[language])


def pictures(language):
    return re.findall(r'<img[^>]* src="([^"]+)"', TEXTS[language])


def titles(items):
    """All titles of an outline, whatever their depth."""
    for item in items:
        yield item["title"]
        yield from titles(item.get("children", []))


class Help(unittest.TestCase):
    def test_every_language_has_the_same_chapters_and_pictures(self):
        self.assertLessEqual({"de", "en", "es", "fr", "it"}, TEXTS.keys())
        self.assertGreater(len(chapters("en")), 10)
        for language in TEXTS:
            self.assertEqual(chapters(language), chapters("en"))
            self.assertEqual(pictures(language),
                             [picture.replace("/en/", f"/{language}/") for picture in pictures("en")])
            self.assertEqual([picture for picture in pictures(language) if not (SOURCE / picture).is_file()], [])

    def test_contents_link_every_chapter_and_every_picture_has_a_description(self):
        for language, text in TEXTS.items():
            self.assertEqual(re.findall(r'href="#([^"]+)"', text), chapters(language))
            self.assertEqual([tag for tag in re.findall(r"<img[^>]*>", text) if " alt=" not in tag], [])

    def test_printed_book_has_a_page_and_a_bookmark_for_every_chapter(self):
        for language, name in NAMES.items():
            run = subprocess.run([os.environ["FOLVERO_PROGRAM"], "info", "--json", PRINTED / name],
                                 capture_output=True, check=True)
            document = json.loads(run.stdout)
            headings = re.findall(r"<h2[^>]*>(.*?)</h2>", TEXTS[language], re.S)
            self.assertLessEqual(set(map(html.unescape, headings)), set(titles(document["outline"])))
            # Cover and contents come before the chapters; none runs on to a second page.
            self.assertEqual(len(document["pages"]), len(chapters(language)) + 2)


if __name__ == "__main__":
    unittest.main()
