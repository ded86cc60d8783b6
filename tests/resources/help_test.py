"""The help: a book of a page a chapter, whose contents and pictures are all there, in each language.

Environment: FOLVERO_SOURCE_RESOURCES and FOLVERO_BUILT_RESOURCES, the resources in the source and in
the build tree, and FOLVERO_PROGRAM, the headless program.
"""

import json
import os
import subprocess
import unittest
from html.parser import HTMLParser
from pathlib import Path

SOURCE = Path(os.environ["FOLVERO_SOURCE_RESOURCES"]) / "help"
PRINTED = Path(os.environ["FOLVERO_BUILT_RESOURCES"]) / "PDF to Folvero for mac Help"
NAMES = {"en": "PDF to Folvero for Mac.pdf", "de": "PDF to Folvero for Mac.de.pdf"}


class Source(HTMLParser):
    """What of a page's source shows in its print."""

    def __init__(self, language):
        super().__init__()
        self.chapters, self.links, self.pictures, self.headings = [], [], [], []
        self._in_heading = False
        self.feed((SOURCE / f"{language}.html").read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        if tag == "section" and "id" in attributes:
            self.chapters.append(attributes["id"])
        if attributes.get("href", "").startswith("#"):
            self.links.append(attributes["href"][1:])
        if tag == "img":
            self.pictures.append(attributes)
        if tag == "h2":
            self._in_heading = True
            self.headings.append("")

    def handle_endtag(self, tag):
        if tag == "h2":
            self._in_heading = False

    def handle_data(self, data):
        if self._in_heading:
            self.headings[-1] += data


def titles(items):
    """All titles of an outline, whatever their depth."""
    for item in items:
        yield item["title"]
        yield from titles(item.get("children", []))


class Help(unittest.TestCase):
    def test_every_language_has_the_same_chapters_and_pictures(self):
        english, german = Source("en"), Source("de")
        self.assertGreater(len(english.chapters), 10)
        self.assertEqual(english.chapters, german.chapters)
        self.assertEqual([picture["src"].replace("/en/", "/de/") for picture in english.pictures],
                         [picture["src"] for picture in german.pictures])

    def test_every_chapter_is_linked_from_the_contents_and_every_picture_is_there(self):
        for language in NAMES:
            source = Source(language)
            self.assertEqual(source.links, source.chapters)
            for picture in source.pictures:
                with self.subTest(picture=picture["src"], language=language):
                    self.assertTrue((SOURCE / picture["src"]).is_file())
                    self.assertIn("alt", picture)

    def test_printed_book_has_a_page_and_a_bookmark_for_every_chapter(self):
        for language, name in NAMES.items():
            with self.subTest(language):
                run = subprocess.run([os.environ["FOLVERO_PROGRAM"], "info", "--json", PRINTED / name],
                                     capture_output=True, check=True)
                document = json.loads(run.stdout)
                source = Source(language)
                marked = list(titles(document["outline"]))
                self.assertEqual([title for title in source.headings if title not in marked], [])
                # Cover and contents come before the chapters; none runs on to a second page.
                self.assertEqual(len(document["pages"]), len(source.chapters) + 2)


if __name__ == "__main__":
    unittest.main()
