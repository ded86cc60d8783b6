"""What is in the packages, and what they ask for."""

import subprocess
import tempfile
import unittest
from pathlib import Path

from support import NAMES, SOURCE, VERSION, contents, field, output, package

PROGRAMS = {
    "folvero": ("./usr/bin/folvero", "./usr/libexec/folvero/folvero-book-server",
                "./usr/libexec/folvero/folvero-page-worker"),
    "folvero-desktop": ("./usr/bin/folvero-desktop",),
}


def wanted(name):
    return {entry.split()[0] for entry in field(name, "Depends").split(",")}


class Contents(unittest.TestCase):
    def test_headless_package_needs_no_window_and_the_desktop_package_the_headless_one(self):
        needed = wanted("folvero")
        self.assertIn("libqt6core6", needed)
        self.assertFalse({name for name in needed if "webengine" in name or "widgets" in name})
        self.assertIn(f"folvero (= {VERSION})", field("folvero-desktop", "Depends"))
        self.assertLessEqual({"libqt6webenginecore6", "libqt6webenginecore6-bin", "libqt6svg6"},
                             wanted("folvero-desktop"))

    def test_packages_share_no_file(self):
        files = [{member.name for member in contents(name) if not member.isdir()} for name in NAMES]
        self.assertFalse(files[0] & files[1])

    def test_programs_know_nothing_of_the_build_and_bind_at_their_start(self):
        for name, paths in PROGRAMS.items():
            for path in paths:
                with self.subTest(path), tempfile.NamedTemporaryFile() as file:
                    data = contents(name).extractfile(path).read()
                    self.assertEqual(data.count(str(SOURCE).encode()), 0)
                    file.write(data)
                    file.flush()
                    self.assertIn("NOW", output("readelf", "--dynamic", file.name).decode())

    def test_library_holds_what_the_program_lists(self):
        library = SOURCE / "resources/AppFiles"
        wanted = {f"AppFiles/{(style / file).relative_to(library)}" for style in (library / "Styles").glob("*/*")
                  for file in ("tmplSetting.txt", "shot.jpg")}
        wanted |= {f"AppFiles/Templates/{template.parent.name}/{file}"
                   for template in (SOURCE / "player/templates").glob("*/template.json")
                   for file in ("index.html", "flashTemplate.xml", "book.swf", "moveSound.mp3", "icon.png")}
        # The licence asks for the source of the player, which books carry minified.
        wanted.add("player/src/main.js")
        there = {name.removeprefix("./usr/share/folvero/") for name in contents("folvero").getnames()}
        self.assertFalse(wanted - there)

    def test_lintian_finds_nothing(self):
        # Which also looks at owners, modes, symbols and run paths.
        # The compression is only that of the tests, and what look like words of the programs are
        # within MuPDF's fonts.
        result = subprocess.run(
            ["lintian", "--allow-root", "--fail-on", "error,warning",
             "--suppress-tags", "malformed-deb-archive", "--dont-check-part", "binaries/spelling",
             *map(package, NAMES)], capture_output=True, text=True)
        self.assertEqual(result.returncode, 0, result.stdout + result.stderr)


if __name__ == "__main__":
    unittest.main()
