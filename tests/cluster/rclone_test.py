"""A library is sent to storage like that of S3 with rclone and to another folder with rsync, as docs/cluster.md
describes it."""

import json
import os
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from support import FOLVERO, HERE, SOURCE, Kept, make_pdfs, output

TYPES = {".html": "text/html", ".js": "text/javascript", ".css": "text/css", ".png": "image/png",
         ".jpg": "image/jpeg", ".svg": "image/svg+xml", ".json": "application/json",
         ".webmanifest": "application/manifest+json", ".mp3": "audio/mpeg", ".xml": "text/xml",
         ".atom": "application/atom+xml"}
BUCKET = "site"


def documented(program):
    """The commands of docs/cluster.md that begin with the program's name, to a web server that is this machine."""
    text = (SOURCE / "docs/cluster.md").read_text().replace("\\\n", " ").replace("www.example.org:/", "")
    return re.findall(rf"^{program} .*", text, re.MULTILINE)


class ToStorage(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp(prefix="folvero-storage-"))
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        make_pdfs(3, cls.folder / "scans", 3)
        cls.out = cls.folder / "site"
        output(FOLVERO, "library", "make", cls.folder / "scans/list.csv", cls.out)
        # As catalogues have them.
        (cls.out / "feed.xml").write_text("<a/>")
        (cls.out / "feed.atom").write_text("<a/>")
        cls.public = {str(path.relative_to(cls.out)) for path in cls.out.rglob("*")
                      if path.is_file() and "/." not in f"/{path.relative_to(cls.out)}"}

    def run_documented(self, program, options=""):
        """The lines that the documented commands print."""
        self.assertTrue(documented(program))
        printed = [output("sh", "-c", f"{command} {options} 2>&1", cwd=self.folder,
                          env=self.environment) for command in documented(program)]
        return "".join(printed).splitlines()

    def change(self):
        page = self.out / "books/b0000001/index.html"
        page.write_text(page.read_text() + "<!-- changed -->")
        # As large as before. rsync compares whole seconds.
        feed = self.out / "feed.atom"
        later = feed.stat().st_mtime + 2
        feed.write_text("<b/>" if feed.read_text() == "<a/>" else "<a/>")
        os.utime(feed, (later, later))

    def test_rclone_sends_what_changed(self):
        server = Kept("node", HERE / "s3-server.mjs", SOURCE / "tests/browser/node_modules",
                      self.folder / "storage", BUCKET, stdout=subprocess.PIPE, text=True)
        self.addCleanup(server.kill)
        port = int(server.keeper.stdout.readline())
        self.addCleanup(server.keeper.stdout.close)
        settings = {"TYPE": "s3", "PROVIDER": "Other", "ACCESS_KEY_ID": "S3RVER",
                    "SECRET_ACCESS_KEY": "S3RVER", "ENDPOINT": f"http://127.0.0.1:{port}",
                    "FORCE_PATH_STYLE": "true"}
        self.environment = {name: value for name, value in os.environ.items()
                            if not name.startswith("AWS_")}
        self.environment |= {f"RCLONE_CONFIG_STORAGE_{key}": value for key, value in settings.items()}
        self.environment |= {"RCLONE_CONFIG": "/dev/null", "RCLONE_USE_JSON_LOG": "true",
                             "RCLONE_LOG_LEVEL": "INFO"}

        def sent():
            lines = map(json.loads, self.run_documented("rclone"))
            return sorted(line["object"] for line in lines if line["msg"].startswith("Copied"))

        self.assertEqual(sent(), sorted(self.public))
        stored = json.loads(output("rclone", "lsjson", "--recursive", "--files-only",
                                   f"storage:{BUCKET}", env=self.environment))
        self.assertEqual({entry["Path"] for entry in stored}, self.public)
        types = {Path(entry["Path"]).suffix: entry["MimeType"].partition(";")[0] for entry in stored}
        types.pop(".bin")
        self.assertEqual(types, TYPES)
        self.assertEqual(sent(), [])
        self.change()
        self.assertEqual(sent(), ["books/b0000001/index.html", "feed.atom"])

    def test_rsync_sends_what_changed(self):
        self.environment = os.environ
        web_server = self.folder / "srv/www/books"
        web_server.mkdir(parents=True)

        def sent():
            lines = self.run_documented("rsync", "--itemize-changes")
            return sorted(line.split()[1] for line in lines if line.startswith(">f"))

        self.assertEqual(sent(), sorted(self.public))
        there = {str(path.relative_to(web_server)) for path in web_server.rglob("*") if path.is_file()}
        self.assertEqual(there, self.public)
        self.assertEqual(sent(), [])
        self.change()
        self.assertEqual(sent(), ["books/b0000001/index.html", "feed.atom"])


if __name__ == "__main__":
    unittest.main()
