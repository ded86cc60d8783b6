#!/usr/bin/python3
"""Compares the sharpness of pages: structural similarity (SSIM) and PSNR to uncompressed output.

Each program's pages are compared with the drawing of its own engine, so that only what encoding
and scaling take away counts, not how two engines place their edges. 1 means no difference.
Needs python3-numpy and python3-pil.
"""

import pathlib

import numpy
from PIL import Image

from support import (ScratchFolder, arguments, clamped_range, default_documents, fail,
                     print_table, publish_command, require, run)

RADIUS = 5
SIGMA = 1.5
C1 = (0.01 * 255) ** 2
C2 = (0.03 * 255) ** 2


def luma(path):
    with Image.open(path) as image:
        return numpy.asarray(image.convert("RGB").convert("L"), dtype=numpy.float64)


def blurred(image):
    """Gaussian mean around each pixel that has a whole window around it."""
    weights = numpy.exp(-0.5 * (numpy.arange(-RADIUS, RADIUS + 1) / SIGMA) ** 2)
    weights /= weights.sum()
    height, width = image.shape
    rows = sum(weight * image[at:height - 2 * RADIUS + at]
               for at, weight in enumerate(weights))
    return sum(weight * rows[:, at:width - 2 * RADIUS + at]
               for at, weight in enumerate(weights))


def ssim(first, second):
    mean1, mean2 = blurred(first), blurred(second)
    variance1 = blurred(first * first) - mean1 * mean1
    variance2 = blurred(second * second) - mean2 * mean2
    covariance = blurred(first * second) - mean1 * mean2
    scores = ((2 * mean1 * mean2 + C1) * (2 * covariance + C2)
              / ((mean1 ** 2 + mean2 ** 2 + C1) * (variance1 + variance2 + C2)))
    return float(scores.mean())


def psnr(first, second):
    error = ((first - second) ** 2).mean()
    return float(10 * numpy.log10(255 ** 2 / error)) if error > 0 else 99.0


def similarity(page, reference):
    """SSIM and PSNR."""
    first, second = luma(page), luma(reference)
    # Renderers round a page's size up or down; more than a pixel is an error.
    if any(abs(a - b) > 1 for a, b in zip(first.shape, second.shape)):
        fail(f"{page}: {first.shape} pixels against {second.shape}")
    height = min(first.shape[0], second.shape[0])
    width = min(first.shape[1], second.shape[1])
    first, second = first[:height, :width], second[:height, :width]
    return ssim(first, second), psnr(first, second)


def sampled(first, last, count):
    count = min(count, last - first + 1)
    return sorted({first + (last - first) * i // max(1, count - 1) for i in range(count)})


def only(folder, pattern):
    found = list(folder.glob(pattern))
    if len(found) != 1:
        fail(f"{len(found)} files {pattern} where one was expected")
    return found[0]


def poppler_pair(document, page, folder):
    where = ["-r", "144", "-f", str(page), "-l", str(page), document]
    run(["pdftoppm", "-jpeg", "-jpegopt", "quality=90", *where, folder / "poppler"],
        ["pdftoppm", "-png", *where, folder / "poppler"])
    return only(folder, "poppler-*.jpg"), only(folder, "poppler-*.png")


def our_pages(program, document, pages, folder):
    """Pictures of a classic and of a web book, by page number."""
    found = []
    for kind in ("html", "web"):
        run(publish_command(program, document, folder / kind, ",".join(map(str, pages)), kind=kind))
        found.append({int(file.stem): file for file in (folder / kind / "files/page").iterdir()})
    return found


def drawing_of_our_engine(document, page, folder):
    run(["mutool", "draw", "-q", "-r", "144", "-o", folder / "drawn.png", document, str(page)])
    return folder / "drawn.png"


def report(program, document, pages):
    rows = []
    with ScratchFolder() as book:
        ours = our_pages(program, document, pages, book) if program.exists() else []
        for page in pages:
            with ScratchFolder() as folder:
                theirs = similarity(*poppler_pair(document, page, folder))
                reference = drawing_of_our_engine(document, page, folder)
                own = [value for kind in ours for value in similarity(kind[page], reference)]
            rows.append((page, *theirs, *(own or [None] * 4)))
    print(f"## {document.name}\n")
    means = ["mean"] + [sum(values) / len(values) if None not in values else None
                        for values in list(zip(*rows))[1:]]
    print_table(("page", "pdftoppm", "PSNR", "classic", "PSNR", "web", "PSNR"),
                [[row[0]] + ["-" if value is None else f"{value:.4f}" for value in row[1:]]
                 for row in [*rows, means]])


def main():
    parser = arguments(__doc__.splitlines()[0])
    parser.add_argument("--sample", type=int, default=10, help="pages compared (default 10)")
    options = parser.parse_args()
    require("pdftoppm", "pdfinfo", "mutool")
    for document in options.documents or default_documents():
        document = pathlib.Path(document).resolve()
        report(options.folvero, document,
               sampled(*clamped_range(options.pages, document), options.sample))


if __name__ == "__main__":
    main()
