"""The entry in the menu, the page in a software centre, and the icon."""

import configparser
import struct
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

from support import SOURCE, VERSION, contents

ENTRY = "./usr/share/applications/folvero.desktop"
METAINFO = "./usr/share/metainfo/invalid.folvero.folvero.metainfo.xml"
MEDIA_TYPE = "./usr/share/mime/packages/folvero.xml"
PROJECT = "application/x-folvero"
LANGUAGE = "{http://www.w3.org/XML/1998/namespace}lang"
# Those of the window; texts without a language are English.
LANGUAGES = [None, *sorted({path.stem.split("_", 1)[1] for path in SOURCE.glob("translations/*.ts")} - {"en"})]


class DesktopEntry(unittest.TestCase):
    files = contents("folvero-desktop")

    def read(self, path):
        return self.files.extractfile(path).read()

    def check(self, path, *command):
        """Runs a checker over a file of the package."""
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder, Path(path).name)
            file.write_bytes(self.read(path))
            result = subprocess.run([*command, file], capture_output=True, text=True)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)
        return result.stdout + result.stderr

    def entry(self):
        parser = configparser.ConfigParser(interpolation=None, delimiters="=")
        parser.optionxform = str
        parser.read_string(self.read(ENTRY).decode())
        return parser["Desktop Entry"]

    def test_entry_is_valid_and_leads_to_the_program(self):
        self.assertEqual(self.check(ENTRY, "desktop-file-validate"), "")
        entry = self.entry()
        program, argument = entry["Exec"].split()
        self.assertIn(f"./usr/bin/{program}", self.files.getnames())
        self.assertEqual(argument, "%f")
        self.assertEqual(entry["MimeType"], f"{PROJECT};application/pdf;")

    def test_projects_have_a_media_type(self):
        with tempfile.TemporaryDirectory() as folder:
            packages = Path(folder, "packages")
            packages.mkdir()
            (packages / "folvero.xml").write_bytes(self.read(MEDIA_TYPE))
            subprocess.run(["update-mime-database", folder], check=True)
            self.assertIn(f"50:{PROJECT}:*.folvero\n", Path(folder, "globs2").read_text(encoding="utf-8"))

    def test_metainfo_is_valid_and_of_this_version(self):
        self.check(METAINFO, "appstreamcli", "validate", "--no-net")
        root = xml.fromstring(self.read(METAINFO))
        self.assertEqual(root.findtext("launchable"), Path(ENTRY).name)
        self.assertEqual(root.find("releases/release").get("version"), VERSION.rsplit("-", 1)[0])
        for parent in root.iter():
            texts = [child for child in parent if child.tag in ("summary", "p", "li")]
            self.assertEqual([(child.tag, child.get(LANGUAGE)) for child in texts],
                             [(child.tag, language) for child in texts[::len(LANGUAGES)] for language in LANGUAGES])

    def test_icon_comes_in_each_size(self):
        folder = "./usr/share/icons/hicolor"
        name = self.entry()["Icon"]
        for size in (16, 22, 24, 32, 48, 64, 128, 256, 512):
            picture = self.read(f"{folder}/{size}x{size}/apps/{name}.png")
            self.assertEqual(picture[:8], b"\x89PNG\r\n\x1a\n")
            self.assertEqual(struct.unpack(">II", picture[16:24]), (size, size))
        xml.fromstring(self.read(f"{folder}/scalable/apps/{name}.svg"))


if __name__ == "__main__":
    unittest.main()
