"""Stands between the program and a page worker: does a deed with the files of page 1 before it passes on the answer.

    proxy.py WORKER draw

WORKER.deed has the name of the deed, WORKER.real is the real page worker.
"""

import base64
import ctypes
import os
import signal
import struct
import subprocess
import sys
import zlib
from pathlib import Path

MARK = b"FOLVERO-HOSTILE-MARK"
HTML = b"<!DOCTYPE html><script>alert('" + MARK + b"')</script>"
MANY = 100_000
PR_SET_PDEATHSIG = 1


class Page:
    """The files of page 1 in the work folder."""

    def __init__(self, folder):
        self.folder = folder
        self.picture = next((folder / name for name in ("1.png", "1.jpg") if (folder / name).exists()), None)
        self.vectors = folder / "1.large.vectors"
        self.text = folder / "1.text"

    def insert(self, markup, before=b"</svg>"):
        """Adds markup to the vectors."""
        svg = zlib.decompress(self.vectors.read_bytes())
        at = svg.rindex(before)
        self.vectors.write_bytes(zlib.compress(svg[:at] + markup + svg[at:]))

    def rewrite(self, data):
        self.picture.write_bytes(data)

    def replace(self, make, path=None):
        path = path or self.picture
        path.unlink()
        make(path)

    def with_size(self, width, height):
        """The picture, with another size in its header."""
        data = bytearray(self.picture.read_bytes())
        if data.startswith(b"\x89PNG"):
            data[16:24] = struct.pack(">II", width, height)
            data[29:33] = struct.pack(">I", zlib.crc32(bytes(data[12:29])))
        else:
            at = next(at for at in range(len(data)) if data[at] == 0xFF and data[at + 1] in (0xC0, 0xC2))
            data[at + 5:at + 9] = struct.pack(">HH", height & 0xFFFF, width & 0xFFFF)
        self.rewrite(bytes(data))


def grow(path):
    with path.open("wb") as file:
        file.write(b"\x89PNG")
        file.truncate(1 << 30)


def make_many(folder):
    for number in range(MANY):
        (folder / f"{number}.html").touch()


FILE_DEEDS = {
    "script": lambda page: page.insert(b"<script>" + MARK + b"</script>"),
    "handler": lambda page: page.insert(b'<path d="M0 0" onload="' + MARK + b'"/>'),
    "outside-image": lambda page: page.insert(b'<image href="https://example.org/' + MARK + b'"/>'),
    "outside-use": lambda page: page.insert(b'<use href="https://example.org/' + MARK + b'#a"/>'),
    "javascript-link": lambda page: page.insert(b'<a href="javascript:' + MARK + b'"><path d="M0 0"/></a>'),
    "style": lambda page: page.insert(b'<path style="fill:url(//example.org/' + MARK + b')" d="M0 0"/>'),
    "foreign-object": lambda page: page.insert(b"<foreignObject>" + HTML + b"</foreignObject>"),
    "entity": lambda page: page.insert(b"&" + MARK + b";"),
    "no-svg": lambda page: page.vectors.write_bytes(zlib.compress(HTML)),
    "bomb": lambda page: page.vectors.write_bytes(zlib.compress(b"<svg >" + b" " * (1 << 28), 9)),
    "html-picture": lambda page: page.rewrite(HTML),
    "html-page": lambda page: (page.folder / "1.jpg").write_bytes(HTML),
    "html-after-header": lambda page: page.rewrite(page.picture.read_bytes()[:33] + HTML),
    "html-after-picture": lambda page: page.rewrite(page.picture.read_bytes() + HTML),
    "link-picture": lambda page: page.replace(lambda path: path.symlink_to("/etc/passwd")),
    "fifo-picture": lambda page: page.replace(os.mkfifo),
    "folder-picture": lambda page: page.replace(Path.mkdir),
    "sparse-picture": lambda page: page.replace(grow),
    "huge-header": lambda page: page.with_size(60_000, 60_000),
    "zero-header": lambda page: page.with_size(0, 1),
    "empty-picture": lambda page: page.rewrite(b""),
    "random-text": lambda page: page.text.write_bytes(MARK + os.urandom(5_000)),
    "endless-text": lambda page: page.text.write_bytes(b"\x7f\xff\xff\xff" * 64 + MARK),
    "script-text": lambda page: page.text.write_bytes(HTML),
    "link-text": lambda page: page.replace(lambda path: path.symlink_to("/etc/passwd"), page.text),
    "empty-text": lambda page: page.text.write_bytes(b""),
    "movie-beside": lambda page: (page.folder / "1.swf").write_bytes(b"FWS\x05" + MARK),
    "page-beside": lambda page: (page.folder / "index.html").write_bytes(HTML),
    "links-beside": lambda page: (page.folder / "files").symlink_to("/etc"),
    "many-beside": lambda page: make_many(page.folder),
    "other-page-beside": lambda page: (page.folder / "7.jpg").write_bytes(HTML),
}
ANSWER_DEEDS = {
    "answer-garbage": lambda answer: b"\xff\xfe" + MARK + b"\n",
    "answer-endless": lambda answer: b"ok " + b"9" * 50_000_000 + b"\n",
    "answer-other-page": lambda answer: answer * 3,
    "answer-reason": lambda answer: b"fail <script>" + MARK + b"</script>\x1b[2J\n",
}


def serve(real, deed):
    worker = subprocess.Popen([real, "draw"], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    folder = None
    for line in sys.stdin.buffer:
        worker.stdin.write(line)
        worker.stdin.flush()
        answers = [worker.stdout.readline()]
        if folder is None:
            folder = Path(os.fsdecode(base64.b64decode(line.split()[1])))
            answers.append(worker.stdout.readline())  # "here", "ready"
        while answers[-1].startswith(b"damaged"):
            answers.append(worker.stdout.readline())
        if line.split()[0] == b"1" and answers[-1].startswith(b"ok"):
            if deed in FILE_DEEDS:
                FILE_DEEDS[deed](Page(folder))
            else:
                answers[-1] = ANSWER_DEEDS[deed](answers[-1])
        sys.stdout.buffer.write(b"".join(answers))
        sys.stdout.buffer.flush()


def main():
    ctypes.CDLL(None).prctl(PR_SET_PDEATHSIG, signal.SIGKILL)
    serve(sys.argv[1] + ".real", Path(sys.argv[1] + ".deed").read_text())


if __name__ == "__main__":
    main()
