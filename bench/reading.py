#!/usr/bin/env python3
"""How many paragraphs of documents come out right: in Folvero's page of text, and in those of other programs.

A paragraph is right when its whole text is one paragraph of the output, in the right order; white space, kinds of
quotation marks and hyphens are alike. For our own documents, which Chromium prints, the text is known; for others the
files of reading/ list how each paragraph of some pages starts and ends, written down from the drawn pages.

Usage: reading.py [--folvero PROGRAM] [--documents FOLDER] [--verbose] [NAME ...]
"""

import argparse
import gzip
import html.parser
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unicodedata

import reading_documents
import support

HERE = pathlib.Path(__file__).resolve().parent
SAME = str.maketrans({"‘": "'", "’": "'", "`": "'", "´": "'", "“": '"', "”": '"', "−": "-", "–": "-",
                      "‐": "-", "∗": "*"})


def fold(text):
    folded = unicodedata.normalize("NFKC", text).translate(SAME).replace("''", '"')
    return re.sub(r"\s+", " ", folded).strip()


class Paragraphs(html.parser.HTMLParser):
    """The texts of an HTML page's paragraphs, with the page of the document on which each begins."""

    BLOCKS = {"p", "h1", "h2", "h3", "h4", "h5", "h6", "li", "pre", "tr", "div", "figcaption"}

    def __init__(self, page=0):
        super().__init__()
        self.page = page
        self.found = []
        self.text = None
        self.in_mark = False

    def handle_starttag(self, tag, attributes):
        classes = dict(attributes).get("class", "")
        if tag in self.BLOCKS:
            self.end()
            self.text = ""
            self.start = self.page
        elif tag == "a" and classes == "page":
            self.in_mark = True
            self.page = int(dict(attributes)["id"].removeprefix("page-"))
            if not self.text:
                self.start = self.page
        elif tag in ("td", "br") and self.text is not None:
            self.text += " "

    def handle_endtag(self, tag):
        if tag == "a":
            self.in_mark = False
        if tag in self.BLOCKS:
            self.end()

    def handle_data(self, data):
        if self.text is not None and not self.in_mark:
            self.text += data

    def end(self):
        if self.text and self.text.strip():
            self.found.append((self.start, fold(self.text)))
        self.text = None


def parsed(page):
    parser = Paragraphs()
    parser.feed(page)
    parser.end()
    return parser.found


def of_folvero(program, document, first, last):
    with tempfile.TemporaryDirectory() as folder:
        command = [program, "publish", "--quiet", "--force", document, folder]
        subprocess.run(command, stdout=subprocess.DEVNULL, check=True)
        page = (pathlib.Path(folder) / "text.html").read_text(encoding="utf-8")
    return [text for start, text in parsed(page.partition("</h1>")[2]) if first <= start <= last]


def of_mutool(kind, document, first, last):
    page = subprocess.run(["mutool", "draw", "-q", "-F", kind, document, f"{first}-{last}"], capture_output=True,
                          text=True, check=True).stdout
    return [text for _, text in parsed(page.partition("<body>")[2] or page)]


def of_pdftotext(document, first, last):
    text = subprocess.run(["pdftotext", "-f", str(first), "-l", str(last), document, "-"], capture_output=True,
                          text=True, check=True).stdout
    # It leaves the hyphens at line ends, in favour of it they are closed.
    text = re.sub(r"(?<=[a-z])-\n(?=[a-z])", "", text)
    return [fold(part) for part in re.split(r"\n\s*\n|\f", text) if part.strip()]


def is_right(wanted, text):
    """wanted is the whole text, or its start and its end."""
    if len(wanted) == 1:
        return text == wanted[0]
    return text.startswith(wanted[0]) and text.endswith(wanted[1])


def right_ones(wanted, found):
    """The longest sequence of wanted paragraphs that are found in this order, as their numbers."""
    best = [[0] * (len(found) + 1) for _ in range(len(wanted) + 1)]
    for i in reversed(range(len(wanted))):
        for j in reversed(range(len(found))):
            best[i][j] = max(best[i + 1][j], best[i][j + 1])
            if is_right(wanted[i], found[j]):
                best[i][j] = max(best[i][j], best[i + 1][j + 1] + 1)
    right, j = [], 0
    for i in range(len(wanted)):
        while j < len(found) and best[i][j] == best[i][j + 1]:
            j += 1
        if j < len(found) and is_right(wanted[i], found[j]) and best[i][j] == best[i + 1][j + 1] + 1:
            right.append(i)
            j += 1
    return right


