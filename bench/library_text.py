#!/usr/bin/env python3
"""Writes a library of books that have only what its search reads: texts, their words' places, and results.

Words are made of syllables and as frequent as in languages (Zipf's law): of four with alphabets, two of them with
marks, and one without blanks between words. Usage: library_text.py FOLDER BOOKS PAGES [--places]
"""

import argparse
import hashlib
import itertools
import json
from pathlib import Path
import random

VOCABULARY = 30_000
WORDS = 330  # of a page
LINE = 11  # words

LANGUAGES = {  # consonants, vowels, what is between words
    "en": ("b c d f g h l m n p r s t th w", "a e i o u ea ou", " "),
    "de": ("b d f g h k l m n r s sch st t w ß", "a e i o u ä ö ü ei", " "),
    "fr": ("b c ç d f g j l m n p r s t v", "a e é è ê i o ou u ai", " "),
    "ru": ("б в г д ж з к л м н п р с т ш", "а е и о у ы я ё", " "),
    "ja": (None, None, ""),
}


def numbered(count, power):
    return list(itertools.accumulate(1 / (rank + 2.7) ** power for rank in range(count)))


class Language:
    def __init__(self, name, chance):
        consonants, vowels, self.gap = LANGUAGES[name]
        self.chance = chance
        if consonants:
            pieces = [c + v for c in consonants.split() for v in vowels.split()]
            lengths = [1, 2, 2, 2, 3, 3, 4]
            cumulative = None
        else:
            pieces = [chr(0x4e00 + 7 * number) for number in range(2500)] + [chr(0x3042 + n) for n in range(0, 80, 2)] * 20
            chance.shuffle(pieces)
            lengths = [1, 2, 2, 2, 3, 4]
            cumulative = numbered(len(pieces), 0.9)
        words = {}
        while len(words) < VOCABULARY:
            words["".join(chance.choices(pieces, cum_weights=cumulative, k=chance.choice(lengths)))] = True
        self.words = sorted(words, key=lambda word: (len(word) + chance.random() * 4))
        self.weights = numbered(VOCABULARY, 1.05)

    def page(self):
        words = self.chance.choices(self.words, cum_weights=self.weights, k=WORDS)
        return [words[at:at + LINE] for at in range(0, WORDS, LINE)]


def write(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, encoding="utf-8")


def script(name, data):
    return f'folveroData("{name}", {json.dumps(data, ensure_ascii=False, separators=(",", ":"))});\n'


def places(lines, gap):
    """A page's words as the player reads them, each as wide as the others."""
    return {"size": [5950, 8420], "links": [], "lines": [
        [500, 500 + 200 * row, 4950, 120, 0, 0,
         [part for at, word in enumerate(line) for part in (word + (gap if at + 1 < len(line) else ""), 450 * at, 400)]]
        for row, line in enumerate(lines)]}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("folder", type=Path)
    parser.add_argument("books", type=int)
    parser.add_argument("pages", type=int)
    parser.add_argument("--places", action="store_true", help="write the places of words, a file a page")
    options = parser.parse_args()
    chance = random.Random(7)
    languages = [Language(name, chance) for name in LANGUAGES]
    size = 0
    for number in range(options.books):
        language = languages[number % len(languages)]
        book = f"book-{number:06}"
        files = options.folder / "books" / book / "files"
        pages = [language.page() for _ in range(options.pages)]
        texts = ["\n".join(language.gap.join(line) for line in page) for page in pages]
        size += sum(len(text.encode()) for text in texts)
        write(files / "search/text.js", script("search/text", texts))
        write(files / "web/book.js", script("web/book", {"version": 1, "text": True, "numbers": None, "labels": None}))
        if options.places:
            for position, page in enumerate(pages, 1):
                write(files / f"text/{position}.js", script(f"text/{position}", places(page, language.gap)))
        group = hashlib.blake2b(book.encode(), digest_size=20).hexdigest()[:2]
        write(options.folder / ".folvero-library/results" / group / f"{book}.json", json.dumps({
            "id": book, "pdf": f"{book}.pdf", "facts": {"title": f"Book {number}"}, "state": "made", "exitCode": 0,
            "inputs": "a", "run": "", "host": "", "seconds": 1, "made": {
                "pages": options.pages, "bytes": 1, "files": 1, "cover": "", "added": "2024-01-01T00:00:00Z",
                "changed": "2024-01-01T00:00:00Z", "documentFacts": {}}}))
    print(f"{options.books} books, {options.books * options.pages} pages, {size / 1e6:.0f} MB of text")
    for name, language in zip(LANGUAGES, languages):
        print(name, *(language.words[rank] for rank in (0, 1, 10, 100, 1000, 10_000, VOCABULARY - 1)))


if __name__ == "__main__":
    main()
