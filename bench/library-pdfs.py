#!/usr/bin/env python3
"""Makes many PDFs of 1 to 40 (or PAGES) pages of text, and a list of them, to measure libraries with.

    library-pdfs.py COUNT FOLDER [PAGES]

The same COUNT gives the same files, and the first of them are those of a lower one.
"""

import csv
import pathlib
import random
import sys

from made_words import few_are_common, vocabulary

LINES_OF_PAGE = 44
WORDS_OF_LINE = 11
WORDS = vocabulary(30_000, 1, 1)


def words(source, count):
    return [few_are_common(source, WORDS) for _ in range(count)]


def page_content(source, number):
    lines = [" ".join(words(source, WORDS_OF_LINE)) for _ in range(LINES_OF_PAGE)]
    text = "\n".join(f"({line}) Tj T*" for line in lines)
    return (f"0.2 0.3 0.5 rg 50 800 {source.randint(100, 495)} 4 re f 0 g\n"
            f"BT /F1 10 Tf 50 770 Td 16 TL\n{text}\n0 -20 Td ({number}) Tj ET").encode("ascii")


def pdf(number, most_pages):
    source = random.Random(number)
    pages = source.randint(1, most_pages)
    title = " ".join(words(source, 4)).capitalize()
    author = " ".join(word.capitalize() for word in words(source, 2))
    objects = [b"<< /Type /Catalog /Pages 2 0 R >>",
               f"<< /Type /Pages /Count {pages} /Kids [{' '.join(f'{5 + 2 * i} 0 R' for i in range(pages))}] >>".encode(),
               b"<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
               f"<< /Title ({title}) /Author ({author}) >>".encode()]
    for index in range(pages):
        content = page_content(source, index + 1)
        objects.append(f"<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Contents {6 + 2 * index} 0 R "
                       "/Resources << /Font << /F1 3 0 R >> >> >>".encode())
        objects.append(b"<< /Length %d >>\nstream\n%s\nendstream" % (len(content), content))
    out = bytearray(b"%PDF-1.4\n")
    offsets = []
    for position, body in enumerate(objects, 1):
        offsets.append(len(out))
        out += b"%d 0 obj\n%s\nendobj\n" % (position, body)
    start = len(out)
    out += b"xref\n0 %d\n0000000000 65535 f \n" % (len(objects) + 1)
    out += b"".join(b"%010d 00000 n \n" % offset for offset in offsets)
    out += b"trailer << /Size %d /Root 1 0 R /Info 4 0 R >>\nstartxref\n%d\n%%%%EOF\n" % (len(objects) + 1, start)
    return bytes(out), title, author, source


def main():
    count, folder = int(sys.argv[1]), pathlib.Path(sys.argv[2])
    most_pages = int(sys.argv[3]) if len(sys.argv) > 3 else 40
    folder.mkdir(parents=True, exist_ok=True)
    with open(folder / "list.csv", "w", encoding="utf-8", newline="") as list_file:
        rows = csv.writer(list_file)
        rows.writerow(["pdf", "id", "title", "author", "date", "language", "subject"])
        for number in range(1, count + 1):
            content, title, author, source = pdf(number, most_pages)
            name = f"{number:07}.pdf"
            path = folder / name
            if not path.exists() or path.read_bytes() != content:
                path.write_bytes(content)
            rows.writerow([name, f"b{number:07}", title, author, source.randint(1850, 2026),
                           source.choice(["en", "de", "fr"]), " ".join(words(source, 1))])


if __name__ == "__main__":
    main()