def printed(name, folder):
    page, wanted = reading_documents.page(name)
    source, document = folder / f"{name}.html", folder / f"{name}.pdf"
    source.write_text(page, encoding="utf-8")
    header = [] if name in ("paper", "novel") else ["--no-pdf-header-footer"]
    sandbox = ["--no-sandbox"] if os.geteuid() == 0 else []
    subprocess.run(["chromium", "--headless", "--disable-gpu", *sandbox, f"--user-data-dir={folder}/profile", *header,
                    f"--print-to-pdf={document}", source.as_uri()], capture_output=True, check=True)
    return document, [(fold(text),) for text in wanted], 1, support.page_count(document)


def packaged(path, documents, folder):
    """A document that a file of reading/ is about; None when its package is not installed."""
    head, *lines = path.read_text(encoding="utf-8").splitlines()
    first, last, name, package = re.search(r"pages (\d+) to (\d+) of (\S+) in ([\w.-]+\w)", head).groups()
    listing = subprocess.run(["dpkg", "-L", package], capture_output=True, text=True).stdout.splitlines()
    candidates = [pathlib.Path(line) for line in listing] + (sorted(documents.rglob("*")) if documents else [])
    found = next((each for each in candidates if each.name in (name, name + ".gz") and each.is_file()), None)
    if not found:
        print(f"{name}: not found, install {package}")
        return None
    document = folder / name
    opened = gzip.open(found) if found.suffix == ".gz" else open(found, "rb")
    with opened as source, open(document, "wb") as target:
        shutil.copyfileobj(source, target)
    return document, [tuple(map(fold, line.split(" … "))) for line in lines], int(first), int(last)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--folvero", default=support.BUILD / "bin" / "folvero")
    parser.add_argument("--documents", type=pathlib.Path, help="a folder with documents of packages not installed")
    parser.add_argument("--verbose", action="store_true", help="lists what is not right in Folvero's output")
    parser.add_argument("names", nargs="*", help="documents, all by default")
    options = parser.parse_args()
    programs = {
        "folvero": lambda *pages: of_folvero(options.folvero, *pages),
        "mutool html": lambda *pages: of_mutool("html", *pages),
        "mutool xhtml": lambda *pages: of_mutool("xhtml", *pages),
        "pdftotext": of_pdftotext,
    }
    programs = {name: read for name, read in programs.items() if name == "folvero" or shutil.which(name.split()[0])}
    totals = dict.fromkeys(programs, 0)
    count = 0
    print("document".ljust(24) + "paragraphs".rjust(11) + "".join(name.rjust(14) for name in programs))
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        files = sorted((HERE / "reading").glob("*.txt"))
        jobs = {each: lambda each=each: printed(each, folder) for each in reading_documents.DOCUMENTS}
        jobs |= {each.stem: lambda each=each: packaged(each, options.documents, folder) for each in files}
        for title, job in jobs.items():
            if options.names and title not in options.names:
                continue
            made = job()
            if not made:
                continue
            document, wanted, first, last = made
            row = title.ljust(24) + str(len(wanted)).rjust(11)
            count += len(wanted)
            for program, read in programs.items():
                found = read(document, first, last)
                right = right_ones(wanted, found)
                totals[program] += len(right)
                row += str(len(right)).rjust(14)
                if options.verbose and program == "folvero":
                    wrong = [" … ".join(wanted[i]) for i in range(len(wanted)) if i not in right]
                    print("\n".join(["not right:", *wrong, "found:", *(text for text in found if not any(
                        is_right(each, text) for each in wanted))]))
            print(row, flush=True)
    if count:
        print("right".ljust(35) + "".join(f"{100 * totals[program] / count:.0f}%".rjust(14) for program in programs))


if __name__ == "__main__":
    main()
